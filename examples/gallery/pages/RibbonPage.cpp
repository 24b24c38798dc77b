#include "pages/RibbonPage.h"

#include "GalleryRibbon.h"
#include "Theme.h"
#include "pages/ForcedState.h"
#include "pages/PageSupport.h"

#include <nvo/Label.h>
#include <nvo/Product.h>
#include <nvo/RibbonGroup.h>
#include <nvo/RibbonTab.h>

#include <QAbstractButton>
#include <QEvent>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QVBoxLayout>

namespace {

constexpr QLatin1String bookingTab("Buchen");
constexpr int narrowWidth = 400;
constexpr int middleWidth = 700;
constexpr int wideWidth = 1100;
constexpr int fullWidth = 1600;

QString currentTheme()
{
    for (const Theme &theme : themes()) {
        if (theme.variant == NVO::Product::instance().variant)
            return theme.key;
    }
    return QString();
}

/** A ribbon, at most \a width pixels wide and never wider than the page. */
GalleryRibbon *addSample(QVBoxLayout *section, const QString &caption, int width, const QString &tab)
{
    auto *ribbon = new GalleryRibbon(GalleryRibbon::Use::Sample);
    ribbon->markPage(RibbonPage::key());
    ribbon->markTheme(currentTheme());
    ribbon->setOptions({headerOption, contextOption});
    ribbon->showTabByTitle(tab);
    ribbon->setMinimumWidth(narrowWidth);
    ribbon->setMaximumWidth(width);
    section->addWidget(makeCaption(caption));
    section->addWidget(ribbon);
    return ribbon;
}

QString widthCaption(int width)
{
    return QStringLiteral("Höchstens %1 Pixel").arg(width);
}

void showControlKeytips(const GalleryRibbon *ribbon)
{
    if (auto *tab = qobject_cast<NVO::RibbonTab *>(ribbon->currentWidget()))
        tab->showKeytips();
}

} // namespace

RibbonPage::RibbonPage()
    : m_source(new GalleryRibbon(GalleryRibbon::Use::Sample, this))
{
    m_source->hide();
    addWidths();
    addKeytips();
    addTabs();
    addPopups();
    addStates();
    m_keytipTimer.setSingleShot(true);
    m_keytipTimer.setInterval(0);
    connect(&m_keytipTimer, &QTimer::timeout, this, &RibbonPage::showKeytips);
}

void RibbonPage::addWidths()
{
    QVBoxLayout *section = addSection(
        QStringLiteral("Breite"),
        QStringLiteral("Wird der Platz knapp, klappen die Gruppen von rechts her zu. Eine Gruppe mit "
                       "einem einzigen Befehl bleibt offen."));
    for (const int width : {fullWidth, wideWidth, middleWidth, narrowWidth})
        addSample(section, widthCaption(width), width, QStringLiteral("Start"));
}

void RibbonPage::addKeytips()
{
    QVBoxLayout *section = addSection(
        QStringLiteral("Tastenhinweise"),
        QStringLiteral("Alt allein zeigt die Tasten der Register, ein Buchstabe wählt das Register "
                       "und zeigt die Tasten seiner Befehle. Esc verlässt das Menüband."));
    m_tabKeytips =
        addSample(section, QStringLiteral("Auf den Registern"), wideWidth, QStringLiteral("Start"));
    m_controlKeytips =
        addSample(section, QStringLiteral("Auf den Befehlen"), wideWidth, QStringLiteral("Buchen"));
    m_collapsedKeytips =
        addSample(section, QStringLiteral("Auf zugeklappten Gruppen"), narrowWidth, QStringLiteral("Buchen"));
}

void RibbonPage::addTabs()
{
    QVBoxLayout *section =
        addSection(QStringLiteral("Register"),
                   QStringLiteral("Ein Bild neben den Befehlen, Ankreuzfelder, und ein Register, das mit der "
                                  "Auswahl kommt und geht."));
    for (const QString &tab : {QStringLiteral("Auswertung"), QStringLiteral("Ansicht"), QString(contextTab)})
        addSample(section, tab, middleWidth, tab);
}

void RibbonPage::addPopups()
{
    QVBoxLayout *section =
        addSection(QStringLiteral("Aufgeklappte Gruppen"),
                   QStringLiteral("Was sich unter der Schaltfläche einer zugeklappten Gruppe öffnet."));
    auto *row = new QHBoxLayout;
    row->setSpacing(pageMargin);
    for (const QString &group : {QStringLiteral("Erfassen"), QStringLiteral("Zahlungen")}) {
        NVO::RibbonGroup *popup = m_source->makeGroup(bookingTab, group, true, this);
        popup->setFixedSize(popup->sizeHint());
        row->addLayout(withCaption(popup, group));
    }
    m_popup = m_source->makeGroup(bookingTab, QStringLiteral("Erfassen"), true, m_source);
    m_popupKeytips = new QLabel;
    row->addLayout(withCaption(m_popupKeytips, QStringLiteral("Mit Tastenhinweisen")));
    row->addStretch();
    section->addLayout(row);
}

void RibbonPage::addStates()
{
    auto *grid = new QGridLayout;
    grid->setHorizontalSpacing(pageMargin);
    grid->setVerticalSpacing(cardPadding);
    addSection(QStringLiteral("Zustände"), QStringLiteral("Befehle, Ankreuzfelder und zugeklappte Gruppen."))
        ->addLayout(grid);
    int column = 0;
    for (const ForcedState::State state : {ForcedState::Normal, ForcedState::Hover, ForcedState::Pressed,
                                           ForcedState::Focus, ForcedState::Disabled}) {
        grid->addWidget(makeCaption(ForcedState::title(state)), 0, column, Qt::AlignHCenter);
        const QStringList groups{QStringLiteral("Erfassen"), QStringLiteral("Prüfung"),
                                 QStringLiteral("Zahlungen")};
        for (const QString &name : groups) {
            NVO::RibbonGroup *group = m_source->makeGroup(bookingTab, name, false, this);
            const bool collapsed = name == groups.last();
            group->setSizeMode(collapsed ? NVO::RibbonControl::Small : NVO::RibbonControl::Large, false);
            const auto buttons = group->findChildren<QAbstractButton *>();
            for (QAbstractButton *button : buttons)
                ForcedState::apply(button, state);
            grid->addWidget(group, groups.indexOf(name) + 1, column, Qt::AlignCenter);
        }
        ++column;
    }
}

int RibbonPage::pictureWidth() const
{
    return fullWidth + 2 * (pageMargin + cardPadding + cardBorder);
}

/** Keytips stand on what is visible, and are made anew when that changes. */
bool RibbonPage::event(QEvent *event)
{
    const bool result = Page::event(event);
    if (event->type() == QEvent::Show || event->type() == QEvent::Resize)
        m_keytipTimer.start();
    return result;
}

void RibbonPage::showKeytips()
{
    m_tabKeytips->showKeytips();
    showControlKeytips(m_controlKeytips);
    showControlKeytips(m_collapsedKeytips);
    // Keytips need the ribbon above them, which a part of the page does not have: hence a picture.
    m_popup->resize(m_popup->sizeHint());
    m_popup->showKeytips();
    m_popupKeytips->setPixmap(m_popup->grab());
}
