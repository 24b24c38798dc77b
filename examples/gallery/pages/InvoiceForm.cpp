#include "pages/InvoiceForm.h"

#include "pages/FormCheck.h"
#include "pages/PageSupport.h"

#include <nvo/ComboBox.h>
#include <nvo/DateEdit.h>
#include <nvo/Label.h>
#include <nvo/LineEdit.h>
#include <nvo/NumericEdit.h>
#include <nvo/PeriodEdit.h>

#include <QFrame>
#include <QGridLayout>
#include <QVBoxLayout>

#include <algorithm>
#include <cmath>

namespace {

constexpr int year = 2026;
constexpr int maximumAmount = 9999999;
constexpr int fieldWidth = 250;
constexpr int recordWidth = 400;

/** A tax rate, and the accounts to which it is booked. */
struct Rate
{
    int percent;
    const char *text;
    const char *revenue;
    const char *tax;
};

constexpr Rate rates[]{{19, "19 % Regelsatz", "8400 Erlöse 19 % USt", "1776 Umsatzsteuer 19 %"},
                       {7, "7 % ermäßigt", "8300 Erlöse 7 % USt", "1771 Umsatzsteuer 7 %"},
                       {0, "0 % Photovoltaik", "8290 Erlöse 0 % USt", ""}};

NVO::NumericEdit *makeAmount(NVO::NumericEdit::Flags flags = NVO::NumericEdit::NoFlag)
{
    auto *field = new NVO::NumericEdit;
    field->setRange(maximumAmount, 2, QStringLiteral("€"), flags);
    return field;
}

NVO::NumericEdit *makeResult(NVO::NumericEdit::Flags flags = NVO::NumericEdit::NoFlag)
{
    NVO::NumericEdit *field = makeAmount(flags);
    field->setReadOnly(true);
    field->setFocusPolicy(Qt::ClickFocus); // nothing to enter here
    return field;
}

NVO::DateEdit *makeDate()
{
    auto *field = new NVO::DateEdit;
    field->setFixedYear(year);
    return field;
}

QString finding(const QString &mistake, const QString &advice)
{
    return QStringLiteral("<b>%1</b><br>%2").arg(mistake, advice);
}

/** Why \a field holds no date; it is called before the field clears a day that does not exist. */
QString missingDate(const NVO::DateEdit *field, const QString &name)
{
    const QString digits = field->text().left(6).remove(QLatin1Char('.'));
    if (digits.isEmpty())
        return finding(QStringLiteral("%1 fehlt.").arg(name),
                       QStringLiteral("Das Jahr %1 steht schon da, es fehlen Tag und Monat.").arg(year));
    return finding(QStringLiteral("„%1“ ist kein Datum.").arg(field->text()),
                   QStringLiteral("Diesen Tag gibt es nicht, die Eingabe wurde verworfen."));
}

QString dateText(const QDate &date)
{
    return date.toString(QStringLiteral("dd.MM.yyyy"));
}

QString recordRow(const QString &side, const QString &account, double amount)
{
    return QStringLiteral("<tr><td>%1</td><td>%2</td><td align=\"right\">%3</td></tr>")
        .arg(side, account, InvoiceForm::money(amount));
}

} // namespace

InvoiceForm::InvoiceForm()
    : m_check(new FormCheck(this))
{
    makeFields();
    addRows();
    addChecks();
    for (NVO::NumericEdit *field : {m_net, m_paid})
        connect(field, QOverload<double>::of(&QDoubleSpinBox::valueChanged), this, &InvoiceForm::compute);
    connect(m_rate, QOverload<int>::of(&QComboBox::currentIndexChanged), this, &InvoiceForm::compute);
    clear();
}

void InvoiceForm::makeFields()
{
    m_customer = new NVO::LineEdit;
    m_customer->setPlaceholderText(QStringLiteral("Firma oder Name"));
    m_number = new NVO::LineEdit;
    m_number->setInputMask(QStringLiteral("RE-9999-9999;_"));
    m_date = makeDate();
    m_dueDate = makeDate();
    m_period = new NVO::PeriodEdit;
    m_period->setFixedYear(year);
    m_net = makeAmount();
    m_rate = new NVO::ComboBox;
    for (const Rate &rate : rates)
        m_rate->addItem(QString::fromUtf8(rate.text));
    m_tax = makeResult();
    m_gross = makeResult();
    m_paid = makeAmount(NVO::NumericEdit::ZeroSymbol);
    m_open = makeResult(NVO::NumericEdit::AllowNegativ);
    m_record = makeLabel(QString());
}

