#include "pages/ButtonsPage.h"

#include "pages/ForcedState.h"
#include "pages/PageSupport.h"

#include <nvo/Button.h>
#include <nvo/Icon.h>
#include <nvo/Label.h>

#include <QFrame>
#include <QGridLayout>
#include <QMetaEnum>
#include <QTransform>
#include <QVBoxLayout>

#include <algorithm>
#include <array>
#include <memory>

namespace {

constexpr int cellPadding = 10;
constexpr std::array<ForcedState::State, 5> states{
    ForcedState::Normal, ForcedState::Hover, ForcedState::Pressed, ForcedState::Focus, ForcedState::Disabled};

/** A look as the page shows it. */
struct Look
{
    NVO::Button::ButtonStyle style;
    const char *use;
    const char *text;
    const char *image = "";
    bool onDark = false;
};

const QVector<Look> &looks()
{
    using NVO::Button;
    static const QVector<Look> looks{
        {Button::Normal, "Einfache Handlung", "Buchen"},
        {Button::Primary, "Wichtigste Handlung", "Speichern"},
        {Button::Right, "Ein Schritt weiter", "Weiter", "searchresult_right_arrow"},
        {Button::Left, "Ein Schritt zurück", "Zurück", "searchresult_right_arrow"},
        {Button::Add, "Fügt eine Zeile an", "Anfügen"},
        {Button::Menu, "Menüeintrag, ohne Fokus", "Ablegen"},
        {Button::Backstage, "In der Dateiansicht", "Hilfe", "hilfe_16"},
        {Button::Breadcrumb, "Pfeil im Pfad", "", "breadcrumb"},
        {Button::MacClose, "Schließt ein Fenster", ""},
        {Button::Close, "Schließt einen Dialog", ""},
        {Button::FlyoutClose, "Schließt ein Flyout", ""},
        {Button::CloseDark, "Auf dunklem Grund", "", "", true},
        {Button::FlyoutCloseDark, "Im dunklen Flyout", "", "", true},
    };
    return looks;
}

QString keyOf(NVO::Button::ButtonStyle style)
{
    return QString::fromLatin1(QMetaEnum::fromType<NVO::Button::ButtonStyle>().valueToKey(style));
}

void setImage(NVO::Button *button, const QString &image)
{
    const QPixmap pixmap = themeImage(image);
    if (button->buttonStyle() == NVO::Button::Breadcrumb) {
        button->setIcon(NVO::Icon(pixmap));
        return;
    }
    const bool mirrored = button->buttonStyle() == NVO::Button::Left;
    button->setIcon(mirrored ? pixmap.transformed(QTransform::fromScale(-1, 1)) : pixmap);
    button->setIconSize(pixmap.size() / pixmap.devicePixelRatio());
}

NVO::Button *makeButton(NVO::Button::ButtonStyle style, const QString &text, const QString &image = QString())
{
    auto *button = new NVO::Button;
    button->setButtonStyle(style);
    button->setText(text);
    if (!image.isEmpty())
        setImage(button, image);
    return button;
}

NVO::Button *makeButton(const Look &look)
{
    NVO::Button *button =
        makeButton(look.style, QString::fromUtf8(look.text), QString::fromLatin1(look.image));
    if (button->text().isEmpty())
        button->setAccessibleName(QString::fromUtf8(look.use));
    return button;
}

QLayout *makeLookCaption(const Look &look)
{
    auto *caption = new QVBoxLayout;
    caption->setContentsMargins(cellPadding, cellPadding, 0, cellPadding);
    caption->setSpacing(1);
    caption->addWidget(
        makeLabel(keyOf(look.style), NVO::Font::DEFAULT, look.onDark ? LabelRole::OnDark : LabelRole::Name));
    caption->addWidget(makeLabel(QString::fromUtf8(look.use), NVO::Font::SMALL,
                                 look.onDark ? LabelRole::CaptionOnDark : LabelRole::Caption));
    return caption;
}

/** The rows of the dark looks are the last ones. */
QFrame *addDarkGround(QGridLayout *grid)
{
    const auto rows =
        int(std::count_if(looks().begin(), looks().end(), [](const Look &look) { return look.onDark; }));
    QFrame *ground = makeGround(Ground::Dark);
    grid->addWidget(ground, grid->rowCount() - rows, 0, rows, grid->columnCount());
    return ground;
}

QHBoxLayout *addRow(QVBoxLayout *section)
{
    auto *row = new QHBoxLayout;
    row->setSpacing(12);
    section->addLayout(row);
    return row;
}

} // namespace

ButtonsPage::ButtonsPage()
{
    addMatrix();
    addTexts();
    addShadows();
    addChoices();
    addTrial();
}

void ButtonsPage::addMatrix()
{
    auto *grid = new QGridLayout;
    grid->setHorizontalSpacing(8);
    grid->setVerticalSpacing(0);
    for (int column = 0; column < int(states.size()); ++column) {
        const ForcedState::State state = states.at(std::size_t(column));
        grid->addWidget(makeCaption(ForcedState::title(state)), 0, column + 1, Qt::AlignHCenter);
        grid->setColumnStretch(column + 1, 1);
    }
    for (const Look &look : looks()) {
        const int row = grid->rowCount();
        grid->addLayout(makeLookCaption(look), row, 0);
        for (int column = 0; column < int(states.size()); ++column) {
            const ForcedState::State state = states.at(std::size_t(column));
            if (state == ForcedState::Focus && look.style == NVO::Button::Menu) {
                grid->addWidget(makeCaption(QStringLiteral("–")), row, column + 1, Qt::AlignCenter);
                continue;
            }
            NVO::Button *button = makeButton(look);
            ForcedState::apply(button, state);
            grid->addWidget(button, row, column + 1, Qt::AlignCenter);
        }
    }
    QFrame *darkGround = addDarkGround(grid);
    addSection(QStringLiteral("Dreizehn Stile"),
               QStringLiteral(
                   "Die Schaltflächen der Spalte „Normal“ lassen sich bedienen; die anderen Spalten zeigen "
                   "einen festgehaltenen Zustand."))
        ->addLayout(grid);
    darkGround->lower();
}

