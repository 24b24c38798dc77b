#include "pages/NoticesPage.h"

#include "pages/ForcedState.h"
#include "pages/PageSupport.h"

#include <nvo/Button.h>
#include <nvo/CheckBox.h>
#include <nvo/HairLine.h>
#include <nvo/InfoBox.h>
#include <nvo/Label.h>
#include <nvo/Palette.h>
#include <nvo/Separator.h>

#include <QFrame>
#include <QGridLayout>
#include <QMetaEnum>
#include <QVBoxLayout>

#include <array>

namespace {

using CheckBoxStyle = NVO::CheckBox::CheckBoxStyle;
using CheckBoxSize = NVO::CheckBox::CheckBoxSize;

constexpr int narrowBox = 380;
constexpr int wideBox = 630;
constexpr int lineLength = 160;
constexpr int lineHeight = 48;
constexpr int alternativeWidth = 220;
constexpr int cellPadding = 8;
constexpr std::array<ForcedState::State, 5> states{
    ForcedState::Normal, ForcedState::Hover, ForcedState::Pressed, ForcedState::Focus, ForcedState::Disabled};

/** A style of the info box as the page shows it. */
struct Notice
{
    NVO::InfoBox::InfoBoxStyle style;
    const char *image;
    const char *text;
};

constexpr std::array<Notice, 7> notices{{
    {NVO::InfoBox::Plain, "bulb", "Der Zeitraum <b>April 2026</b> ist noch offen."},
    {NVO::InfoBox::Info, "information_16", "Für diesen Mandanten gilt die <b>Ist-Versteuerung</b>."},
    {NVO::InfoBox::Highlight, "warning_16", "Die Dauerfristverlängerung endet am <b>10. Juni</b>."},
    {NVO::InfoBox::Success, "success_16", "Die Voranmeldung wurde <b>übermittelt</b>."},
    {NVO::InfoBox::SuccessTransparent, "success_16", "Alle Belege sind einem Konto <b>zugeordnet</b>."},
    {NVO::InfoBox::Error, "critical_16", "Der Steuerschlüssel passt <b>nicht</b> zum Konto 4400."},
    {NVO::InfoBox::Advert, "bulb", "<b>Neu:</b> Belege mit dem Telefon fotografieren und ablegen."},
}};

QString longText()
{
    return QStringLiteral(
        "Der Zeitraum April 2026 ist <b>festgeschrieben</b>. Buchungen mit einem Belegdatum in diesem "
        "Zeitraum werden als Korrektur im laufenden Monat erfasst und im Journal mit einem Verweis auf "
        "den ursprünglichen Beleg versehen.<ul><li>Der Beleg bleibt unverändert.</li>"
        "<li>Die Korrektur trägt das heutige Datum.</li></ul>");
}

template <typename Enum>
QString keyOf(Enum value)
{
    return QString::fromLatin1(QMetaEnum::fromType<Enum>().valueToKey(static_cast<int>(value)));
}

NVO::InfoBox *makeBox(NVO::InfoBox::InfoBoxStyle style, const QString &text, const QString &image = QString())
{
    auto *box = new NVO::InfoBox;
    box->setInfoBoxStyle(style);
    box->setHtmlText(text);
    if (!image.isEmpty())
        box->setPixmap(themeImage(image));
    return box;
}

NVO::CheckBox *makeCheckBox(const QString &text, CheckBoxStyle style, CheckBoxSize size, Qt::CheckState check)
{
    auto *box = new NVO::CheckBox(text);
    box->setCheckBoxStyle(style);
    box->setCheckBoxSize(size);
    box->setTristate(check == Qt::PartiallyChecked);
    box->setCheckState(check);
    return box;
}

/** Not chosen, chosen, and, if there is such a state, chosen in part, in one of the five states. */
QLayout *makeCheckBoxes(CheckBoxStyle style, CheckBoxSize size, ForcedState::State state)
{
    const QVector<QPair<QString, Qt::CheckState>> checks{{QStringLiteral("Skonto"), Qt::Unchecked},
                                                         {QStringLiteral("Mahnen"), Qt::Checked},
                                                         {QStringLiteral("Belege"), Qt::PartiallyChecked}};
    auto *column = new QVBoxLayout;
    column->setContentsMargins(0, cellPadding, 0, cellPadding);
    column->setSpacing(2);
    for (const auto &[text, check] : checks) {
        NVO::CheckBox *box = makeCheckBox(text, style, size, check);
        ForcedState::apply(box, state);
        column->addWidget(box, 0, Qt::AlignLeft);
    }
    return column;
}

QGridLayout *makeStatesGrid()
{
    auto *grid = new QGridLayout;
    grid->setHorizontalSpacing(16);
    grid->setVerticalSpacing(0);
    for (int column = 0; column < int(states.size()); ++column) {
        grid->addWidget(makeCaption(ForcedState::title(states.at(std::size_t(column)))), 0, column + 1);
        grid->setColumnStretch(column + 1, 1);
    }
    return grid;
}

void addStatesRow(QGridLayout *grid, NVO::Label *title, CheckBoxStyle style, CheckBoxSize size)
{
    const int row = grid->rowCount();
    title->setContentsMargins(cellPadding, cellPadding, 0, 0);
    grid->addWidget(title, row, 0, Qt::AlignTop);
    for (int column = 0; column < int(states.size()); ++column)
        grid->addLayout(makeCheckBoxes(style, size, states.at(std::size_t(column))), row, column + 1);
}

NVO::HairLine *makeLine(Qt::Orientation orientation, int weight, const QString &color)
{
    auto *line = new NVO::HairLine(orientation);
    line->setWeight(weight);
    line->setColor(NVO::Palette::instance().namedColor(color));
    if (orientation == Qt::Horizontal)
        line->setMinimumWidth(lineLength);
    else
        line->setMinimumHeight(lineHeight);
    return line;
}

/** One of two ways to go on. */
QLayout *makeAlternative(const QString &text, const QString &button)
{
    auto *column = new QVBoxLayout;
    NVO::Label *label = makeLabel(text);
    label->setWordWrap(true);
    label->setFixedWidth(alternativeWidth);
    auto *choice = new NVO::Button;
    choice->setText(button);
    column->addWidget(label);
    column->addStretch();
    column->addWidget(choice, 0, Qt::AlignLeft);
    return column;
}

} // namespace

