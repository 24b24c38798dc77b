#pragma once

#include <QString>
#include <QValidator>

#include <functional>

class QLocale;

namespace NVO {

/** What the text of a number is made of, each symbol of any number of UTF-16 units. */
struct NumericFormat
{
    NumericFormat() = default;
    explicit NumericFormat(const QLocale &locale);

    QString prefix;
    QString suffix;
    QString decimalPoint;
    QString groupSeparator;
    QString negativeSign;
    QString positiveSign;
    bool hasFraction = true; ///< Two digits behind a decimal point, or neither.
};

/** Judges a text and may change it and the cursor in it. */
using NumericVerdict = std::function<QValidator::State(QString &text, int &pos)>;

/**
 * Gives \a text the shape of \a format: the prefix, a number with exactly two fraction digits, the suffix.
 * Then \a verdict judges the text, and last its digits are grouped by threes. Returns what \a verdict says.
 *
 * \a pos, the cursor, moves with what is put in or taken out before it, save the blanks around a number that
 * had to be completed or cut, so that it may lie behind the end.
 */
QValidator::State validateNumericText(QString &text, int &pos, const NumericFormat &format,
                                      const NumericVerdict &verdict);

} // namespace NVO
