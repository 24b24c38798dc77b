#include "MainWindow.h"

#include "GalleryRibbon.h"
#include "KeytipDriver.h"
#include "PageRegistry.h"
#include "pages/Page.h"
#include "pages/PageSupport.h"

#include <nvo/Css.h>
#include <nvo/Label.h>

#include <QFrame>
#include <QHBoxLayout>
#include <QMessageBox>
#include <QScrollArea>
#include <QScrollBar>
#include <QSlider>
#include <QStackedWidget>
#include <QVBoxLayout>

#include <algorithm>

namespace {

constexpr QSize firstSize(1180, 800);
constexpr int minimumTitleWidth = 60;
constexpr int sliderWidth = 110;
constexpr int headerPadding = 6;

QString deltaText(int delta)
{
    const QChar sign = delta > 0 ? QLatin1Char('+') : delta < 0 ? QChar(0x2212) : QChar(0x00B1);
    return QStringLiteral("%1%2 px").arg(sign).arg(std::abs(delta));
}

} // namespace

MainWindow::MainWindow(const Theme &theme, QWidget *parent)
    : QWidget(parent)
    , m_theme(theme)
    , m_ribbon(new GalleryRibbon(GalleryRibbon::Use::Window))
    , m_pages(new QStackedWidget)
{
    setObjectName(QStringLiteral("frame"));
    setAttribute(Qt::WA_StyledBackground);
    setWindowTitle(QStringLiteral("NvoSdkGui Galerie"));
    setStyleSheet(NVO::Css::instance().replaceCss(
        NVO::Css::readFromReference(QStringLiteral(":/gallery/sheets/MainWindow"))));

    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addWidget(m_ribbon);
    m_header = makeHeader();
    layout->addWidget(m_header);
    layout->addWidget(m_pages, 1);

    connectRibbon();
    showTheme();
    new KeytipDriver(m_ribbon);
    resize(firstSize);
}

QFrame *MainWindow::makeHeader()
{
    auto *header = new QFrame;
    header->setObjectName(QStringLiteral("header"));
    m_title = makeLabel(QString(), NVO::Font::HEADLINEMEDIUM, LabelRole::Headline);
    m_title->setObjectName(QStringLiteral("pageTitle"));
    m_title->enableElide(true);
    m_title->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    m_title->setMinimumWidth(minimumTitleWidth);
    m_lastCommand = makeCaption(QString());
    m_lastCommand->enableElide(true);
    m_lastCommand->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    m_lastCommand->setAlignment(Qt::AlignRight | Qt::AlignVCenter);

    auto *layout = new QHBoxLayout(header);
    layout->setContentsMargins(pageMargin, headerPadding, pageMargin, headerPadding);
    layout->setSpacing(8);
    layout->addWidget(m_title, 2);
    layout->addWidget(m_lastCommand, 1);
    m_lastCommand->hide();
    layout->addSpacing(16);
    addFontDelta(layout);
    return header;
}

void MainWindow::connectRibbon()
{
    connect(m_ribbon, &GalleryRibbon::fileRequested, this, &MainWindow::showAbout);
    connect(m_ribbon, &GalleryRibbon::pageRequested, this, &MainWindow::setCurrentPage);
    connect(m_ribbon, &GalleryRibbon::commandTriggered, this, &MainWindow::runCommand);
    connect(m_ribbon, &GalleryRibbon::optionChanged, this, &MainWindow::changeOption);
}

