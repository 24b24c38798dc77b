#include "pages/DialogsPage.h"

#include "pages/EmbeddedDialog.h"
#include "pages/PageSupport.h"

#include <nvo/Button.h>
#include <nvo/CheckBox.h>
#include <nvo/Dialog.h>
#include <nvo/Label.h>
#include <nvo/LineEdit.h>
#include <nvo/NumericEdit.h>

#include <QFormLayout>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QVBoxLayout>

#include <functional>

namespace {

using NVO::Dialog;
using NVO::DialogButton;
using Types = QFlags<DialogButton::ButtonType>;

constexpr int contentWidth = 380;
constexpr int contentMargin = 20;
constexpr int shadowRoom = 10; // beside a dialog with a shadow
constexpr int maximumAmount = 9999999;
constexpr int paidAmount = 1190;

/** A dialog with its protected setters in reach. */
class SampleDialog : public Dialog
{
public:
    SampleDialog(const QString &title, Types buttons, DialogButton::ButtonType defaultButton,
                 QFlags<DialogFlag> flags = NoFlag)
        : Dialog(nullptr, NVO::ElementDialog, buttons, defaultButton, flags)
    {
        setWindowTitle(title);
        enableCloseButton(true);
    }
    using Dialog::setExtraFooterWidget;
};

QWidget *makeForm()
{
    auto *form = new QWidget;
    auto *layout = new QFormLayout(form);
    layout->setContentsMargins(contentMargin, contentMargin, contentMargin, contentMargin);
    layout->setSpacing(10);
    auto *receiver = new NVO::LineEdit;
    receiver->setText(QStringLiteral("Muster GmbH"));
    auto *amount = new NVO::NumericEdit;
    amount->setRange(maximumAmount, 2, QStringLiteral("€"), NVO::NumericEdit::NoFlag);
    amount->setValue(paidAmount);
    layout->addRow(makeLabel(QStringLiteral("Empfänger")), receiver);
    layout->addRow(makeLabel(QStringLiteral("Betrag")), amount);
    form->setMinimumWidth(contentWidth);
    return form;
}

QWidget *makeText(const QString &text)
{
    NVO::Label *label = makeLabel(text);
    label->setWordWrap(true);
    label->setContentsMargins(contentMargin, contentMargin, contentMargin, contentMargin);
    label->setMinimumWidth(contentWidth);
    return label;
}

/** What a sample shows, and the dialog that shows it. */
struct Sample
{
    const char *caption;
    std::function<Dialog *()> make;
};

Dialog *plainDialog()
{
    auto *dialog = new SampleDialog(QStringLiteral("Zahlung erfassen"),
                                    DialogButton::Ok | DialogButton::Cancel, DialogButton::Ok);
    dialog->setContent(makeForm());
    return dialog;
}

Dialog *dialogWithShadow()
{
    Dialog *dialog = plainDialog();
    dialog->setShadowEnabled(true);
    return dialog;
}

Dialog *dialogWithHelp()
{
    auto *dialog = new SampleDialog(QStringLiteral("Auswertung drucken"),
                                    DialogButton::Print | DialogButton::Close, DialogButton::Print);
    dialog->setContent(makeText(QStringLiteral("Drucken lässt den Dialog offen, Hilfe auch.")));
    dialog->setHelpFilePath(QStringLiteral("hilfe/drucken.html"));
    dialog->setShadowEnabled(true);
    return dialog;
}

Dialog *dialogWithDarkBar()
{
    auto *dialog = new SampleDialog(QStringLiteral("Einrichten"), DialogButton::Next | DialogButton::Cancel,
                                    DialogButton::Next, Dialog::HasDarkBackground);
    dialog->setContent(makeText(QStringLiteral("Die Knopfreihe steht auf dunklem Grund.")));
    dialog->setHelpFilePath(QStringLiteral("hilfe/einrichten.html"));
    dialog->setShadowEnabled(true);
    return dialog;
}

Dialog *dialogWithExtras()
{
    auto *dialog = new SampleDialog(QStringLiteral("Beleg prüfen"),
                                    DialogButton::Save | DialogButton::NoSave | DialogButton::Cancel,
                                    DialogButton::Save);
    dialog->setContent(makeForm());
    auto *extra = new QWidget;
    auto *row = new QHBoxLayout(extra);
    row->setContentsMargins(0, 0, contentMargin, 0);
    row->addWidget(new NVO::CheckBox(QStringLiteral("Merken")));
    dialog->setExtraActionBarWidget(extra);
    QWidget *footer = makeText(QStringLiteral("In der Fußzeile steht, was für alle Knöpfe gilt."));
    footer->setContentsMargins(contentMargin, 0, contentMargin, contentMargin / 2);
    dialog->setExtraFooterWidget(footer);
    dialog->setShadowEnabled(true);
    return dialog;
}

Dialog *dialogWithoutButtons()
{
    auto *dialog = new SampleDialog(QStringLiteral("Bitte warten"), {}, DialogButton::NoButton);
    dialog->setContent(makeText(QStringLiteral("Ohne Knöpfe gibt es weder Reihe noch Linie.")));
    dialog->setShadowEnabled(true);
    return dialog;
}

const QVector<Sample> &samples()
{
    static const QVector<Sample> samples{{"Ohne Schatten", plainDialog},
                                         {"Mit Schatten", dialogWithShadow},
                                         {"Hilfe, Drucken", dialogWithHelp},
                                         {"Dunkle Knopfreihe", dialogWithDarkBar},
                                         {"Zusatz und Fußzeile", dialogWithExtras},
                                         {"Ohne Knöpfe", dialogWithoutButtons}};
    return samples;
}

/** \a sample above its caption; frames and captions stand below each other, with and without a shadow. */
QLayout *picture(const Sample &sample)
{
    QWidget *dialog = embedded(sample.make());
    const int left = shadowRoom - dialog->layout()->contentsMargins().left();
    NVO::Label *caption = makeCaption(QString::fromUtf8(sample.caption));
    caption->setContentsMargins(shadowRoom, 0, 0, 0);
    auto *frame = new QHBoxLayout;
    frame->addSpacing(left);
    frame->addWidget(dialog);
    auto *column = new QVBoxLayout;
    column->setSpacing(left > 0 ? shadowRoom : 0); // the shadow has its room below, too
    column->addLayout(frame);
    column->addWidget(caption);
    return column;
}

/** A row of buttons as dialogs use them together, with the default one. */
struct ButtonSet
{
    const char *title;
    Types types;
    DialogButton::ButtonType defaultButton;
};

/** All types of buttons. */
const QVector<ButtonSet> &buttonSets()
{
    using B = DialogButton;
    static const QVector<ButtonSet> sets{
        {"Bestätigen", B::Ok | B::Cancel, B::Ok},
        {"Fragen", B::Yes | B::No | B::Cancel, B::Yes},
        {"Wiederholen", B::Retry | B::Ignore | B::Cancel, B::Retry},
        {"Speichern", B::Save | B::NoSave | B::Cancel, B::Save},
        {"Ändern", B::Replace | B::Apply | B::Close, B::Apply},
        {"Lesezeichen", B::SetBookmark | B::DeleteBookmark | B::Close, B::SetBookmark},
        {"Rechnen", B::Calculate | B::GoToMapping, B::Calculate},
        {"Umfrage", B::SurveyNow | B::SurveyLater | B::SurveyNo, B::SurveyNow},
        {"Meinung", B::SurveyJa | B::SurveyNotReally, B::SurveyJa},
        {"Abschließen", B::AbgabeComplete | B::Accept | B::Next, B::AbgabeComplete}};
    return sets;
}

void open(QFlags<Dialog::DialogFlag> flags, const QString &title, bool shadow, QWidget *parent)
{
    auto *dialog = new SampleDialog(title, DialogButton::Ok | DialogButton::Cancel, DialogButton::Ok, flags);
    dialog->setParent(parent->window(), dialog->windowFlags());
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->setContent(makeForm());
    dialog->enableResize(true);
    dialog->setShadowEnabled(shadow);
    if (flags.testFlag(Dialog::Tool))
        dialog->show();
    else
        dialog->open();
}

} // namespace

