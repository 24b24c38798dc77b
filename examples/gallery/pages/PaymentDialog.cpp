#include "pages/PaymentDialog.h"

#include "pages/FormCheck.h"
#include "pages/InvoiceForm.h"
#include "pages/PageSupport.h"

#include <nvo/ComboBox.h>
#include <nvo/DateEdit.h>
#include <nvo/Label.h>
#include <nvo/NumericEdit.h>

#include <QGridLayout>

namespace {

constexpr int contentMargin = 20;
constexpr int fieldWidth = 200;
constexpr int maximumAmount = 9999999;

} // namespace

PaymentDialog::PaymentDialog(const QString &invoice, const QDate &invoiceDate, double openAmount,
                             QWidget *parent)
    : Dialog(parent, NVO::ElementDialog, NVO::DialogButton::Ok | NVO::DialogButton::Cancel,
             NVO::DialogButton::Ok, NoFlag)
    , m_date(new NVO::DateEdit)
    , m_amount(new NVO::NumericEdit)
    , m_way(new NVO::ComboBox)
{
    setWindowTitle(QStringLiteral("Zahlung erfassen"));
    enableCloseButton(true);
    m_date->setFixedYear(invoiceDate.year());
    m_amount->setRange(maximumAmount, 2, QStringLiteral("€"), NVO::NumericEdit::NoFlag);
    m_amount->setValue(openAmount);
    m_way->addItems({QStringLiteral("Überweisung"), QStringLiteral("Lastschrift"), QStringLiteral("Bar")});

    auto *content = new QWidget;
    auto *grid = new QGridLayout(content);
    grid->setContentsMargins(contentMargin, contentMargin, contentMargin, contentMargin);
    grid->setHorizontalSpacing(16);
    grid->setVerticalSpacing(10);
    grid->addWidget(makeLabel(QStringLiteral("Zu <b>%1</b> sind noch <b>%2</b> offen.")
                                  .arg(invoice, InvoiceForm::money(openAmount))),
                    0, 0, 1, 2);
    const auto addRow = [grid](const QString &name, QWidget *field) {
        NVO::Label *label = makeLabel(name);
        label->setBuddy(field);
        field->setMinimumWidth(fieldWidth);
        const int row = grid->rowCount();
        grid->addWidget(label, row, 0);
        grid->addWidget(field, row, 1);
    };
    addRow(QStringLiteral("Eingegangen am"), m_date);
    addRow(QStringLiteral("Betrag"), m_amount);
    addRow(QStringLiteral("Zahlungsart"), m_way);
    grid->setColumnStretch(1, 1);
    setContent(content);

    m_check = new FormCheck(content);
    m_check->add(m_date, [this, invoiceDate] { return dateFinding(invoiceDate); });
    m_check->add(m_amount, [this, openAmount] { return amountFinding(openAmount); });
}

QString PaymentDialog::dateFinding(const QDate &invoiceDate) const
{
    if (!m_date->date().isValid())
        return QStringLiteral(
            "<b>Der Tag des Zahlungseingangs fehlt.</b><br>Bitte geben Sie Tag und Monat an.");
    if (m_date->date() >= invoiceDate)
        return QString();
    return QStringLiteral(
               "<b>Die Zahlung liegt vor der Rechnung.</b><br>Diese ist vom %1; was vorher einging, "
               "ist eine Anzahlung.")
        .arg(invoiceDate.toString(QStringLiteral("dd.MM.yyyy")));
}

QString PaymentDialog::amountFinding(double openAmount) const
{
    if (m_amount->value() > openAmount)
        return QStringLiteral("<b>Der Betrag ist zu hoch.</b><br>Es sind nur noch %1 offen.")
            .arg(InvoiceForm::money(openAmount));
    return m_amount->value() > 0
               ? QString()
               : QStringLiteral("<b>Der Betrag fehlt.</b><br>Eine Zahlung beginnt bei 0,01 €.");
}

QString PaymentDialog::summary() const
{
    return QStringLiteral("%1 am %2, %3")
        .arg(InvoiceForm::money(m_amount->value()), m_date->text(), m_way->currentText());
}

bool PaymentDialog::checkAccept()
{
    return m_check->checkAll();
}