NoticesPage::NoticesPage()
{
    addStyles();
    addIconPlaces();
    addLinks();
    addWidths();
    addCheckBoxStyles();
    addCheckBoxSizes();
    addBorders();
    addLines();
    addAlternatives();
}

void NoticesPage::addStyles()
{
    auto *grid = new QGridLayout;
    grid->setHorizontalSpacing(16);
    grid->setVerticalSpacing(8);
    grid->setColumnStretch(1, 1);
    grid->setColumnStretch(2, 1);
    for (const Notice &notice : notices) {
        const int row = grid->rowCount();
        const QString text = QString::fromUtf8(notice.text);
        grid->addWidget(makeLabel(keyOf(notice.style), NVO::Font::DEFAULT, LabelRole::Name), row, 0);
        grid->addWidget(makeBox(notice.style, text, QString::fromLatin1(notice.image)), row, 1);
        grid->addWidget(makeBox(notice.style, text), row, 2, Qt::AlignVCenter);
    }
    addSection(QStringLiteral("Hinweisfelder"),
               QStringLiteral("Sieben Stile, mit und ohne Symbol. Fettes erscheint im halbfetten Schnitt."))
        ->addLayout(grid);
}

void NoticesPage::addIconPlaces()
{
    const QVector<QPair<Qt::Alignment, QString>> places{{Qt::AlignTop, QStringLiteral("oben")},
                                                        {Qt::AlignVCenter, QStringLiteral("mittig")},
                                                        {Qt::AlignBottom, QStringLiteral("unten")}};
    auto *row = new QHBoxLayout;
    row->setSpacing(16);
    for (const auto &[alignment, title] : places) {
        auto *cell = new QVBoxLayout;
        cell->setSpacing(4);
        NVO::InfoBox *box =
            makeBox(NVO::InfoBox::Info,
                    QStringLiteral("Das Symbol steht <b>%1</b>.<br>Die Höhe des Feldes folgt seiner Breite, "
                                   "auch wenn der Text umbricht.<br>Der Abstand kommt aus dem Thema.")
                        .arg(title),
                    QStringLiteral("information"));
        box->setIconAlignment(alignment);
        cell->addWidget(makeCaption(title));
        cell->addWidget(box);
        cell->addStretch();
        row->addLayout(cell, 1);
    }
    addSection(QStringLiteral("Platz des Symbols"),
               QStringLiteral("Das Symbol richtet sich an der Höhe des Textes aus."))
        ->addLayout(row);
}

