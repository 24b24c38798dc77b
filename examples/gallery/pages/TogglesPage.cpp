#include "pages/TogglesPage.h"

#include "pages/ForcedState.h"
#include "pages/PageSupport.h"

#include <nvo/Label.h>
#include <nvo/PixmapToggle.h>
#include <nvo/RadioToggle.h>

#include <QGridLayout>
#include <QMetaEnum>
#include <QVBoxLayout>

#include <array>

namespace {

using NVO::AbstractToggle;
using NVO::PixmapToggle;
using NVO::RadioToggle;

constexpr int formWidth = 300; // of the captions
constexpr int columnSpacing = 24;
constexpr std::array<ForcedState::State, 5> states{
    ForcedState::Normal, ForcedState::Hover, ForcedState::Pressed, ForcedState::Focus, ForcedState::Disabled};

struct Look
{
    RadioToggle::RadioToggleStyle style;
    const char *meaning;
    const char *question;
    const char *toolTip;
};

constexpr std::array<Look, 4> looks{
    Look{RadioToggle::Normal, "in Ordnung", "Sollversteuerung", ""},
    Look{RadioToggle::Error, "nicht zulässig", "Kleinunternehmer",
         "Mit Umsätzen über der Grenze ist das nicht zulässig."},
    Look{RadioToggle::Info, "auffällig", "Dauerfrist", "Im Vorjahr war das anders."},
    Look{RadioToggle::VaSt, "übernommen", "Kirchensteuer", "Aus den Daten der Behörde übernommen."}};

RadioToggle *makeRadio(const QString &onText, const QString &offText, bool checked)
{
    auto *toggle = new RadioToggle;
    toggle->setOnText(onText);
    toggle->setOffText(offText);
    toggle->setChecked(checked);
    return toggle;
}

RadioToggle *makeYesNo(bool checked)
{
    return makeRadio(QStringLiteral("Ja"), QStringLiteral("Nein"), checked);
}

PixmapToggle *makePixmap(bool checked)
{
    auto *toggle = new PixmapToggle;
    toggle->setChecked(checked);
    return toggle;
}

/** Adds a row to a form; the caption names the toggle. */
template <typename Toggle>
Toggle *addRow(QGridLayout *form, const QString &caption, Toggle *toggle)
{
    const int row = form->rowCount();
    NVO::Label *label = makeLabel(caption);
    label->setBuddy(toggle);
    form->addWidget(label, row, 0);
    form->addWidget(toggle, row, 1, Qt::AlignLeft | Qt::AlignVCenter);
    return toggle;
}

QGridLayout *makeForm()
{
    auto *form = new QGridLayout;
    form->setHorizontalSpacing(columnSpacing);
    form->setVerticalSpacing(10);
    form->setColumnMinimumWidth(0, formWidth);
    form->setColumnStretch(2, 1);
    return form;
}

QString keyOf(RadioToggle::RadioToggleStyle style)
{
    return QString::fromLatin1(QMetaEnum::fromType<RadioToggle::RadioToggleStyle>().valueToKey(style));
}

QLayout *makeLookCaption(const Look &look)
{
    auto *caption = new QVBoxLayout;
    caption->setSpacing(1);
    caption->addWidget(makeLabel(keyOf(look.style), NVO::Font::DEFAULT, LabelRole::Name));
    caption->addWidget(makeCaption(QString::fromUtf8(look.meaning)));
    return caption;
}

QGridLayout *makeGrid()
{
    auto *grid = new QGridLayout;
    grid->setHorizontalSpacing(columnSpacing);
    grid->setVerticalSpacing(12);
    return grid;
}

} // namespace

TogglesPage::TogglesPage()
{
    addSettings();
    addStyles();
    addStates();
}