DialogsPage::DialogsPage()
{
    addParts();
    addButtonSets();
    addTrial();
}

void DialogsPage::addParts()
{
    auto *grid = new QGridLayout;
    grid->setSpacing(pageMargin);
    for (int i = 0; i < samples().size(); ++i) {
        const Sample &sample = samples().at(i);
        grid->addLayout(picture(sample), i / 2, i % 2, Qt::AlignLeft | Qt::AlignTop);
    }
    grid->setColumnStretch(2, 1);
    addSection(QStringLiteral("Der Rahmen"),
               QStringLiteral("Titelleiste, Inhalt, Linie, Knopfreihe und Fußzeile. Hier nur zum Ansehen."))
        ->addLayout(grid);
}

void DialogsPage::addButtonSets()
{
    auto *grid = new QGridLayout;
    grid->setSpacing(pageMargin);
    for (int i = 0; i < buttonSets().size(); ++i) {
        const ButtonSet &set = buttonSets().at(i);
        auto *dialog = new SampleDialog(QString::fromUtf8(set.title), set.types, set.defaultButton);
        grid->addWidget(embedded(dialog), i / 2, i % 2, Qt::AlignLeft);
    }
    grid->setColumnStretch(2, 1);
    addSection(QStringLiteral("Knopfreihen"),
               QStringLiteral("Texte, Tasten und Rollen aller Knöpfe stehen fest."))
        ->addLayout(grid);
}

void DialogsPage::addTrial()
{
    struct Trial
    {
        const char *text;
        QFlags<Dialog::DialogFlag> flags;
        bool shadow;
    };
    auto *row = new QHBoxLayout;
    row->setSpacing(12);
    for (const Trial &trial :
         {Trial{"Dialog", Dialog::NoFlag, true}, Trial{"Ohne Schatten", Dialog::NoFlag, false},
          Trial{"Immer im Vordergrund", Dialog::StaysOnTop, true},
          Trial{"Werkzeugfenster", Dialog::Tool, true},
          Trial{"Dunkle Knopfreihe", Dialog::HasDarkBackground, true}}) {
        auto *button = new NVO::Button;
        button->setText(QString::fromUtf8(trial.text));
        connect(button, &QAbstractButton::clicked, this,
                [this, trial] { open(trial.flags, QString::fromUtf8(trial.text), trial.shadow, this); });
        row->addWidget(button);
    }
    row->addStretch();
    addSection(QStringLiteral("Zum Ausprobieren"),
               QStringLiteral("Die Titelleiste verschiebt den Dialog, seine Ränder ändern die Größe. Esc "
                              "schließt ihn, O und A drücken die Knöpfe."))
        ->addLayout(row);
}
