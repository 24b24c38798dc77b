#include "pages/RibbonPage.h"

#include "GalleryRibbon.h"
#include "Theme.h"
#include "pages/PageSupport.h"

#include <nvo/Label.h>
#include <nvo/Product.h>
#include <nvo/RibbonGroup.h>
#include <nvo/RibbonTab.h>

#include <QEvent>
#include <QHBoxLayout>
#include <QVBoxLayout>

namespace {

constexpr int narrowWidth = 400;
constexpr int middleWidth = 700;
constexpr int wideWidth = 1100;

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
{
    addWidths();
    addKeytips();
    addTabs();
    addPopups();
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
    addSample(section, QStringLiteral("So breit wie die Seite"), QWIDGETSIZE_MAX, QStringLiteral("Start"));
    for (const int width : {wideWidth, middleWidth, narrowWidth})
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
    auto *source = new GalleryRibbon(GalleryRibbon::Use::Sample, this);
    source->hide();
    auto *row = new QHBoxLayout;
    row->setSpacing(pageMargin);
    for (const QString &group : {QStringLiteral("Erfassen"), QStringLiteral("Zahlungen")}) {
        NVO::RibbonGroup *popup = source->makePopup(QStringLiteral("Buchen"), group, this);
        popup->setFixedSize(popup->sizeHint());
        row->addLayout(withCaption(popup, group));
    }
    row->addStretch();
    section->addLayout(row);
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
}