void MainWindow::runCommand(const QString &name)
{
    m_lastCommand->hide();
    if (name.startsWith(themeCommand)) {
        const QString theme = name.mid(themeCommand.size());
        showTheme();
        if (theme != m_theme.key)
            Q_EMIT themeRequested(theme);
    } else if (name == largerCommand) {
        m_fontDelta->setValue(m_fontDelta->value() + 1);
    } else if (name == smallerCommand) {
        m_fontDelta->setValue(m_fontDelta->value() - 1);
    } else if (name == resetFontCommand) {
        m_fontDelta->setValue(0);
    } else if (name == aboutCommand) {
        showAbout();
    } else {
        const QVector<CommandEntry> &commands = commandEntries();
        const auto entry =
            std::find_if(commands.begin(), commands.end(),
                         [&name](const CommandEntry &command) { return command.name == name; });
        if (entry != commands.end() && entry->page.isEmpty()) {
            m_lastCommand->setText(QStringLiteral("Gewählt: %1").arg(entry->plainText()));
            m_lastCommand->show();
        }
    }
}

void MainWindow::changeOption(const QString &name, bool on)
{
    if (name == headerOption)
        m_header->setVisible(on);
}

QStringList MainWindow::options() const
{
    return m_ribbon->options();
}

void MainWindow::setOptions(const QStringList &names)
{
    m_ribbon->setOptions(names);
}

void MainWindow::showAbout()
{
    auto *box = new QMessageBox(QMessageBox::Information, QStringLiteral("Über die Galerie"),
                                QStringLiteral("Die Galerie zeigt die Bedienelemente von NvoSdkGui in ihren "
                                               "beiden Themen."),
                                QMessageBox::Ok, this);
    box->setAttribute(Qt::WA_DeleteOnClose);
    box->open();
}

void MainWindow::showTheme()
{
    m_ribbon->markTheme(m_theme.key);
}

void MainWindow::focusTheme()
{
    m_ribbon->focusCommand(themeCommand + m_theme.key);
}

void MainWindow::addFontDelta(QHBoxLayout *layout)
{
    const int delta = NVO::Css::instance().fontDelta();
    auto *slider = new QSlider(Qt::Horizontal);
    m_fontDelta = slider;
    slider->setObjectName(QStringLiteral("fontDelta"));
    slider->setAccessibleName(QStringLiteral("Schriftgröße"));
    slider->setToolTip(QStringLiteral("Zuschlag auf alle Schriftgrößen"));
    slider->setRange(minimumFontDelta, maximumFontDelta);
    slider->setPageStep(1);
    slider->setFixedWidth(sliderWidth);
    slider->setValue(delta);

    NVO::Label *value = makeCaption(deltaText(delta));
    value->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    layout->addWidget(makeCaption(QStringLiteral("Schrift")));
    layout->addWidget(slider);
    layout->addWidget(value);
    connect(slider, &QSlider::valueChanged, this, [this, value](int newDelta) {
        value->setText(deltaText(newDelta));
        Q_EMIT fontDeltaRequested(newDelta);
    });
}

void MainWindow::setCurrentPage(const QString &key)
{
    showPage(std::max(pageKeys().indexOf(key), 0));
}

QString MainWindow::currentPage() const
{
    return pageKeys().value(m_currentPage);
}

void MainWindow::showPage(int index)
{
    m_currentPage = index;
    m_title->setText(pageEntries().at(index).title);
    m_ribbon->markPage(pageEntries().at(index).key);
    m_pages->setCurrentWidget(pageView(index));
    pageView(index)->setFocus();
}

/** Pages are made when they are first looked at. */
QScrollArea *MainWindow::pageView(int index)
{
    QScrollArea *&view = m_pageViews[index];
    if (!view) {
        view = new QScrollArea;
        view->setObjectName(QStringLiteral("pageView"));
        view->setWidgetResizable(true);
        view->setAccessibleName(pageEntries().at(index).title);
        view->setWidget(pageEntries().at(index).create());
        m_pages->addWidget(view);
    }
    return view;
}

void MainWindow::fitToPage(QSize minimum)
{
    QScrollArea *view = m_pageViews.value(m_currentPage);
    const auto *page = static_cast<Page *>(view->widget());
    view->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    layout()->activate();
    const QSize frame = size() - view->viewport()->size();
    const int width = std::max(minimum.width() - frame.width(), page->pictureWidth());
    resize((frame + QSize(width, page->heightForWidth(width))).expandedTo(minimum));
}
