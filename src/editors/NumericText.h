#pragma once

#include <QChar>
#include <QString>

namespace NVO {

/** What the text of a number is made of. */
struct NumericFormat
{
    QString prefix;
    QString suffix;
    QChar decimalPoint;
    QChar groupSeparator;
    bool hasFraction = true; ///< Two digits behind a decimal point, or neither.
};

/**
 * Gives \a text the shape of \a format but for the digit groups: the prefix, a number with exactly two
 * fraction digits, the suffix. \a pos, the cursor, stays and so may lie behind the end; it moves only with a
 * separator that is removed from the start of the number.
 */
void completeNumber(QString &text, int &pos, const NumericFormat &format);

/** Groups the digits before the fraction by threes; \a pos, the cursor, stays at its digit. */
void groupNumber(QString &text, int &pos, const NumericFormat &format);

} // namespace NVO
