#pragma once

#include <nvo/Dialog.h>

#include <QDate>

class FormCheck;

namespace NVO {
class ComboBox;
class DateEdit;
class NumericEdit;
} // namespace NVO

/** Asks for a payment of an invoice. It cannot be accepted as long as a field is wrong. */
class PaymentDialog : public NVO::Dialog
{
    Q_OBJECT

public:
    /** \a invoiceDate is the first day of a payment, \a openAmount the most that can be paid. */
    PaymentDialog(const QString &invoice, const QDate &invoiceDate, double openAmount, QWidget *parent);

    /** The payment in a few words. */
    QString summary() const;

    FormCheck *check() const { return m_check; }
    NVO::NumericEdit *amountField() const { return m_amount; }

protected:
    bool checkAccept() override;

private:
    QString dateFinding(const QDate &invoiceDate) const;
    QString amountFinding(double openAmount) const;

    NVO::DateEdit *m_date;
    NVO::NumericEdit *m_amount;
    NVO::ComboBox *m_way;
    FormCheck *m_check;
};
