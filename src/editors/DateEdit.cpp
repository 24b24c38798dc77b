#include <nvo/DateEdit.h>

namespace NVO {

DateEdit::DateEdit(QWidget *parent)
    : BaseDateEdit(ElementDateEdit, parent)
{
    updateMaskOrPlaceholder();
}

QDate DateEdit::date() const
{
    QDate date;
    validatePart(text(), flags(), fixedYear(), &date);
    return date;
}

void DateEdit::setDate(QDate date)
{
    if (!date.isValid())
        clear();
    else if (fixedYear() <= 0 || date.year() == fixedYear())
        setText(stringFor(date, flags()));
}

QString DateEdit::inputMaskFor(Flags flags, int fixedYear)
{
    return maskPartFor(flags, fixedYear) + QLatin1String(";_");
}

QString DateEdit::placeholderFor(Flags flags, int fixedYear)
{
    return placeholderPartFor(flags, fixedYear);
}

QValidator::State DateEdit::validate(const QString &text, Flags flags, int fixedYear)
{
    return validatePart(text, flags, fixedYear, nullptr);
}

} // namespace NVO