void NoticesPage::addLinks()
{
    QVBoxLayout *section =
        addSection(QStringLiteral("Verweise und ein weiteres Element"),
                   QStringLiteral("Verweise öffnet die Maus oder, nach Tabulator, die Eingabetaste."));
    NVO::InfoBox *links = makeBox(
        NVO::InfoBox::Highlight,
        QStringLiteral("Zum Beleg <a href=\"beleg:ER-2026-0093\">ER-2026-0093</a> fehlt die Zuordnung. Legen "
                       "Sie das <a href=\"konto:4930\">Konto 4930 <b>Bürobedarf</b></a> fest oder wenden Sie "
                       "sich an <a href=\"lieferant:70012\">Papier Lang e. K.</a>"),
        QStringLiteral("warning"));
    links->setIconAlignment(Qt::AlignTop);
    NVO::Label *answer = makeCaption(QStringLiteral("Noch kein Verweis gewählt."), NVO::Font::DEFAULT);
    connect(links, &NVO::InfoBox::linkActivated, answer, [answer](const QString &link) {
        answer->setText(QStringLiteral("Gewählt: <b>%1</b>").arg(link.toHtmlEscaped()));
    });
    section->addWidget(links);
    section->addWidget(answer);

    NVO::InfoBox *box = makeBox(NVO::InfoBox::Info,
                                QStringLiteral("Beim nächsten Start werden <b>drei Mandanten</b> auf den "
                                               "neuen Kontenrahmen umgestellt."),
                                QStringLiteral("information"));
    box->setIconAlignment(Qt::AlignTop);
    auto *never = new NVO::CheckBox(QStringLiteral("Diesen Hinweis nicht mehr zeigen"));
    never->setCheckBoxStyle(CheckBoxStyle::Info);
    box->setAdditionalWidget(never);
    section->addWidget(box);

    NVO::InfoBox *locked =
        makeBox(NVO::InfoBox::Success,
                QStringLiteral("Deaktiviert: Der Monat <b>März 2026</b> wurde bereits festgeschrieben."),
                QStringLiteral("success_16"));
    locked->setEnabled(false);
    section->addWidget(locked);
}

void NoticesPage::addWidths()
{
    auto *row = new QHBoxLayout;
    row->setSpacing(16);
    for (const int width : {narrowBox, wideBox}) {
        NVO::InfoBox *box = makeBox(NVO::InfoBox::Success, longText(), QStringLiteral("success_16"));
        box->setIconAlignment(Qt::AlignTop);
        box->setFixedWidth(width);
        row->addWidget(box, 0, Qt::AlignTop);
    }
    row->addStretch();
    addSection(QStringLiteral("Langer Text in zwei Breiten"),
               QStringLiteral("Ein Feld ist so hoch, wie sein Text in der jeweiligen Breite verlangt."))
        ->addLayout(row);
}

void NoticesPage::addCheckBoxStyles()
{
    QGridLayout *grid = makeStatesGrid();
    QFrame *darkGround = makeGround(Ground::Dark);
    for (const CheckBoxStyle style : {CheckBoxStyle::Normal, CheckBoxStyle::Error, CheckBoxStyle::Info,
                                      CheckBoxStyle::VaSt, CheckBoxStyle::White}) {
        const bool dark = style == CheckBoxStyle::White;
        NVO::Label *title =
            makeLabel(keyOf(style), NVO::Font::DEFAULT, dark ? LabelRole::OnDark : LabelRole::Name);
        addStatesRow(grid, title, style, CheckBoxSize::Normal);
        if (dark)
            grid->addWidget(darkGround, grid->rowCount() - 1, 0, 1, grid->columnCount());
    }
    addSection(QStringLiteral("Kontrollkästchen"),
               QStringLiteral("Fünf Stile, je nicht gewählt, gewählt und teilweise gewählt."))
        ->addLayout(grid);
    darkGround->lower();
}

