#include "pages/MessagesPage.h"

#include "pages/EmbeddedDialog.h"
#include "pages/PageSupport.h"

#include <nvo/Button.h>
#include <nvo/Label.h>
#include <nvo/MessageBox.h>
#include <nvo/SelectionMessageBoxBase.h>

#include <QDialog>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QVBoxLayout>

namespace {

bool asksBeforeDeleting = true; // until the gallery ends

using NVO::DialogButton;
using NVO::MessageBox;

/** A selection box with the push buttons of the house. */
class ExportBox : public NVO::SelectionMessageBoxBase
{
public:
    explicit ExportBox(QWidget *parent)
        : SelectionMessageBoxBase(parent, QStringLiteral("Daten ausgeben"),
                                  QStringLiteral("Wie möchten Sie die Buchungen ausgeben?"),
                                  QStringLiteral("Zeitraum: April 2026, 1.204 Buchungen"),
                                  DialogButton::Cancel, QStringLiteral("hilfe/ausgabe.html"))
    {
        const QVector<ButtonBase> choices{
            {QPixmap(), QStringLiteral("Für die Steuerberatung"), QString(), QString()},
            {QPixmap(), QStringLiteral("Als Tabelle"), QString(), QString()},
            {QPixmap(), QStringLiteral("Auf Papier"), QString(), QString()}};
        auto *column = buttonsContainer()->layout();
        column->setSpacing(8);
        column->setContentsMargins(20, 0, 20, 0);
        for (const ButtonBase &choice : choices) {
            auto *button = new NVO::Button;
            button->setText(choice.title);
            button->setButtonStyle(column->isEmpty() ? NVO::Button::Primary : NVO::Button::Normal);
            connect(button, &QAbstractButton::clicked, this, &QDialog::accept);
            column->addWidget(button);
        }
        setInfoBox(NVO::InfoBox::Info,
                   QStringLiteral("<b>Drei Buchungen sind vorläufig.</b> Sie werden mit ausgegeben."),
                   QPixmap(), Qt::AlignTop);
        setInfoBoxVisible(true);
        setCheckBoxText(QStringLiteral("Auswahl merken"));
        setCheckBoxVisible(true);
    }
};

QWidget *sample(QMessageBox::Icon icon, const QString &title, const QString &text,
                QFlags<DialogButton::ButtonType> buttons, DialogButton::ButtonType defaultButton)
{
    return embedded(new MessageBox(icon, title, text, buttons, defaultButton, nullptr));
}

QGridLayout *makeGrid()
{
    auto *grid = new QGridLayout;
    grid->setSpacing(12);
    grid->setColumnStretch(2, 1);
    return grid;
}

} // namespace

MessagesPage::MessagesPage()
{
    addIcons();
    addTexts();
    addSelection();
    addFlow();
}

void MessagesPage::addIcons()
{
    auto *grid = makeGrid();
    const auto add = [grid](QWidget *box) {
        const int place = grid->count();
        grid->addWidget(box, place / 2, place % 2, Qt::AlignLeft | Qt::AlignTop);
    };
    add(sample(QMessageBox::Information, QStringLiteral("Ausgabe"),
               QStringLiteral("Die Auswertung wurde gespeichert."), DialogButton::Ok, DialogButton::Ok));
    add(sample(QMessageBox::Question, QStringLiteral("Beenden"),
               QStringLiteral("Möchten Sie die Änderungen speichern?"),
               DialogButton::Save | DialogButton::NoSave | DialogButton::Cancel, DialogButton::Save));
    add(sample(QMessageBox::Warning, QStringLiteral("Periode"),
               QStringLiteral("Der April 2026 ist bereits festgeschrieben."),
               DialogButton::Ignore | DialogButton::Cancel, DialogButton::Cancel));
    add(sample(QMessageBox::Critical, QStringLiteral("Verbindung"),
               QStringLiteral("Die Bank antwortet nicht. <a href=\"protokoll\">Protokoll anzeigen</a>"),
               DialogButton::Retry | DialogButton::Close, DialogButton::Retry));
    addSection(QStringLiteral("Vier Anlässe"), QStringLiteral("Ein kurzer Text steht auf 520 Pixeln."))
        ->addLayout(grid);
}

