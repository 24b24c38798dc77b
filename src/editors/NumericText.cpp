#include "editors/NumericText.h"

namespace NVO {

namespace {

constexpr int fractionDigits = 2;
constexpr int groupDigits = 3;
constexpr QChar zero = QLatin1Char('0'); // is a digit in every locale

/** \a text without prefix, suffix and the blanks around. */
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
    QString shaped;
    if (point < 0 && format.hasFraction) {
        shaped = found + format.decimalPoint + QString(fractionDigits, zero);
    } else {
        const int length = format.hasFraction ? point + 1 + fractionDigits : point;
        if (point < 0 || found.size() == length)
            return;
        shaped = found.toString().leftJustified(length, zero, true);
    }
    text = format.prefix + shaped + format.suffix;
}

/** Where the number begins behind its sign; the spin box understands these three in every locale. */
int digitsStart(const QString &text, const NumericFormat &format)
{
    static const QString signs = QStringLiteral("-+\u2212");
    const int start = format.prefix.size();
    return start < text.size() && signs.contains(text.at(start)) ? start + 1 : start;
}

int integerEnd(const QString &text, const NumericFormat &format)
{
    if (format.hasFraction)
        return text.indexOf(format.decimalPoint, format.prefix.size());
    return text.endsWith(format.suffix) ? text.size() - format.suffix.size() : text.size();
}

/**
 * Where numbers are grouped by a blank that does not break, people and other programs write a plain one, and
 * the spin box accepts it.
 */
bool isSeparator(QChar unit, const NumericFormat &format)
{
    return unit == format.groupSeparator || (unit == QLatin1Char(' ') && format.groupSeparator.isSpace());
}

} // namespace

void completeNumber(QString &text, int &pos, const NumericFormat &format)
{
    completeFraction(text, format);
    // Deleting the digits in front of a separator leaves it at the start.
    const int start = digitsStart(text, format);
    if (start < text.size() && text.at(start) == format.groupSeparator) {
        text.remove(start, 1);
        if (pos > start)
            --pos;
    }
}

void groupNumber(QString &text, int &pos, const NumericFormat &format)
{
    const int first = digitsStart(text, format);
    int end = integerEnd(text, format);
    for (int i = end - 1; i >= first; --i) {
        const bool wanted = (end - i) % (groupDigits + 1) == 0;
        const bool found = isSeparator(text.at(i), format);
        if (wanted && !found) {
            text.insert(i + 1, format.groupSeparator);
            ++end;
            if (pos > i + 1)
                ++pos;
        } else if (!wanted && found) {
            text.remove(i, 1);
            --end;
            if (pos > i)
                --pos;
        } else if (found && text.at(i) != format.groupSeparator) {
            text[i] = format.groupSeparator;
        }
    }
}

} // namespace NVO
