#include "pages/SearchPage.h"

#include "pages/ForcedState.h"
#include "pages/PageSupport.h"

#include <nvo/BottomSideButton.h>
#include <nvo/ExpandingOverviewButton.h>
#include <nvo/ExtraSearchResultButton.h>
#include <nvo/Label.h>
#include <nvo/LineEdit.h>

#include <QGridLayout>
#include <QMetaEnum>
#include <QPropertyAnimation>
#include <QVBoxLayout>

#include <algorithm>
#include <array>

namespace {

using NVO::BottomSideButton;
using NVO::ExpandingOverviewButton;
using Path = ExpandingOverviewButton::Path;
using Style = ExpandingOverviewButton::ButtonStyle;

constexpr Style Hits = ExpandingOverviewButton::SearchHits;
constexpr Style Masks = ExpandingOverviewButton::InputMasks;
constexpr Style Matching = ExpandingOverviewButton::MatchingInputMasks;
constexpr int gap = 12;
constexpr int fieldWidth = 420;
constexpr int columnWidth = 542;
constexpr int wholePageWidth = 1180;
constexpr int allHits = 48;

/** A target: its title, its path from the outside in, and an icon that says how it is. */
struct Target
{
    const char *title;
    const char *path;
    const char *state;
};

struct Hit
{
    const char *icon;
    const char *title;
    const char *text;
    Style style;
    QVector<Target> targets;
};

QVector<Hit> makeHits()
{
    return {
        {"tile_clients",
         "Bäckerei Sommer GmbH",
         "Mandant 10412, Fürth, Wirtschaftsjahr 2026",
         Hits,
         {{"Stammdaten", "Mandanten > Bäckerei Sommer GmbH > Stammdaten", ""},
          {"Offene Posten", "Rechnungswesen > Debitoren > Bäckerei Sommer GmbH > Offene Posten",
           "warning_16"},
          {"Lohnabrechnung April", "Lohn und Gehalt > Abrechnung > April 2026 > Bäckerei Sommer GmbH",
           "success_16"}}},
        {"tile_receipts",
         "Rechnung RE-2026-0417",
         "Großküche Lang e. K., 1.482,10 €, fällig am 2. Mai 2026",
         Hits,
         {{"", "Rechnungswesen > Buchführung > Ausgangsrechnungen > April 2026", "warning_16"}}},
        {"tile_accounting",
         "Buchung erfassen",
         "Geschäftsvorfälle in den laufenden Stapel buchen",
         Masks,
         {{"Belege buchen", "Rechnungswesen > Buchführung > Buchungsstapel", ""},
          {"Kassenbuch", "Rechnungswesen > Kasse > Erfassen", ""},
          {"Wiederkehrende Buchungen", "Rechnungswesen > Buchführung > Vorlagen", ""}}},
        {"tile_tax",
         "Umsatzsteuer-Voranmeldung",
         "Formulare, deren Felder zu „Sommer“ passen",
         Matching,
         {{"Voranmeldung April 2026", "Steuern > Umsatzsteuer > Voranmeldungen > 2026", "warning_16"},
          {"Dauerfristverlängerung", "Steuern > Umsatzsteuer > Anträge", "success_16"}}},
        {"tile_bank",
         "Kontoauszug 17/2026",
         "Sparkasse Fürth, 23 Umsätze, davon 4 ohne Zuordnung",
         Hits,
         {{"", "Bank > Kontoauszüge > Sparkasse Fürth > 2026", ""}}},
        {"tile_payroll",
         "Sommer, Katharina",
         "Personalnummer 00217, Verkauf, eingetreten am 1. März 2019",
         Hits,
         {{"Personalstamm", "Lohn und Gehalt > Beschäftigte > Sommer, Katharina", ""},
          {"Urlaubskonto", "Lohn und Gehalt > Zeiten > Urlaub > Sommer, Katharina", ""}}},
        {"tile_receipts",
         "Gutschrift GS-2026-0031",
         "Hofladen Brandt, 96,40 €, ausgeglichen",
         Hits,
         {{"", "Rechnungswesen > Buchführung > Gutschriften > April 2026", "success_16"}}},
        {"tile_clients",
         "Großküche Lang e. K.",
         "Mandant 10388, Zirndorf, Ansprechpartnerin Frau Lang",
         Hits,
         {{"", "Mandanten > Großküche Lang e. K. > Stammdaten", ""}}},
        {"tile_accounting",
         "Zahlungsvorschlag",
         "Fällige Rechnungen zusammenstellen und zur Zahlung freigeben",
         Masks,
         {{"", "Rechnungswesen > Zahlungen > Vorschlag", ""}}},
        {"tile_accounting",
         "Konto 4400 Erlöse 19 % USt",
         "Saldo 184.270,55 €, zuletzt bebucht am 17. April 2026",
         Hits,
         {{"Kontoblatt", "Rechnungswesen > Konten > 4400 > Kontoblatt", ""},
          {"Summen und Salden", "Rechnungswesen > Auswertungen > Summen und Salden", ""}}},
        {"tile_tax",
         "Bescheid Gewerbesteuer 2024",
         "Stadt Fürth, eingegangen am 9. April 2026",
         Hits,
         {{"", "Steuern > Gewerbesteuer > Bescheide > 2024", "warning_16"}}},
        {"tile_payroll",
         "Lohnsteuer-Anmeldung",
         "Formulare, deren Felder zu „April“ passen",
         Matching,
         {{"Anmeldung April 2026", "Lohn und Gehalt > Meldungen > Lohnsteuer > 2026", ""},
          {"Berichtigte Anmeldung", "Lohn und Gehalt > Meldungen > Lohnsteuer > Berichtigungen", ""}}},
        {"tile_receipts",
         "Rechnung RE-2026-0398",
         "Hofladen Brandt, 312,00 €, bezahlt am 14. April 2026",
         Hits,
         {{"", "Rechnungswesen > Buchführung > Ausgangsrechnungen > April 2026", "success_16"}}},
        {"tile_clients",
         "Hofladen Brandt",
         "Mandant 10455, Langenzenn, Buchführung im eigenen Haus",
         Hits,
         {{"Stammdaten", "Mandanten > Hofladen Brandt > Stammdaten", ""},
          {"Vereinbarungen", "Mandanten > Hofladen Brandt > Verträge > Vereinbarungen", ""}}},
        {"tile_bank",
         "Überweisung erfassen",
         "Einzelne Überweisung mit Vorlage oder aus einer Rechnung",
         Masks,
         {{"", "Bank > Zahlungsverkehr > Überweisung", ""}}},
        {"tile_bank",
         "Lastschriftmandate",
         "37 gültige Mandate, 2 laufen im Mai ab",
         Hits,
         {{"", "Bank > Zahlungsverkehr > Mandate", "warning_16"}}},
        {"tile_tax",
         "Jahresabschluss 2025",
         "Bilanz und Anhang sind aufgestellt, die Freigabe ist offen",
         Hits,
         {{"Bilanz", "Steuern > Jahresabschluss > 2025 > Bilanz", ""},
          {"Anhang", "Steuern > Jahresabschluss > 2025 > Anhang", ""},
          {"Offenlegung", "Steuern > Jahresabschluss > 2025 > Offenlegung", "warning_16"}}},
        {"tile_accounting",
         "Anlagenspiegel",
         "Zugänge, Abgänge und Abschreibungen des Jahres 2026",
         Hits,
         {{"", "Rechnungswesen > Anlagen > Anlagenspiegel > 2026", ""}}},
        {"tile_payroll",
         "Brandt, Sabine",
         "Personalnummer 00184, Buchhaltung, Teilzeit 30 Stunden",
         Hits,
         {{"", "Lohn und Gehalt > Beschäftigte > Brandt, Sabine", ""}}},
        {"tile_receipts",
         "Beleg zuordnen",
         "Eingegangene Belege prüfen und einer Buchung zuordnen",
         Masks,
         {{"Posteingang", "Belege > Eingang > Zuordnen", ""},
          {"Belege ohne Buchung", "Belege > Prüfung > Ohne Buchung", "warning_16"}}},
        {"tile_accounting",
         "Mahnlauf April",
         "6 Kunden, zusammen 4.218,07 €",
         Hits,
         {{"", "Rechnungswesen > Debitoren > Mahnungen > April 2026", ""}}},
        {"tile_clients",
         "Mandant anlegen",
         "Stammdaten, Steuernummern und Bankverbindung erfassen",
         Masks,
         {{"", "Mandanten > Neu", ""}}},
        {"tile_tax",
         "Zusammenfassende Meldung",
         "Innergemeinschaftliche Lieferungen im ersten Quartal",
         Hits,
         {{"", "Steuern > Umsatzsteuer > Zusammenfassende Meldungen > 2026", "success_16"}}},
        {"tile_accounting",
         "Kostenstelle 300 Backstube",
         "Plan und Ist der Monate Januar bis April",
         Hits,
         {{"", "Rechnungswesen > Kostenrechnung > Kostenstellen > 300", ""}}},
    };
}

QStringList elements(const char *path)
{
    return QString::fromUtf8(path).split(QStringLiteral(" > "));
}

Path toPath(const Target &target)
{
    const QStringList names = elements(target.path);
    return {names.join(QLatin1Char('/')), names};
}

QPixmap optionalImage(const char *name)
{
    return *name ? themeImage(QLatin1String(name)) : QPixmap();
}

ExpandingOverviewButton *makeTile(const Hit &hit)
{
    auto *tile = new ExpandingOverviewButton;
    tile->setIcon(themeImage(QLatin1String(hit.icon)));
    tile->setTitle(QString::fromUtf8(hit.title));
    tile->setText(QString::fromUtf8(hit.text));
    tile->setButtonStyle(hit.style);
    if (hit.targets.size() == 1) {
        tile->setPath(toPath(hit.targets.first()));
        tile->setIconState(optionalImage(hit.targets.first().state));
        return tile;
    }
    QVector<QPair<QString, Path>> paths;
    for (const Target &target : hit.targets)
        paths.append({QString::fromUtf8(target.title), toPath(target)});
    int row = 0;
    for (BottomSideButton *button : tile->setPaths(paths)) {
        button->setIconState(optionalImage(hit.targets.at(row++).state));
        if (hit.style == Matching)
            button->setIconLeft(themeImage(QStringLiteral("checkmark_16")));
    }
    return tile;
}

/** The text of the tile and of its targets, as a user would type it. */
QString wordsOf(const Hit &hit)
{
    QStringList words{QString::fromUtf8(hit.title), QString::fromUtf8(hit.text)};
    for (const Target &target : hit.targets)
        words << QString::fromUtf8(target.title) << QString::fromUtf8(target.path);
    return words.join(QLatin1Char('\n')).toCaseFolded();
}

/** The sections of a tile, in the order in which the keyboard reaches them. */
QList<NVO::OverviewButtonBase *> sectionsOf(QWidget *tile)
{
    return tile->findChildren<NVO::OverviewButtonBase *>();
}

/** Unfolds \a tile so far as after \a share of the time that it takes. */
void unfold(QWidget *tile, double share)
{
    sectionsOf(tile).first()->click();
    for (QPropertyAnimation *animation : tile->findChildren<QPropertyAnimation *>()) {
        animation->setCurrentTime(int(animation->duration() * share));
        if (share < 1)
            animation->pause();
    }
}

void addCaptioned(QGridLayout *grid, int row, int column, QWidget *widget, const QString &caption)
{
    auto *layout = new QVBoxLayout;
    layout->setSpacing(4);
    layout->addWidget(widget);
    layout->addWidget(makeCaption(caption));
    layout->addStretch();
    grid->addLayout(layout, row, column);
}

QGridLayout *addGrid(QVBoxLayout *section)
{
    auto *grid = new QGridLayout;
    grid->setSpacing(gap);
    grid->setColumnMinimumWidth(0, columnWidth);
    grid->setColumnMinimumWidth(1, columnWidth);
    section->addLayout(grid);
    return grid;
}

} // namespace

