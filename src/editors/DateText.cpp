#include "editors/DateText.h"

namespace NVO::DateText {

QString blank(const QString &mask)
{
    QString text;
    for (int i = 0; i < mask.size() && mask[i] != QLatin1Char(';'); ++i) {
        if (mask[i] == QLatin1Char('\\'))
            text += mask.midRef(++i, 1);
        else if (mask[i] == QLatin1Char('0') || mask[i] == QLatin1Char('9'))
            text += QLatin1Char('_');
        else
            text += mask[i];
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
