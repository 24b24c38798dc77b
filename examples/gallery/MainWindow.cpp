#include "MainWindow.h"

#include "PageRegistry.h"
#include "pages/Page.h"
#include "pages/PageSupport.h"

#include <nvo/Button.h>
#include <nvo/Css.h>
#include <nvo/Label.h>

#include <QButtonGroup>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QListWidget>
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

QString deltaText(int delta)
{
    const QChar sign = delta > 0 ? QLatin1Char('+') : delta < 0 ? QChar(0x2212) : QChar(0x00B1);
    return QStringLiteral("%1%2 px").arg(sign).arg(std::abs(delta));
}

} // namespace

MainWindow::MainWindow(const Theme &theme, QWidget *parent)
    : QWidget(parent)
    , m_theme(theme)
    , m_pageList(new QListWidget)
    , m_pages(new QStackedWidget)
{
    setObjectName(QStringLiteral("frame"));
    setAttribute(Qt::WA_StyledBackground);
    setWindowTitle(QStringLiteral("NvoSdkGui Galerie"));
    setStyleSheet(NVO::Css::instance().replaceCss(
        NVO::Css::readFromReference(QStringLiteral(":/gallery/sheets/MainWindow"))));

    auto *layout = new QGridLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addWidget(m_pageList, 0, 0, 2, 1);
    layout->addWidget(makeHeader(), 0, 1);
    layout->addWidget(m_pages, 1, 1);
    layout->setColumnStretch(1, 1);
    layout->setRowStretch(1, 1);

    fillPageList();
    connect(m_pageList, &QListWidget::currentRowChanged, this, &MainWindow::showPage);
    m_pageList->setFocus();
    resize(firstSize);
}

QWidget *MainWindow::makeHeader()
{
    auto *header = new QFrame;
    header->setObjectName(QStringLiteral("header"));
    m_title = makeLabel(QString(), NVO::Font::HEADLINEMEDIUM, LabelRole::Headline);
    m_title->setObjectName(QStringLiteral("pageTitle"));
    m_title->enableElide(true);
    m_title->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    m_title->setMinimumWidth(minimumTitleWidth);

    auto *layout = new QHBoxLayout(header);
    layout->setContentsMargins(pageMargin, 12, pageMargin, 12);
    layout->setSpacing(8);
    layout->addWidget(m_title, 1);
    addThemeSwitch(layout);
    layout->addSpacing(16);
    addFontDelta(layout);
    return header;
}

void MainWindow::addThemeSwitch(QHBoxLayout *layout)
{
    layout->addWidget(makeCaption(QStringLiteral("Darstellung")));
    m_themeButtons = new QButtonGroup(this);
    for (int index = 0; index < themes().size(); ++index) {
        const Theme &theme = themes().at(index);
        auto *button = new NVO::Button;
        button->setText(theme.title);
        button->setCheckable(true);
        m_themeButtons->addButton(button, index);
        layout->addWidget(button);
        connect(button, &NVO::Button::clicked, this, [this, theme] {
            if (theme.key != m_theme.key)
                Q_EMIT themeRequested(theme.key);
        });
    }
    showTheme();
}

void MainWindow::showTheme()
{
    m_themeButtons->button(themeKeys().indexOf(m_theme.key))->setChecked(true);
}

void MainWindow::focusTheme()
{
    m_themeButtons->checkedButton()->setFocus();
}

void MainWindow::addFontDelta(QHBoxLayout *layout)
{
    const int delta = NVO::Css::instance().fontDelta();
    auto *slider = new QSlider(Qt::Horizontal);
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

void MainWindow::fillPageList()
{
    m_pageList->setObjectName(QStringLiteral("pageList"));
    m_pageList->setAccessibleName(QStringLiteral("Seiten"));
    m_pageList->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    m_pageList->setSizeAdjustPolicy(QAbstractScrollArea::AdjustToContents);
    m_pageList->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Expanding);
    m_pageList->setMinimumWidth(190);
    for (const PageEntry &page : pageEntries())
        m_pageList->addItem(page.title);
}

void MainWindow::setCurrentPage(const QString &key)
{
    m_pageList->setCurrentRow(std::max(pageKeys().indexOf(key), 0));
}

QString MainWindow::currentPage() const
{
    return pageKeys().value(m_pageList->currentRow());
}

void MainWindow::showPage(int index)
{
    if (index < 0)
        return;
    m_title->setText(pageEntries().at(index).title);
    m_pages->setCurrentWidget(pageView(index));
}

/** Pages are made when they are first looked at. */
QScrollArea *MainWindow::pageView(int index)
{
    QScrollArea *&view = m_pageViews[index];
    if (!view) {
        view = new QScrollArea;
        view->setObjectName(QStringLiteral("pageView"));
        view->setWidgetResizable(true);
        view->setWidget(pageEntries().at(index).create());
        m_pages->addWidget(view);
    }
    return view;
}

void MainWindow::fitToPage(QSize minimum)
{
    QScrollArea *view = m_pageViews.value(m_pageList->currentRow());
    view->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    layout()->activate();
    const QSize frame = size() - view->viewport()->size();
    const int pageWidth =
        std::max(minimum.width() - frame.width(), view->widget()->minimumSizeHint().width());
    const QSize page(pageWidth, view->widget()->heightForWidth(pageWidth));
    resize((frame + page).expandedTo(minimum));
}