void InvoiceForm::addRows()
{
    auto *grid = new QGridLayout(this);
    grid->setContentsMargins(0, 0, 0, 0);
    grid->setHorizontalSpacing(16);
    grid->setVerticalSpacing(8);
    const auto addRow = [grid](const QString &name, QWidget *field) {
        NVO::Label *label = makeLabel(name);
        label->setBuddy(field);
        field->setMinimumWidth(fieldWidth);
        const int row = grid->rowCount();
        grid->addWidget(label, row, 0);
        grid->addWidget(field, row, 1, Qt::AlignLeft);
    };
    const auto addHeading = [grid](const QString &text) {
        const int row = grid->rowCount();
        grid->addWidget(makeLabel(text, NVO::Font::DEFAULT, LabelRole::Name), row, 0, 1, 2);
    };
    addHeading(QStringLiteral("Beleg"));
    addRow(QStringLiteral("Kunde"), m_customer);
    addRow(QStringLiteral("Rechnungsnummer"), m_number);
    addRow(QStringLiteral("Rechnungsdatum"), m_date);
    addRow(QStringLiteral("Fällig am"), m_dueDate);
    addRow(QStringLiteral("Leistungszeitraum"), m_period);
    auto *gap = new QWidget; // a row without a widget would not count
    gap->setFixedHeight(4);
    grid->addWidget(gap, grid->rowCount(), 0);
    const int amounts = grid->rowCount();
    addHeading(QStringLiteral("Beträge"));
    addRow(QStringLiteral("Nettobetrag"), m_net);
    addRow(QStringLiteral("Steuersatz"), m_rate);
    addRow(QStringLiteral("Umsatzsteuer"), m_tax);
    addRow(QStringLiteral("Rechnungsbetrag"), m_gross);
    addRow(QStringLiteral("Anzahlung in vollen Euro"), m_paid);
    addRow(QStringLiteral("Noch offen"), m_open);

    QFrame *ground = makeGround(Ground::Window);
    auto *column = new QVBoxLayout(ground);
    column->setContentsMargins(cardPadding, cardPadding, cardPadding, cardPadding);
    column->addWidget(makeLabel(QStringLiteral("Buchungssatz"), NVO::Font::DEFAULT, LabelRole::Name));
    column->addWidget(m_record);
    ground->setMinimumWidth(recordWidth);
    grid->setColumnMinimumWidth(2, 2 * pageMargin);
    grid->addWidget(ground, amounts, 3, grid->rowCount() - amounts, 1, Qt::AlignTop);
    grid->setColumnStretch(3, 1);
}

void InvoiceForm::addChecks()
{
    m_check->add(m_customer, [this] { return customerFinding(); });
    m_check->add(m_number, [this] { return numberFinding(); });
    m_check->add(m_date, [this] { return dateFinding(); });
    m_check->add(m_dueDate, [this] { return dueDateFinding(); });
    m_check->add(m_period, [this] { return periodFinding(); });
    m_check->add(m_net, [this] {
        return m_net->value() > 0
                   ? QString()
                   : finding(QStringLiteral("Der Nettobetrag fehlt."),
                             QStringLiteral("Eine Rechnung über 0,00 € lässt sich nicht buchen."));
    });
    m_check->add(m_paid, [this] { return paidFinding(); });
}

QString InvoiceForm::customerFinding() const
{
    if (!m_customer->text().trimmed().isEmpty())
        return QString();
    return finding(QStringLiteral("Der Kunde fehlt."),
                   QStringLiteral("Ohne Empfänger ist eine Rechnung nicht gültig."));
}