void ButtonsPage::addTexts()
{
    QVBoxLayout *section =
        addSection(QStringLiteral("Texte und Symbole"),
                   QStringLiteral("„Normal“ und „Primary“ sind mindestens 100 Pixel breit und "
                                  "wachsen mit ihrem Text."));
    QHBoxLayout *texts = addRow(section);
    texts->addWidget(makeButton(NVO::Button::Normal, QStringLiteral("OK")));
    texts->addWidget(
        makeButton(NVO::Button::Normal, QStringLiteral("Umsatzsteuer-Voranmeldung übermitteln")));
    texts->addWidget(makeButton(NVO::Button::Primary, QStringLiteral("Rechnung 2026-0417 festschreiben")));
    texts->addStretch();

    QHBoxLayout *icons = addRow(section);
    icons->addWidget(
        makeButton(NVO::Button::Normal, QStringLiteral("Beleg ablegen"), QStringLiteral("checkmark_16")));
    icons->addWidget(makeButton(NVO::Button::Normal, QStringLiteral("Hilfe"), QStringLiteral("hilfe_16")));
    icons->addWidget(makeButton(NVO::Button::Add, QStringLiteral("Weitere Position anfügen")));
    icons->addWidget(
        makeButton(NVO::Button::Backstage, QStringLiteral("Hilfe und Support"), QStringLiteral("hilfe_16")));
    icons->addStretch();

    QHBoxLayout *steps = addRow(section);
    const QString arrow = QStringLiteral("searchresult_right_arrow");
    steps->addWidget(makeButton(NVO::Button::Left, QStringLiteral("Zurück zur Belegauswahl"), arrow));
    steps->addWidget(makeButton(NVO::Button::Right, QStringLiteral("Weiter zur Kontierung"), arrow));
    steps->addStretch();
}

void ButtonsPage::addShadows()
{
    QHBoxLayout *row =
        addRow(addSection(QStringLiteral("Schatten"),
                          QStringLiteral("Ein Schatten liegt unter „Normal“ und „Primary“, in der "
                                         "klassischen Darstellung auch unter „Left“ und „Right“.")));
    for (const bool shadow : {true, false}) {
        for (const NVO::Button::ButtonStyle style : {NVO::Button::Normal, NVO::Button::Primary}) {
            NVO::Button *button =
                makeButton(style, style == NVO::Button::Normal ? QStringLiteral("Abbrechen")
                                                               : QStringLiteral("Übernehmen"));
            button->setShadowEnabled(shadow);
            row->addLayout(withCaption(button, shadow ? QStringLiteral("mit Schatten")
                                                      : QStringLiteral("ohne Schatten")));
        }
    }
    row->addStretch();
}

void ButtonsPage::addChoices()
{
    QHBoxLayout *row = addRow(addSection(
        QStringLiteral("Gewählt und vorgegeben"),
        QStringLiteral(
            "Eine Schaltfläche kann gewählt bleiben; die vorgegebene nimmt in Dialogen die Eingabetaste.")));
    for (const NVO::Button::ButtonStyle style : {NVO::Button::Normal, NVO::Button::Primary}) {
        NVO::Button *button = makeButton(style, QStringLiteral("Offene Posten"));
        button->setCheckable(true);
        button->setChecked(true);
        row->addLayout(withCaption(button, QStringLiteral("gewählt")));
    }
    NVO::Button *proposal = makeButton(NVO::Button::Normal, QStringLiteral("Übernehmen"));
    proposal->setDefault(true);
    row->addLayout(withCaption(proposal, QStringLiteral("vorgegeben")));
    row->addStretch();
}

void ButtonsPage::addTrial()
{
    QVBoxLayout *section = addSection(QStringLiteral("Zum Ausprobieren"),
                                      QStringLiteral("Mit der Maus, mit Tabulator und Leertaste."));
    QHBoxLayout *row = addRow(section);
    NVO::Button *book = makeButton(NVO::Button::Primary, QStringLiteral("Buchung erfassen"));
    NVO::Button *lock = makeButton(NVO::Button::Normal, QStringLiteral("Zeitraum gesperrt"));
    lock->setCheckable(true);
    NVO::Label *count = makeLabel(QStringLiteral("Noch keine Buchung erfasst."));
    row->addWidget(book);
    row->addWidget(lock);
    row->addWidget(count, 1);

    const auto bookings = std::make_shared<int>(0);
    connect(book, &NVO::Button::clicked, count, [count, bookings] {
        ++*bookings;
        count->setText(*bookings == 1 ? QStringLiteral("<b>Eine</b> Buchung erfasst.")
                                      : QStringLiteral("<b>%1</b> Buchungen erfasst.").arg(*bookings));
    });
    connect(lock, &NVO::Button::toggled, book, &NVO::Button::setDisabled);
}