SearchPage::SearchPage()
    : m_field(new NVO::LineEdit)
    , m_count(makeCaption(QString(), NVO::Font::DEFAULT))
    , m_chosen(makeLabel(QStringLiteral("Noch nichts gewählt.")))
    , m_all(new NVO::ExtraSearchResultButton)
{
    addResults();
    addStyles();
    addStates();
}

int SearchPage::pictureWidth() const
{
    return wholePageWidth;
}

void SearchPage::addResults()
{
    QVBoxLayout *section =
        addSection(QStringLiteral("Suche"),
                   QStringLiteral("Ein Treffer führt zu seinem Ziel oder klappt seine Ziele auf. Tabulator, "
                                  "Pfeiltasten und Leertaste bedienen alles."));
    m_field->setPlaceholderText(QStringLiteral("Mandanten, Belege und Masken"));
    m_field->setAccessibleName(title());
    m_field->setFixedWidth(fieldWidth);
    auto *row = new QHBoxLayout;
    row->setSpacing(gap);
    row->addWidget(m_field);
    row->addWidget(m_count, 1);
    section->addLayout(row);
    m_chosen->setWordWrap(true);
    section->addWidget(m_chosen);

    for (const Hit &hit : makeHits()) {
        ExpandingOverviewButton *tile = makeTile(hit);
        connect(tile, &ExpandingOverviewButton::clicked, this,
                [this](const Path &path) { showChosen(path.elements.join(QStringLiteral(" › "))); });
        m_results.append({tile, wordsOf(hit)});
        section->addWidget(tile);
    }
    section->addWidget(m_all);
    unfold(m_results.first().tile, 1);
    connect(m_all, &QAbstractButton::clicked, this, [this] { showChosen(m_all->text()); });
    connect(m_field, &QLineEdit::textChanged, this, &SearchPage::filter);
    filter(QString());
}

