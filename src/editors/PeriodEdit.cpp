#include <nvo/PeriodEdit.h>

#include "editors/DateText.h"

namespace NVO {

namespace {

const QLatin1String joint(" - ");

} // namespace

PeriodEdit::PeriodEdit(QWidget *parent)
    : BaseDateEdit(ElementPeriodEdit, parent)
{
    updateMaskOrPlaceholder();
}

QDate PeriodEdit::startDate() const
{
    return half(0);
}

QDate PeriodEdit::endDate() const
{
    return half(1);
}

void PeriodEdit::setDate(const QDate &start, const QDate &end)
{
    if (!start.isValid() || !end.isValid()) {
        clear();
        return;
    }
    if (fixedYear() > 0 && (start.year() != fixedYear() || end.year() != fixedYear()))
        return;
    setText(
        DateText::withShortYear(stringFor(start, flags()) + joint + stringFor(end, flags()), fixedYear()));
}

QString PeriodEdit::inputMaskFor(Flags flags, int fixedYear)
{
    const QString part = maskPartFor(flags, fixedYear);
    return part + joint + part + QLatin1String(";_");
}

QString PeriodEdit::placeholderFor(Flags flags, int fixedYear)
{
    const QString part = placeholderPartFor(flags, fixedYear);
    return part + joint + part;
}

QValidator::State PeriodEdit::validate(const QString &text, Flags flags, int fixedYear)
{
    const QStringList halves = text.split(joint);
    if (halves.size() != 2)
        return QValidator::Invalid;
    QDate start;
    QDate end;
    const QValidator::State startState = validatePart(halves[0], flags, fixedYear, &start);
    const QValidator::State endState = validatePart(halves[1], flags, fixedYear, &end);
    // A half that is no date yet counts as earlier than any date.
    if (startState == QValidator::Invalid || endState == QValidator::Invalid || start > end)
        return QValidator::Invalid;
    return qMin(startState, endState);
}

QDate PeriodEdit::half(int index) const
{
    QDate date;
    const QStringList halves = displayText().split(joint);
    if (halves.size() == 2)
        validatePart(halves[index], flags(), fixedYear(), &date);
    return date;
}

} // namespace NVO