void NoticesPage::addCheckBoxSizes()
{
    QGridLayout *grid = makeStatesGrid();
    for (const CheckBoxSize size : {CheckBoxSize::Normal, CheckBoxSize::Small, CheckBoxSize::Flyout})
        addStatesRow(grid, makeLabel(keyOf(size), NVO::Font::DEFAULT, LabelRole::Name), CheckBoxStyle::Normal,
                     size);
    addSection(
        QStringLiteral("Größen des Kontrollkästchens"),
        QStringLiteral("Das kleine hat auch eine kleinere Schrift, das für Flyouts ist enger gesetzt."))
        ->addLayout(grid);
}

void NoticesPage::addBorders()
{
    auto *row = new QHBoxLayout;
    row->setSpacing(24);
    for (const CheckBoxStyle style :
         {CheckBoxStyle::Normal, CheckBoxStyle::Error, CheckBoxStyle::Info, CheckBoxStyle::VaSt}) {
        NVO::CheckBox *box = makeCheckBox(QStringLiteral("Wert aus Vorjahr übernehmen"), style,
                                          CheckBoxSize::Normal, Qt::Checked);
        box->setExtraBorder(true);
        row->addWidget(box);
    }
    row->addStretch();
    addSection(QStringLiteral("Zusätzlicher Rahmen"),
               QStringLiteral(
                   "Der Rahmen folgt dem Text. In diesen Themen ist er eine gestrichelte Linie darunter."))
        ->addLayout(row);
}

void NoticesPage::addLines()
{
    const QString decoration = QStringLiteral("COLOR_DEKOLINE");
    const QString border = QStringLiteral("COLOR_BORDER");
    const QString accent = QStringLiteral("COLOR_ACCENT");
    auto *grid = new QGridLayout;
    grid->setHorizontalSpacing(24);
    int column = 0;
    for (const int weight : {1, 2, 4}) {
        grid->addWidget(makeCaption(QStringLiteral("%1 Pixel").arg(weight)), 0, column);
        int row = 1;
        for (const QString &color : {decoration, border, accent})
            grid->addWidget(makeLine(Qt::Horizontal, weight, color), row++, column);
        ++column;
    }
    for (const QString &color : {decoration, border, accent})
        grid->addWidget(makeLine(Qt::Vertical, 2, color), 0, column++, 4, 1);
    grid->setColumnStretch(column, 1);
    addSection(QStringLiteral("Haarlinien"),
               QStringLiteral("Linien in jeder Stärke und Farbe, waagrecht und senkrecht."))
        ->addLayout(grid);
}

void NoticesPage::addAlternatives()
{
    auto *row = new QHBoxLayout;
    row->setSpacing(24);
    row->addLayout(makeAlternative(QStringLiteral("<b>Bestehender Mandant</b><br>Die Daten werden in einen "
                                                  "Mandanten übernommen, den es schon gibt."),
                                   QStringLiteral("Mandant wählen")));
    row->addWidget(new NVO::Separator);
    row->addLayout(makeAlternative(QStringLiteral("<b>Neuer Mandant</b><br>Ein Mandant wird mit dem "
                                                  "Kontenrahmen SKR 03 angelegt."),
                                   QStringLiteral("Mandant anlegen")));
    row->addWidget(new NVO::Separator(QStringLiteral("sonst")));
    row->addLayout(makeAlternative(QStringLiteral("<b>Nichts davon</b><br>Die Daten bleiben in der "
                                                  "Ablage."),
                                   QStringLiteral("Später entscheiden")));
    row->addStretch();
    addSection(QStringLiteral("Alternativen"),
               QStringLiteral("Ein Trenner mit einem Wort steht zwischen zwei Wegen."))
        ->addLayout(row);
}
