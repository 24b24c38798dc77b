#pragma once

#include <nvo/BaseDateEdit.h>

#include <QDate>

namespace NVO {

/**
 * A field for a period, "01.01.2019 - 31.03.2019". Both dates have the form of the flags and the fixed year.
 *
 * A period that ends before it starts is no date. So is one with a start and no end, in which the keys that
 * change a number do nothing.
 */
class NVO_EXPORT PeriodEdit : public BaseDateEdit
{
    Q_OBJECT

public:
    explicit PeriodEdit(QWidget *parent = nullptr);

    /** The first date, or the null date while the text names none; whatever the second one is. */
    QDate startDate() const;

    /** The second date, or the null date while the text names none; whatever the first one is. */
    QDate endDate() const;

    /** Writes a period. Clears the field if a date is invalid; does nothing if one is outside of a fixed
     * year. */
    void setDate(const QDate &start, const QDate &end);

private:
    QString inputMaskFor(Flags flags, int fixedYear) override;
    QString placeholderFor(Flags flags, int fixedYear) override;
    QValidator::State validate(const QString &text, Flags flags, int fixedYear) override;

    QDate half(int index) const;
};

} // namespace NVO
