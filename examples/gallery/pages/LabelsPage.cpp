#include "pages/LabelsPage.h"

#include "pages/PageSupport.h"

#include <nvo/Label.h>

#include <QEvent>
#include <QFrame>
#include <QGridLayout>
#include <QSplitter>
#include <QVBoxLayout>

namespace {

constexpr int framePadding = 6;
constexpr int oneLineHeight = 44;

QString shortText()
{
    return QStringLiteral("Rechnung <b>2026-0417</b> an Weber Maschinenbau GmbH");
}

QString longText()
{
    return QStringLiteral(
        "Der Zeitraum April 2026 ist <b>festgeschrieben</b>. Buchungen mit einem Belegdatum in diesem "
        "Zeitraum werden als Korrektur im laufenden Monat erfasst und im Journal mit einem Verweis auf "
        "den ursprünglichen Beleg versehen.");
}

NVO::Label *makeElidedLabel(const QString &text)
{
    NVO::Label *label = makeLabel(text);
    label->enableElide(true);
    label->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    label->setMinimumWidth(20);
    return label;
}

/** \a label in a frame that shows where it ends. */
QFrame *framed(NVO::Label *label)
{
    QFrame *frame = makeGround(Ground::Outline);
    auto *layout = new QVBoxLayout(frame);
    layout->setContentsMargins(framePadding, framePadding, framePadding, framePadding);
    layout->addWidget(label);
    return frame;
}

QString elisionText(bool elided)
{
    return elided ? QStringLiteral("gekürzt: <b>ja</b>") : QStringLiteral("gekürzt: <b>nein</b>");
}

/** A text that says whether \a label is cut. */
NVO::Label *makeElisionState(NVO::Label *label)
{
    NVO::Label *state = makeCaption(elisionText(label->isElided()));
    // Queued: the signal comes while the label is painted.
    QObject::connect(
        label, &NVO::Label::elisionChanged, state,
        [state](bool elided) { state->setText(elisionText(elided)); }, Qt::QueuedConnection);
    return state;
}

} // namespace

LabelsPage::LabelsPage()
{
    addRichText();
    addLinks();
    addOneLine();
    addSeveralLines();
    addLive();
    addSizes();
}

void LabelsPage::addRichText()
{
    auto *grid = new QGridLayout;
    grid->setHorizontalSpacing(32);
    grid->setColumnStretch(0, 1);
    grid->setColumnStretch(1, 1);
    NVO::Label *headings = makeLabel(
        QStringLiteral("<h1>Jahresabschluss 2025</h1><h2>Bilanz</h2><h3>Aktiva</h3><h4>Anlagevermögen</h4>"
                       "Sachanlagen und Finanzanlagen"));
    NVO::Label *text = makeLabel(
        QStringLiteral("Der Beleg <b>ER-2026-0093</b> ist <strong>noch nicht</strong> bezahlt.<br>"
                       "<i>Skonto bis 24. April</i>, danach <u>ohne Abzug</u>.<br><br>"
                       "Netto &lpar;19 % USt&rpar;: 100,00 &euro; &ndash; brutto: 119,00 &euro;<br>"
                       "M&uuml;ller &amp; S&ouml;hne KG, Stra&szlig;e des Handwerks 5"
                       "<ul><li>Beleg prüfen</li><li>Konto zuordnen</li><li>Zahlung freigeben</li></ul>"));
    for (NVO::Label *label : {headings, text})
        label->setWordWrap(true);
    grid->addWidget(headings, 0, 0, Qt::AlignTop);
    grid->addWidget(text, 0, 1, Qt::AlignTop);
    addSection(QStringLiteral("Formatierter Text"),
               QStringLiteral("Fett und Überschriften erscheinen im halbfetten Schnitt der Hausschrift."))
        ->addLayout(grid);
}

void LabelsPage::addLinks()
{
    QVBoxLayout *section =
        addSection(QStringLiteral("Verweise"),
                   QStringLiteral("Ein Klick wird gemeldet; mit der Tastatur erreicht man die Verweise "
                                  "mit Tabulator und Eingabetaste."));
    NVO::Label *links = makeLabel(QStringLiteral(
        "Zur Buchung gehören der <a href=\"beleg:ER-2026-0093\">Beleg ER-2026-0093</a>, das Konto "
        "<a href=\"konto:4930\">4930 Bürobedarf</a> und der Lieferant "
        "<a href=\"lieferant:70012\">Papier Lang e. K.</a>"));
    links->setWordWrap(true);
    links->setTextInteractionFlags(Qt::LinksAccessibleByMouse | Qt::LinksAccessibleByKeyboard);
    NVO::Label *answer = makeCaption(QStringLiteral("Noch kein Verweis gewählt."), NVO::Font::DEFAULT);
    connect(links, &NVO::Label::linkActivated, answer, [answer](const QString &link) {
        answer->setText(QStringLiteral("Gewählt: <b>%1</b>").arg(link.toHtmlEscaped()));
    });
    section->addWidget(links);
    section->addWidget(answer);
}