void MessagesPage::addTexts()
{
    auto *grid = makeGrid();
    grid->addWidget(
        sample(
            QMessageBox::Warning, QStringLiteral("Umsatzsteuer-Voranmeldung"),
            QStringLiteral("Zu <b>drei Buchungen</b> fehlt der Beleg. Sie können die Voranmeldung trotzdem "
                           "übermitteln; die Finanzverwaltung kann die Belege aber nachfordern. Was noch "
                           "fehlt, steht in der <a href=\"liste\">Liste der offenen Belege</a>, die Sie auch "
                           "später unter „Auswertung“ finden."),
            DialogButton::Yes | DialogButton::No, DialogButton::No),
        0, 0, 1, 2, Qt::AlignLeft);
    auto *box = new MessageBox(QMessageBox::Question, QStringLiteral("Rechnung löschen?"),
                               QStringLiteral("Die Rechnung 2026-0417 wird gelöscht."),
                               DialogButton::Yes | DialogButton::No, DialogButton::No, nullptr);
    box->setCheckbox(QStringLiteral("Nicht mehr fragen"), Qt::Checked);
    box->setHelpFilePath(QStringLiteral("hilfe/rechnung.html"));
    grid->addWidget(embedded(box), 1, 0, Qt::AlignLeft | Qt::AlignTop);
    grid->addWidget(sample(QMessageBox::NoIcon, QStringLiteral("Ohne Bild"),
                           QStringLiteral("Der Text beginnt am linken Rand."), DialogButton::Close,
                           DialogButton::Close),
                    1, 1, Qt::AlignLeft | Qt::AlignTop);
    addSection(QStringLiteral("Länge und Zusatz"),
               QStringLiteral("Ein Text, der umbricht, bekommt 630 Pixel. Das Ankreuzfeld steht unter der "
                              "Knopfreihe."))
        ->addLayout(grid);
}

void MessagesPage::addSelection()
{
    addSection(QStringLiteral("Auswahl"), QStringLiteral("Große Schaltflächen statt einer Knopfreihe."))
        ->addWidget(embedded(new ExportBox(nullptr)), 0, Qt::AlignLeft);
}

void MessagesPage::addFlow()
{
    auto *button = new NVO::Button;
    button->setText(QStringLiteral("Rechnung löschen …"));
    connect(button, &QAbstractButton::clicked, this, &MessagesPage::deleteInvoice);
    auto *choose = new NVO::Button;
    choose->setText(QStringLiteral("Daten ausgeben …"));
    connect(choose, &QAbstractButton::clicked, this, [this] { ExportBox(this).exec(); });
    m_outcome = makeCaption(QString());
    auto *row = new QHBoxLayout;
    row->setSpacing(12);
    row->addWidget(button);
    row->addWidget(choose);
    row->addWidget(m_outcome, 1);
    addSection(QStringLiteral("Ein Ablauf"),
               QStringLiteral("„Nicht mehr fragen“ gilt, bis die Galerie beendet wird."))
        ->addLayout(row);
}

void MessagesPage::deleteInvoice()
{
    const QString number = QStringLiteral("2026-%1").arg(m_nextInvoice, 4, 10, QLatin1Char('0'));
    if (asksBeforeDeleting) {
        MessageBox box(QMessageBox::Question, QStringLiteral("Rechnung löschen?"),
                       QStringLiteral("Die Rechnung <b>%1</b> wird gelöscht. Das lässt sich nicht rückgängig "
                                      "machen.")
                           .arg(number),
                       DialogButton::Yes | DialogButton::No, DialogButton::No, this);
        box.setCheckbox(QStringLiteral("Nicht mehr fragen"), Qt::Unchecked);
        if (box.exec() != QDialog::Accepted) {
            m_outcome->setText(QStringLiteral("Die Rechnung %1 bleibt.").arg(number));
            return;
        }
        asksBeforeDeleting = !box.isChecked();
    }
    ++m_nextInvoice;
    m_outcome->setText(QStringLiteral("Die Rechnung %1 wurde gelöscht.").arg(number));
}
