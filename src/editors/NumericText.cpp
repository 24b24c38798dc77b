#include "editors/NumericText.h"

#include <QLocale>

namespace NVO {

namespace {

constexpr int fractionDigits = 2;
constexpr int groupDigits = 3;
constexpr QChar zero = QLatin1Char('0'); // is a digit in every locale
constexpr QChar blank = QLatin1Char(' ');
constexpr QChar minusSign(0x2212);

/** Replaces \a length units at \a start; the cursor keeps to the text on its left. */
void replace(QString &text, int &pos, int start, int length, const QString &by)
{
    text.replace(start, length, by);
    if (pos > start)
        pos = qMax(pos - length, start) + by.size();
}

bool standsAt(const QString &symbol, const QString &text, int start)
{
    return !symbol.isEmpty() && text.midRef(start).startsWith(symbol);
}

/** Where the number begins behind its sign, if it has one that the spin box may understand. */
int digitsStart(const QString &text, const NumericFormat &format)
{
    const int start = format.prefix.size();
    if (start >= text.size() || text.at(start).isDigit())
        return start;
    for (const QString *sign : {&format.negativeSign, &format.positiveSign}) {
        if (standsAt(*sign, text, start))
            return start + sign->size();
    }
    const QChar first = text.at(start);
    const bool isSign = first == QLatin1Char('-') || first == QLatin1Char('+') || first == minusSign;
    return isSign ? start + 1 : start;
}

int integerEnd(const QString &text, const NumericFormat &format)
{
    if (format.hasFraction)
        return text.indexOf(format.decimalPoint, format.prefix.size());
    return text.endsWith(format.suffix) ? text.size() - format.suffix.size() : text.size();
}

QStringRef number(const QString &text, const NumericFormat &format)
{
    QStringRef rest(&text);
    if (rest.startsWith(format.prefix))
        rest = rest.mid(format.prefix.size());
    if (rest.endsWith(format.suffix))
        rest.chop(format.suffix.size());
    return rest.trimmed();
}

/** Gives \a text the fraction that it has to have. One that has it stays as it is, with blanks around it. */
void completeFraction(QString &text, const NumericFormat &format)
{
    const QStringRef found = number(text, format);
    const int point = found.indexOf(format.decimalPoint);
    const int length = point + (format.hasFraction ? format.decimalPoint.size() + fractionDigits : 0);
    if (format.hasFraction ? point >= 0 && found.size() == length : point < 0)
        return;
    QString shaped = found.toString();
    if (point < 0)
        shaped += format.decimalPoint + QString(fractionDigits, zero);
    else
        shaped = shaped.leftJustified(length, zero, true);
    text = format.prefix + shaped + format.suffix;
}

/** Deleting the digits in front of a separator leaves it at the start. */
void removeLeadingSeparator(QString &text, int &pos, const NumericFormat &format)
{
    const int start = digitsStart(text, format);
    if (standsAt(format.groupSeparator, text, start))
        replace(text, pos, start, format.groupSeparator.size(), QString());
}

/**
 * The length of the separator that ends at \a end and does not begin before \a first; 0 if there is none.
 * Where numbers are grouped by a blank that does not break, people and other programs write a plain one,
 * and the spin box accepts it.
 */
int separatorLength(const QString &text, int first, int end, const NumericFormat &format)
{
    if (text.at(end - 1).isDigit())
        return 0;
    const QStringRef digits = text.midRef(first, end - first);
    if (digits.endsWith(format.groupSeparator))
        return format.groupSeparator.size();
    return digits.endsWith(blank) && format.groupSeparator.trimmed().isEmpty() ? 1 : 0;
}

void regroup(QString &text, int &pos, const NumericFormat &format)
{
    const int first = digitsStart(text, format);
    int digits = 0; // in the group so far
    for (int i = integerEnd(text, format); i > first;) {
        const int length = separatorLength(text, first, i, format);
        if (length == 0 && digits < groupDigits) {
            ++digits;
            --i;
            continue;
        }
        i -= length;
        const bool wanted = digits == groupDigits;
        const QString separator = wanted ? format.groupSeparator : QString();
        if (text.midRef(i, length) != separator)
            replace(text, pos, i, length, separator);
        if (wanted)
            digits = 0;
    }
}

} // namespace

NumericFormat::NumericFormat(const QLocale &locale)
    : decimalPoint(locale.decimalPoint())
    , groupSeparator(locale.groupSeparator())
    , negativeSign(locale.negativeSign())
    , positiveSign(locale.positiveSign())
{}

QValidator::State validateNumericText(QString &text, int &pos, const NumericFormat &format,
                                      const NumericVerdict &verdict)
{
    completeFraction(text, format);
    removeLeadingSeparator(text, pos, format);
    const QValidator::State state = verdict(text, pos);
    regroup(text, pos, format);
    return state;
}

} // namespace NVO