/** The tiles stay what they are: they are only shown or hidden. */
void SearchPage::filter(const QString &text)
{
    const QString wanted = text.trimmed().toCaseFolded();
    int count = 0;
    for (const Result &result : qAsConst(m_results)) {
        const bool found = result.words.contains(wanted);
        result.tile->setVisible(found);
        count += found ? 1 : 0;
    }
    m_count->setText(count == 0   ? QStringLiteral("Keine Treffer")
                     : count == 1 ? QStringLiteral("1 Treffer gezeigt")
                                  : QStringLiteral("%1 Treffer gezeigt").arg(count));
    const bool all = wanted.isEmpty();
    m_all->setText(all ? QStringLiteral("Alle %1 Treffer anzeigen").arg(allHits)
                       : QStringLiteral("Auch in abgeschlossenen Jahren suchen"));
}

void SearchPage::showChosen(const QString &path)
{
    m_chosen->setText(QStringLiteral("Zuletzt gewählt: <b>%1</b>").arg(path.toHtmlEscaped()));
}

void SearchPage::addStyles()
{
    QGridLayout *grid = addGrid(
        addSection(QStringLiteral("Drei Arten von Zielen"),
                   QStringLiteral("Treffer, Eingabemasken und passende Eingabemasken, zu und offen.")));
    const QVector<Hit> hits = makeHits();
    int row = 0;
    for (const Style style : {Hits, Masks, Matching}) {
        const auto *const found = std::find_if(hits.begin(), hits.end(), [style](const Hit &hit) {
            return hit.style == style && hit.targets.size() > 1;
        });
        const QString name = QLatin1String(QMetaEnum::fromType<Style>().valueToKey(style));
        addCaptioned(grid, row, 0, makeTile(*found), name + QStringLiteral(", zu"));
        ExpandingOverviewButton *open = makeTile(*found);
        unfold(open, 1);
        addCaptioned(grid, row++, 1, open, name + QStringLiteral(", offen"));
    }
}

