#pragma once

#include <QDate>
#include <QWidget>

class FormCheck;

namespace NVO {
class ComboBox;
class DateEdit;
class Label;
class LineEdit;
class NumericEdit;
class PeriodEdit;
} // namespace NVO

/** The fields of an outgoing invoice, which check themselves and compute the tax. */
class InvoiceForm : public QWidget
{
    Q_OBJECT

public:
    InvoiceForm();

    /** Takes away what was entered; the next free number is there. */
    void clear();
    /** An invoice as it could be entered. */
    void fillWithSample();

    FormCheck *check() const { return m_check; }
    NVO::DateEdit *dueDateField() const { return m_dueDate; }

    QString number() const;
    QDate date() const;
    double gross() const;
    double openAmount() const;

    /** \a amount as amounts are written, with the currency. */
    static QString money(double amount);

private:
    void makeFields();
    void addRows();
    void addChecks();
    void compute();
    QString customerFinding() const;
    QString numberFinding() const;
    QString dateFinding() const;
    QString dueDateFinding() const;
    QString periodFinding() const;
    QString paidFinding() const;

    NVO::LineEdit *m_customer;
    NVO::LineEdit *m_number;
    NVO::DateEdit *m_date;
    NVO::DateEdit *m_dueDate;
    NVO::PeriodEdit *m_period;
    NVO::NumericEdit *m_net;
    NVO::ComboBox *m_rate;
    NVO::NumericEdit *m_tax;
    NVO::NumericEdit *m_gross;
    NVO::NumericEdit *m_paid;
    NVO::NumericEdit *m_open;
    NVO::Label *m_record;
    FormCheck *m_check;
};