QString InvoiceForm::numberFinding() const
{
    if (!m_number->hasAcceptableInput())
        return finding(
            QStringLiteral("Die Rechnungsnummer ist unvollständig."),
            QStringLiteral("Sie besteht aus dem Jahr und vier Ziffern, zum Beispiel RE-2026-0418."));
    const QString numberYear = m_number->text().section(QLatin1Char('-'), 1, 1);
    if (numberYear.toInt() == year)
        return QString();
    return finding(QStringLiteral("Die Rechnungsnummer gehört ins Jahr %1.").arg(numberYear),
                   QStringLiteral("Gebucht wird im Wirtschaftsjahr %1.").arg(year));
}

QString InvoiceForm::dateFinding() const
{
    return m_date->date().isValid() ? QString() : missingDate(m_date, QStringLiteral("Das Rechnungsdatum"));
}

QString InvoiceForm::dueDateFinding() const
{
    if (!m_dueDate->date().isValid())
        return missingDate(m_dueDate, QStringLiteral("Das Datum der Fälligkeit"));
    if (!m_date->date().isValid() || m_dueDate->date() >= m_date->date())
        return QString();
    return finding(
        QStringLiteral("Fällig vor dem Rechnungsdatum."),
        QStringLiteral("Die Rechnung ist vom %1. Bitte geben Sie diesen Tag oder einen späteren an.")
            .arg(dateText(m_date->date())));
}

QString InvoiceForm::periodFinding() const
{
    const QDate start = m_period->startDate();
    const QDate end = m_period->endDate();
    if (!start.isValid() || !end.isValid())
        return finding(QStringLiteral("Der Leistungszeitraum ist nicht vollständig."),
                       QStringLiteral("Bitte geben Sie den ersten und den letzten Tag an."));
    if (start <= end)
        return QString();
    return finding(QStringLiteral("Der Leistungszeitraum endet vor seinem Beginn."),
                   QStringLiteral("Der %1 liegt nach dem %2, die Eingabe wurde verworfen.")
                       .arg(dateText(start), dateText(end)));
}

QString InvoiceForm::paidFinding() const
{
    if (std::round(m_paid->value()) <= gross())
        return QString();
    return finding(QStringLiteral("Die Anzahlung ist zu hoch."),
                   QStringLiteral("Sie übersteigt den Rechnungsbetrag von %1.").arg(money(gross())));
}

void InvoiceForm::compute()
{
    const Rate &rate = rates[std::max(m_rate->currentIndex(), 0)];
    const double net = m_net->value();
    m_tax->setValue(std::round(net * rate.percent) / 100);
    m_gross->setValue(net + m_tax->value());
    m_open->setValue(gross() - m_paid->value());

    QString rows = recordRow(QStringLiteral("Soll"), QStringLiteral("1400 Forderungen"), gross());
    rows += recordRow(QStringLiteral("Haben"), QString::fromUtf8(rate.revenue), net);
    if (rate.percent > 0)
        rows += recordRow(QStringLiteral("Haben"), QString::fromUtf8(rate.tax), m_tax->value());
    m_record->setText(QStringLiteral("<table width=\"100%\" cellspacing=\"4\">%1</table>").arg(rows));
}

void InvoiceForm::clear()
{
    m_customer->clear();
    m_number->setText(QStringLiteral("RE-2026-0418"));
    m_date->setDate(QDate(year, 5, 12));
    m_dueDate->setDate(QDate(year, 5, 26));
    m_period->clear();
    m_net->setValue(0);
    m_rate->setCurrentIndex(0);
    m_paid->setValue(0);
    m_check->forget();
    m_period->setLineEditStyle(NVO::PeriodEdit::Due);
    m_period->setToolTip(QStringLiteral("Der Leistungszeitraum ist noch anzugeben."));
    compute();
}

void InvoiceForm::fillWithSample()
{
    m_customer->setText(QStringLiteral("Muster GmbH"));
    m_period->setDate(QDate(year, 4, 1), QDate(year, 4, 30));
    m_net->setValue(1000);
    m_paid->setValue(500);
    m_check->forget();
}

QString InvoiceForm::number() const
{
    return m_number->text();
}

QDate InvoiceForm::date() const
{
    return m_date->date();
}

double InvoiceForm::gross() const
{
    return m_gross->value();
}

double InvoiceForm::openAmount() const
{
    return m_open->value();
}

QString InvoiceForm::money(double amount)
{
    return QLocale().toString(amount, 'f', 2) + QStringLiteral(" €");
}
