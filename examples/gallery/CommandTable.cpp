#include "CommandTable.h"

#include "PageRegistry.h"

#include <algorithm>
#include <array>

namespace {

constexpr auto Button = NVO::Action::CommandButton;
constexpr auto CheckBox = NVO::Action::CommandCheckBox;
constexpr auto Label = NVO::Action::CommandLabel;
constexpr auto Small = NVO::RibbonControl::Small;
constexpr auto Large = NVO::RibbonControl::Large;
using Icon = CommandIcon;

struct Row
{
    const char *tab;
    const char *group;
    const char *name;
    const char *text;
    NVO::Action::CommandType type;
    NVO::RibbonControl::SizeMode size;
    const char *key;
    CommandIcon icon;
    const char *page;
    const char *shortcut;
    const char *help;
};

// clang-format off
constexpr std::array rows{
    Row{"Start", "Übersicht", "seite.startseite", "Startseite", Button, Large, "Q", Icon::Modern, "startseite", "", "Kacheln, mit denen die Arbeit beginnt."},
    Row{"Start", "Übersicht", "seite.suche", "Suche", Button, Large, "U", Icon::Page, "suche", "", "Treffer, die sich aufklappen lassen."},
    Row{"Start", "Grundlagen", "seite.farben", "Farben", Button, Large, "F", Icon::Colors, "farben", "", "Die Farben des Themas mit ihren Namen."},
    Row{"Start", "Grundlagen", "seite.schriften", "Schriften", Button, Small, "T", Icon::Fonts, "schriften", "", "Schriftschnitte und Größen."},
    Row{"Start", "Grundlagen", "seite.bilder", "Bilder", Button, Small, "B", Icon::Images, "bilder", "", "Bilder für jede Auflösung."},
    Row{"Start", "Grundlagen", "seite.schatten", "Schatten", Button, Small, "W", Icon::Shadows, "schatten", "", "Schatten von Flächen und Formen."},
    Row{"Start", "Bausteine", "seite.ribbon", "Menüband", Button, Large, "M", Icon::Ribbon, "ribbon", "", "Das Menüband in mehreren Breiten und mit Tastenhinweisen."},
    Row{"Start", "Bausteine", "seite.schaltflaechen", "Schaltflächen", Button, Small, "L", Icon::Buttons, "schaltflaechen", "", "Schaltflächen in allen Zuständen."},
    Row{"Start", "Bausteine", "seite.beschriftungen", "Beschriftungen", Button, Small, "C", Icon::Labels, "beschriftungen", "", "Texte, Verweise und Kürzungen."},
    Row{"Start", "Bausteine", "seite.links", "Links und Symbole", Button, Small, "I", Icon::Page, "links", "", "Links, und Schaltflächen aus einem Symbol."},
    Row{"Start", "Bausteine", "seite.notices", "Hinweise", Button, Small, "H", Icon::Page, "notices", "", "Hinweise mit Symbol, Text und Verweisen."},
    Row{"Start", "Bausteine", "seite.vokabular", "Vokabular", Button, Small, "V", Icon::Journal, "vokabular", "", "Buchungen, Knöpfe, Schalter und Texte aus Widgets von Qt."},
    Row{"Start", "Beleg", "beleg.neu", "Neuer<br>Beleg", Button, Large, "N", Icon::New, "", "Ctrl+N", "Legt einen leeren Beleg im laufenden Monat an."},
    Row{"Start", "Beleg", "beleg.oeffnen", "Öffnen", Button, Large, "O", Icon::Open, "", "Ctrl+O", "Öffnet einen erfassten Beleg."},
    Row{"Start", "Beleg", "beleg.speichern", "Speichern", Button, Large, "S", Icon::Save, "", "Ctrl+S", "Speichert den Beleg."},
    Row{"Start", "Beleg", "beleg.drucken", "Drucken", Button, Large, "D", Icon::Print, "", "Ctrl+P", "Druckt den Beleg mit allen Anlagen."},
    Row{"Start", "Zwischenablage", "ablage.einfuegen", "Einfügen", Button, Large, "E", Icon::Paste, "", "", "Fügt den Inhalt der Zwischenablage ein."},
    Row{"Start", "Zwischenablage", "ablage.ausschneiden", "Ausschneiden", Button, Small, "X", Icon::Cut, "", "", "Legt die Auswahl in die Zwischenablage und entfernt sie."},
    Row{"Start", "Zwischenablage", "ablage.kopieren", "Kopieren", Button, Small, "K", Icon::Copy, "", "", "Legt eine Kopie der Auswahl in die Zwischenablage."},

    Row{"Buchen", "Erfassen", "buchen.rechnung", "Rechnung<br>erfassen", Button, Large, "R", Icon::Invoice, "rechnung", "Ctrl+R", "Erfasst eine Ausgangsrechnung."},
    Row{"Buchen", "Erfassen", "buchen.gutschrift", "Gutschrift", Button, Small, "G", Icon::CreditNote, "", "", "Erfasst eine Gutschrift zu einer Rechnung."},
    Row{"Buchen", "Erfassen", "buchen.kasse", "Kassenbeleg", Button, Small, "K", Icon::Cash, "", "", "Bucht eine Einnahme oder Ausgabe der Kasse."},
    Row{"Buchen", "Erfassen", "buchen.lastschrift", "Lastschrift", Button, Small, "L", Icon::Transfer, "", "", "Zieht offene Beträge ein."},
    Row{"Buchen", "Zahlungen", "zahlung.vorschlag", "Zahlungs-<br>vorschlag", Button, Large, "Z", Icon::Proposal, "", "", "Stellt zusammen, was bis zum Stichtag fällig ist."},
    Row{"Buchen", "Zahlungen", "zahlung.ueberweisung", "Überweisung", Button, Small, "U", Icon::Transfer, "", "", "Erstellt eine einzelne Überweisung."},
    Row{"Buchen", "Zahlungen", "zahlung.abgleich", "Bankabgleich", Button, Small, "B", Icon::Bank, "", "F8", "Gleicht Kontoauszüge mit offenen Posten ab."},
    Row{"Buchen", "Prüfung", "pruefung.steuer", "Steuerschlüssel prüfen", CheckBox, Small, "S", Icon::Check, "", "", "Warnt bei einem Steuersatz, der nicht zum Konto passt."},
    Row{"Buchen", "Prüfung", "pruefung.doppelt", "Doppelte Belege melden", CheckBox, Small, "D", Icon::None, "", "", "Meldet Belegnummern, die es schon gibt."},
    Row{"Buchen", "Prüfung", "pruefung.zeitraum", "Zeitraum: April 2026", Label, Small, "", Icon::None, "", "", "Der Monat, in den gebucht wird."},
    Row{"Buchen", "Abschluss", "abschluss.fest", "Monat fest-<br>schreiben", Button, Large, "F", Icon::Lock, "", "", "Schließt den Monat ab. Danach sind nur noch Korrekturen möglich."},

    Row{"Auswertung", "Berichte", "bericht.bwa", "BWA", Button, Large, "W", Icon::Chart, "", "F9", "Betriebswirtschaftliche Auswertung des Monats."},
    Row{"Auswertung", "Berichte", "bericht.bilanz", "Bilanz", Button, Small, "B", Icon::Balance, "", "", "Bilanz zum Stichtag."},
    Row{"Auswertung", "Berichte", "bericht.guv", "Gewinn und Verlust", Button, Small, "G", Icon::Profit, "", "", "Gewinn- und Verlustrechnung des Jahres."},
    Row{"Auswertung", "Berichte", "bericht.susa", "Summen und Salden", Button, Small, "S", Icon::Totals, "", "", "Summen und Salden aller Konten."},
    Row{"Auswertung", "Listen", "liste.posten", "Offene<br>Posten", Button, Large, "O", Icon::OpenItems, "", "", "Offene Posten nach Fälligkeit."},
    Row{"Auswertung", "Listen", "liste.journal", "Journal", Button, Small, "J", Icon::Journal, "", "", "Alle Buchungen in der Reihenfolge ihrer Erfassung."},
    Row{"Auswertung", "Listen", "liste.mahnungen", "Mahnliste", Button, Small, "M", Icon::Reminder, "", "", "Kunden, die eine Mahnung bekommen."},
    Row{"Auswertung", "Ausgabe", "ausgabe.datei", "Export", Button, Small, "X", Icon::Export, "", "", "Schreibt die Auswertung in eine Datei."},
    Row{"Auswertung", "Ausgabe", "ausgabe.drucken", "Drucken", Button, Small, "D", Icon::Print, "", "", "Druckt die Auswertung."},

    Row{"Ansicht", "Darstellung", "darstellung.classic", "Klassisch", Button, Large, "K", Icon::Classic, "", "", "Das klassische Thema."},
    Row{"Ansicht", "Darstellung", "darstellung.modern", "Modern", Button, Large, "M", Icon::Modern, "", "", "Das moderne Thema."},
    Row{"Ansicht", "Schrift", "schrift.groesser", "Größer", Button, Small, "G", Icon::Larger, "", "Ctrl++", "Alle Schriften um einen Pixel größer."},
    Row{"Ansicht", "Schrift", "schrift.kleiner", "Kleiner", Button, Small, "L", Icon::Smaller, "", "Ctrl+-", "Alle Schriften um einen Pixel kleiner."},
    Row{"Ansicht", "Schrift", "schrift.normal", "Zurücksetzen", Button, Small, "Z", Icon::Reset, "", "Ctrl+0", "Alle Schriften in der Größe des Themas."},
    Row{"Ansicht", "Einblenden", "ansicht.kontext", "Register Kontext", CheckBox, Small, "R", Icon::Options, "", "", "Zeigt ein Register, das zur Auswahl gehört."},
    Row{"Ansicht", "Einblenden", "ansicht.kopfzeile", "Kopfzeile", CheckBox, Small, "P", Icon::None, "", "", "Zeigt den Titel über der Seite."},
    Row{"Ansicht", "Einblenden", "ansicht.namen", "Befehlsnamen", CheckBox, Small, "B", Icon::None, "", "", "Nennt in den Hinweisen die Namen der Befehle."},

    Row{"Hilfe", "Nachschlagen", "hilfe.handbuch", "Handbuch", Button, Large, "H", Icon::Manual, "", "F1", "Öffnet das Handbuch."},
    Row{"Hilfe", "Nachschlagen", "hilfe.neues", "Was ist neu?", Button, Small, "W", Icon::News, "", "", "Die Neuerungen dieser Fassung."},
    Row{"Hilfe", "Nachschlagen", "hilfe.tasten", "Tastenkürzel", Button, Small, "T", Icon::Keyboard, "", "", "Alle Tastenkürzel auf einen Blick."},
    Row{"Hilfe", "Produkt", "hilfe.info", "Über die<br>Galerie", Button, Large, "I", Icon::Info, "", "", "Was diese Anwendung zeigt."},

    Row{"Kontext", "Beleg", "kontext.bearbeiten", "Bearbeiten", Button, Large, "B", Icon::Edit, "", "F2", "Ändert den gewählten Beleg."},
    Row{"Kontext", "Beleg", "kontext.duplizieren", "Duplizieren", Button, Small, "D", Icon::Copy, "", "", "Legt eine Kopie des Belegs an."},
    Row{"Kontext", "Beleg", "kontext.stornieren", "Stornieren", Button, Small, "O", Icon::Cancel, "", "", "Nimmt den Beleg mit einer Gegenbuchung zurück."},
    Row{"Kontext", "Anlagen", "kontext.anhaengen", "Anhängen", Button, Large, "A", Icon::Attach, "", "", "Hängt dem Beleg eine Datei an."},
    Row{"Kontext", "Anlagen", "kontext.scannen", "Scannen", Button, Small, "C", Icon::Scan, "", "", "Liest eine Anlage ein."},
    Row{"Kontext", "Anlagen", "kontext.entfernen", "Entfernen", Button, Small, "E", Icon::Remove, "", "", "Entfernt die gewählte Anlage."},

    Row{"Bausteine", "Eingabe", "seite.eingabefelder", "Eingabefelder", Button, Large, "E", Icon::Edit, "eingabefelder", "", "Felder für Texte, Beträge und Daten."},
    Row{"Bausteine", "Eingabe", "seite.comboboxes", "Auswahllisten", Button, Small, "W", Icon::Page, "comboboxes", "", "Auswahllisten in zwei Größen."},
    Row{"Bausteine", "Eingabe", "seite.schalter", "Schalter", Button, Small, "S", Icon::Page, "schalter", "", "Schalter mit zwei Seiten, beschriftet oder mit Symbolen."},
    Row{"Bausteine", "Eingabe", "seite.overviewcombo", "Große Auswahl", Button, Small, "U", Icon::Page, "overviewcombo", "", "Eine Auswahl mit mehrzeiligen Einträgen."},
    Row{"Bausteine", "Eingabe", "seite.suggestions", "Vorschläge", Button, Small, "V", Icon::Page, "suggestions", "", "Vorschläge beim Tippen."},
    Row{"Bausteine", "Behälter", "seite.accordion", "Akkordeon", Button, Small, "A", Icon::Page, "accordion", "", "Teile, die sich auf- und zuklappen lassen."},
    Row{"Bausteine", "Behälter", "seite.groups", "Gruppen", Button, Small, "G", Icon::Page, "groups", "", "Gruppen mit Legende und Zeilen."},
    Row{"Bausteine", "Behälter", "seite.scroll", "Rollen", Button, Small, "R", Icon::Page, "scroll", "", "Rollbereiche, Bildlaufleisten und Pfeile."},
    Row{"Bausteine", "Behälter", "seite.longlist", "Lange Liste", Button, Small, "L", Icon::Page, "longlist", "", "Eine Million Buchungen."},
    Row{"Bausteine", "Behälter", "seite.flow", "Fluss", Button, Small, "F", Icon::Page, "flow", "", "Eine Anordnung, die fließt wie Text."},
    Row{"Bausteine", "Behälter", "seite.tabs", "Reiter", Button, Small, "T", Icon::Page, "tabs", "", "Reiter und Segmente mit Meldungen."},
    Row{"Bausteine", "Befehle", "seite.werkzeugleisten", "Werkzeug-<br>leisten", Button, Large, "Z", Icon::Options, "werkzeugleisten", "", "Leisten mit großen Schaltflächen und Zählern."},
    Row{"Bausteine", "Fenster", "seite.dialogs", "Dialoge", Button, Small, "D", Icon::Page, "dialogs", "", "Dialoge im eigenen Rahmen."},
    Row{"Bausteine", "Fenster", "seite.messages", "Meldungen", Button, Small, "M", Icon::Page, "messages", "", "Meldungen und Rückfragen."},
    Row{"Bausteine", "Fenster", "seite.flyouts", "Flyouts", Button, Small, "Y", Icon::Page, "flyouts", "", "Fenster mit Zeiger, die ihrem Ziel folgen."},
};
// clang-format on

CommandEntry fromRow(const Row &row)
{
    const auto text = [](const char *utf8) { return QString::fromUtf8(utf8); };
    return {text(row.tab), text(row.group), text(row.name), text(row.text),     row.type,      row.size,
            text(row.key), row.icon,        text(row.page), text(row.shortcut), text(row.help)};
}

/** A small button for \a page in the group of the row before; its key is a number. */
CommandEntry commandFor(const PageEntry &page, int number, const CommandEntry &neighbour)
{
    CommandEntry entry = neighbour;
    entry.name = QStringLiteral("seite.") + page.key;
    entry.text = page.title;
    entry.size = Small;
    entry.key = number < 10 ? QString::number(number) : QString();
    entry.icon = Icon::Page;
    entry.page = page.key;
    entry.help = QStringLiteral("Zeigt die Seite „%1“.").arg(page.title);
    return entry;
}

bool isPageCommand(const CommandEntry &entry)
{
    return !entry.page.isEmpty();
}

/** A page that is registered without a row here still gets its command, behind the others. */
void addUnknownPages(QVector<CommandEntry> &entries)
{
    int number = 0;
    for (const PageEntry &page : pageEntries()) {
        const bool known = std::any_of(entries.begin(), entries.end(),
                                       [&page](const CommandEntry &entry) { return entry.page == page.key; });
        if (known)
            continue;
        const auto last = std::find_if(entries.rbegin(), entries.rend(), isPageCommand).base();
        const CommandEntry entry = commandFor(page, ++number, *(last - 1));
        entries.insert(last, entry);
    }
}

QVector<CommandEntry> makeEntries()
{
    QVector<CommandEntry> entries;
    for (const Row &row : rows)
        entries.append(fromRow(row));
    addUnknownPages(entries);
    return entries;
}

} // namespace

QString CommandEntry::plainText() const
{
    QString plain = text;
    plain.remove(QStringLiteral("-<br>"));
    return plain.replace(QStringLiteral("<br>"), QStringLiteral(" "));
}

const QVector<TabEntry> &tabEntries()
{
    static const QVector<TabEntry> entries{{QStringLiteral("Start"), QStringLiteral("S")},
                                           {QStringLiteral("Bausteine"), QStringLiteral("T")},
                                           {QStringLiteral("Buchen"), QStringLiteral("B")},
                                           {QStringLiteral("Auswertung"), QStringLiteral("A")},
                                           {QStringLiteral("Ansicht"), QStringLiteral("N")},
                                           {QStringLiteral("Hilfe"), QStringLiteral("H")},
                                           {contextTab, QStringLiteral("K")}};
    return entries;
}

const QVector<CommandEntry> &commandEntries()
{
    static const QVector<CommandEntry> entries = makeEntries();
    return entries;
}
