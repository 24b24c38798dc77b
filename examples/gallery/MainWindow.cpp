#include "MainWindow.h"

#include "GalleryRibbon.h"
#include "KeytipDriver.h"
#include "PageRegistry.h"
#include "StatusBar.h"
#include "pages/Page.h"
#include "pages/PageSupport.h"

#include <nvo/Css.h>
#include <nvo/Label.h>

#include <QFrame>
#include <QHBoxLayout>
#include <QMessageBox>
#include <QScrollArea>
#include <QScrollBar>
#include <QStackedWidget>
#include <QVBoxLayout>

#include <algorithm>

namespace {

constexpr QSize firstSize(1180, 800);
constexpr int minimumTitleWidth = 60;
constexpr int headerPadding = 6;

} // namespace

MainWindow::MainWindow(const Theme &theme, QWidget *parent)
    : QWidget(parent)
    , m_theme(theme)
    , m_ribbon(new GalleryRibbon(GalleryRibbon::Use::Window))
    , m_pages(new QStackedWidget)
    , m_statusBar(new StatusBar)
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
    layout->addWidget(m_statusBar);
    connect(m_statusBar, &StatusBar::fontDeltaRequested, this, &MainWindow::fontDeltaRequested);

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

    auto *layout = new QHBoxLayout(header);
    layout->setContentsMargins(pageMargin, headerPadding, pageMargin, headerPadding);
    layout->addWidget(m_title);
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
    m_statusBar->setMessage(QString());
    if (name.startsWith(themeCommand)) {
        const QString theme = name.mid(themeCommand.size());
        showTheme();
        if (theme != m_theme.key)
            Q_EMIT themeRequested(theme);
    } else if (name == largerCommand) {
        m_statusBar->setFontDelta(m_statusBar->fontDelta() + 1);
    } else if (name == smallerCommand) {
        m_statusBar->setFontDelta(m_statusBar->fontDelta() - 1);
    } else if (name == resetFontCommand) {
        m_statusBar->setFontDelta(0);
    } else if (name == aboutCommand) {
        showAbout();
    } else {
        const QVector<CommandEntry> &commands = commandEntries();
        const auto entry =
            std::find_if(commands.begin(), commands.end(),
                         [&name](const CommandEntry &command) { return command.name == name; });
        if (entry != commands.end() && entry->page.isEmpty())
            m_statusBar->setMessage(QStringLiteral("Gewählt: %1").arg(entry->plainText()));
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