void LabelsPage::addOneLine()
{
    struct Place
    {
        Qt::Alignment alignment;
        QString title;
    };
    const QVector<Place> places{{Qt::AlignTop, QStringLiteral("oben")},
                                {Qt::AlignVCenter, QStringLiteral("mittig")},
                                {Qt::AlignBottom, QStringLiteral("unten")}};
    const QVector<int> widths{140, 240, 560};

    auto *grid = new QGridLayout;
    grid->setHorizontalSpacing(16);
    grid->setVerticalSpacing(12);
    for (int row = 0; row < places.size(); ++row) {
        grid->addWidget(makeCaption(places.at(row).title), row, 0);
        for (int column = 0; column < widths.size(); ++column) {
            NVO::Label *label = makeElidedLabel(shortText());
            label->setAlignment(places.at(row).alignment);
            QFrame *frame = framed(label);
            frame->setMinimumHeight(oneLineHeight);
            grid->addWidget(frame, row, column + 1);
            grid->setColumnStretch(column + 1, widths.at(column));
        }
    }
    addSection(QStringLiteral("Gekürzt in einer Zeile"),
               QStringLiteral(
                   "Was nicht passt, endet mit einem Auslassungszeichen. Drei Breiten, drei Ausrichtungen."))
        ->addLayout(grid);
}

void LabelsPage::addSeveralLines()
{
    auto *row = new QHBoxLayout;
    row->setSpacing(16);
    for (const int lines : {2, 3, 7}) {
        NVO::Label *label = makeElidedLabel(longText());
        label->setWordWrap(true);
        label->setAlignment(Qt::AlignTop);
        m_severalLines.append({label, lines});
        auto *cell = new QVBoxLayout;
        cell->setSpacing(4);
        cell->addWidget(makeCaption(QStringLiteral("Platz für %1 Zeilen").arg(lines)));
        cell->addWidget(framed(label));
        cell->addWidget(makeElisionState(label));
        cell->addStretch();
        row->addLayout(cell, 1);
    }
    addSection(QStringLiteral("Gekürzt über mehrere Zeilen"),
               QStringLiteral("Mit Zeilenumbruch wird erst die letzte Zeile gekürzt, die noch Platz hat."))
        ->addLayout(row);
    fitHeights();
}

void LabelsPage::fitHeights()
{
    for (const LinesLabel &entry : qAsConst(m_severalLines))
        entry.label->setFixedHeight(entry.lines * entry.label->fontMetrics().lineSpacing() + 1);
}

bool LabelsPage::event(QEvent *event)
{
    const bool result = Page::event(event);
    // The labels have their new size by now, and the sheet its say before the first show.
    if (event->type() == QEvent::ApplicationFontChange || event->type() == QEvent::Polish)
        fitHeights();
    return result;
}

void LabelsPage::addLive()
{
    QVBoxLayout *section =
        addSection(QStringLiteral("Zum Ausprobieren"),
                   QStringLiteral("Ziehen Sie den Teiler: Der linke Text kürzt sich, sobald er nicht "
                                  "mehr passt, und meldet es."));
    NVO::Label *label = makeElidedLabel(shortText());
    NVO::Label *neighbour = makeElidedLabel(QStringLiteral("Betrag 1.190,00 €"));
    auto *splitter = new QSplitter(Qt::Horizontal);
    splitter->setAccessibleName(QStringLiteral("Breite des gekürzten Textes"));
    splitter->setChildrenCollapsible(false);
    splitter->setHandleWidth(12);
    splitter->addWidget(framed(label));
    splitter->addWidget(framed(neighbour));
    splitter->setSizes({300, 500});
    section->addWidget(splitter);
    section->addWidget(makeElisionState(label));
}

void LabelsPage::addSizes()
{
    QVBoxLayout *section =
        addSection(QStringLiteral("Schriftgröße"),
                   QStringLiteral("Eine Beschriftung behält die Größe, die sie bekommen hat, und "
                                  "rechnet den Zuschlag des Reglers oben rechts hinzu."));
    section->addWidget(makeCaption(QStringLiteral("Kleine Angabe am Rand")));
    section->addWidget(makeLabel(QStringLiteral("Fließtext auf einer Seite")));
    section->addWidget(
        makeLabel(QStringLiteral("Summe der offenen Posten: <b>48.216,07 €</b>"), NVO::Font::HEADLINESMALL));
}