void SearchPage::addStates()
{
    QGridLayout *grid = addGrid(addSection(
        QStringLiteral("Zustände"), QStringLiteral("Der Rahmen leuchtet um den Teil, der den Fokus hat.")));
    const QVector<Hit> hits = makeHits();
    int place = 0;
    const auto add = [grid, &place](QWidget *tile, const QString &caption) {
        addCaptioned(grid, place / 2, place % 2, tile, caption);
        ++place;
    };
    const auto addState = [&](int hit, int part, ForcedState::State state, const QString &where) {
        ExpandingOverviewButton *tile = makeTile(hits.at(hit));
        if (part >= 0)
            unfold(tile, 1);
        if (state == ForcedState::Disabled)
            tile->setEnabled(false);
        else
            ForcedState::apply(sectionsOf(tile).at(std::max(part, 0)), state);
        add(tile, ForcedState::title(state) + where);
    };
    constexpr int single = 1;
    constexpr int several = 0;
    const std::array<ForcedState::State, 4> states{ForcedState::Hover, ForcedState::Pressed,
                                                   ForcedState::Focus, ForcedState::Disabled};
    for (const ForcedState::State state : states)
        addState(single, -1, state, QStringLiteral(", ein Ziel"));
    for (const ForcedState::State state : states)
        addState(several, 0, state, QStringLiteral(", offen"));
    for (const ForcedState::State state : {ForcedState::Hover, ForcedState::Pressed, ForcedState::Focus}) {
        addState(several, 2, state, QStringLiteral(", mittlere Zeile"));
        addState(several, 3, state, QStringLiteral(", letzte Zeile"));
    }
    ExpandingOverviewButton *half = makeTile(hits.at(several));
    unfold(half, 0.5);
    add(half, QStringLiteral("Halb offen"));
    auto *extras = new QWidget;
    auto *column = new QVBoxLayout(extras);
    column->setContentsMargins(0, 0, 0, 0);
    for (const ForcedState::State state : states) {
        auto *extra = new NVO::ExtraSearchResultButton;
        extra->setText(ForcedState::title(state));
        ForcedState::apply(extra, state);
        column->addWidget(extra);
    }
    add(extras, QStringLiteral("Weitere Treffer"));
}
