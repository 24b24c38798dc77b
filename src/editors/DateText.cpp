#include "editors/DateText.h"

namespace NVO::DateText {

QString blank(const QString &mask)
{
    QString text;
    bool escaped = false;
    for (const QChar character : mask) {
        const bool isPlace = character == QLatin1Char('0') || character == QLatin1Char('9');
        if (escaped)
            text += character;
        else if (character == QLatin1Char(';'))
            break;
        else if (character != QLatin1Char('\\'))
            text += isPlace ? QLatin1Char('_') : character;
        escaped = !escaped && character == QLatin1Char('\\');
    }
    return text;
}

QString stepped(const QString &text, int cursor, int delta)
{
    const auto at = [&text](int i) { return i >= 0 && i < text.size() ? text[i] : QChar(); };

    int i = cursor < text.size() ? cursor : cursor - 1;
    if (!at(i).isDigit())
        --i;
    if (!at(i).isDigit())
        return {};
    int start = i;
    int end = i;
    while (at(end).isDigit())
        ++end;
    while (at(start - 1).isDigit())
        --start;
    bool ok = false;
    const qint64 number = text.midRef(start, end - start).toInt(&ok);
    if (!ok)
        return {};
    while (at(end) == QLatin1Char('_'))
        ++end;
    while (at(start - 1) == QLatin1Char('_'))
        --start;
    return QString(text).replace(
        start, end - start, QString::number(number + delta).rightJustified(end - start, QLatin1Char('0')));
}

QString withShortYear(const QString &text, int fixedYear)
{
    if (fixedYear <= 0)
        return text;
    const QString year = QString::number(fixedYear);
    return QString(text).replace(year.rightJustified(4, QLatin1Char('0')), year);
}

} // namespace NVO::DateText