void TogglesPage::addSettings()
{
    QGridLayout *form = makeForm();
    RadioToggle *extension = addRow(form, QStringLiteral("Dauerfristverlängerung"), makeYesNo(true));
    RadioToggle *prepaid = addRow(form, QStringLiteral("Sondervorauszahlung geleistet"), makeYesNo(false));
    RadioToggle *amounts = addRow(form, QStringLiteral("Beträge erfassen als"),
                                  makeRadio(QStringLiteral("Brutto"), QStringLiteral("Netto"), true));
    RadioToggle *side = addRow(form, QStringLiteral("Kontoseite vorschlagen"),
                               makeRadio(QStringLiteral("Soll"), QStringLiteral("Haben"), false));
    addRow(form, QStringLiteral("Versteuerung"),
           makeRadio(QStringLiteral("Nach vereinbarten Entgelten"),
                     QStringLiteral("Nach vereinnahmten Entgelten"), true));
    PixmapToggle *reminders =
        addRow(form, QStringLiteral("Mahnungen automatisch versenden"), makePixmap(true));
    PixmapToggle *copies = addRow(form, QStringLiteral("Kopie an den Steuerberater"), makePixmap(false));

    NVO::Label *summary = makeCaption(QString(), NVO::Font::DEFAULT);
    const auto summarise = [=] {
        summary->setText(
            QStringLiteral("Gebucht wird %1, zuerst im <b>%2</b>.")
                .arg(amounts->isChecked() ? QStringLiteral("<b>brutto</b>") : QStringLiteral("<b>netto</b>"),
                     side->isChecked() ? side->onText() : side->offText()));
    };
    summarise();
    connect(amounts, &RadioToggle::toggled, summary, summarise);
    connect(side, &RadioToggle::toggled, summary, summarise);
    connect(extension, &RadioToggle::toggled, prepaid, &RadioToggle::setEnabled);
    connect(reminders, &PixmapToggle::toggled, copies, &PixmapToggle::setEnabled);

    QVBoxLayout *section =
        addSection(QStringLiteral("Einstellungen des Mandanten"),
                   QStringLiteral("Ein Klick auf eine beliebige Stelle oder die Leertaste schaltet um. Ohne "
                                  "Dauerfristverlängerung gibt es keine Sondervorauszahlung."));
    section->addLayout(form);
    section->addWidget(summary);
}

void TogglesPage::addStyles()
{
    QGridLayout *grid = makeGrid();
    grid->setColumnStretch(4, 1);
    for (const Look &look : looks) {
        const int row = grid->rowCount();
        grid->addLayout(makeLookCaption(look), row, 0);
        grid->addWidget(makeLabel(QString::fromUtf8(look.question)), row, 1);
        for (const bool checked : {true, false}) {
            RadioToggle *toggle = makeYesNo(checked);
            toggle->setRadioToggleStyle(look.style);
            toggle->setToolTip(QString::fromUtf8(look.toolTip));
            toggle->setAccessibleName(QString::fromUtf8(look.question));
            grid->addWidget(toggle, row, checked ? 2 : 3, Qt::AlignCenter);
        }
    }
    addSection(QStringLiteral("Vier Stile"),
               QStringLiteral("Die Farbe sagt, wie es um die Angabe steht; der Hinweis sagt, warum."))
        ->addLayout(grid);
}

void TogglesPage::addStates()
{
    QGridLayout *grid = makeGrid();
    for (int column = 0; column < int(states.size()); ++column) {
        grid->addWidget(makeCaption(ForcedState::title(states.at(std::size_t(column)))), 0, column + 1,
                        Qt::AlignHCenter);
        grid->setColumnStretch(column + 1, 1);
    }
    const auto addStateRow = [grid](const QString &caption, const auto &make) {
        const int row = grid->rowCount();
        grid->addWidget(makeLabel(caption, NVO::Font::DEFAULT, LabelRole::Name), row, 0);
        for (int column = 0; column < int(states.size()); ++column) {
            AbstractToggle *toggle = make();
            toggle->setAccessibleName(caption);
            ForcedState::apply(toggle, states.at(std::size_t(column)));
            grid->addWidget(toggle, row, column + 1, Qt::AlignCenter);
        }
    };
    for (const Look &look : looks) {
        for (const bool checked : {true, false}) {
            addStateRow(keyOf(look.style), [&] {
                RadioToggle *toggle = makeYesNo(checked);
                toggle->setRadioToggleStyle(look.style);
                return toggle;
            });
        }
    }
    for (const bool checked : {true, false})
        addStateRow(QStringLiteral("Symbole"), [checked] { return makePixmap(checked); });
    addSection(
        QStringLiteral("Zustände"),
        QStringLiteral("Ein beschrifteter Schalter, der gedrückt gehalten wird, zeigt schon, was er beim "
                       "Loslassen wird. Die Spalte „Normal“ lässt sich bedienen."))
        ->addLayout(grid);
}
