#pragma once

#include <nvo/BaseDateEdit.h>

#include <QDate>

namespace NVO {

/** A field for one date. */
class NVO_EXPORT DateEdit : public BaseDateEdit
{
    Q_OBJECT

public:
    explicit DateEdit(QWidget *parent = nullptr);

    /** The date that the text names, or the null date while it names none. */
    QDate date() const;

    /**
     * Writes \a date. An invalid one clears the field; one outside of a fixed year is ignored. Years that no
     * one could type, below 1 or above 2999, make no date.
     */
    void setDate(QDate date);

private:
    QString inputMaskFor(Flags flags, int fixedYear) override;
    QString placeholderFor(Flags flags, int fixedYear) override;
    QValidator::State validate(const QString &text, Flags flags, int fixedYear) override;
};

} // namespace NVO
