#pragma once

#include <nvo/BaseEdit.h>

#include <QValidator>

class QDate;

namespace NVO {

/**
 * The base of the fields for dates in the German order of day, month and year.
 *
 * The text is all that such a field knows of its value: reading a date parses it, setting one writes it. The
 * flags say which parts a date shows and what stands between them; a fixed year shows, but is not typed. A
 * part that is not shown is 1 for day and month and 2000 for the year, unless the year is fixed.
 *
 * A field has two faces. With the focus, or with a complete text, an input mask shows where digits go. An
 * empty field without the focus shows the form of its dates in grey, such as "dd.mm.jjjj". The face changes
 * when the focus comes or goes and with flags and fixed year, and a text that is no date then, or none any
 * more, is cleared. The cursor begins at the first place then; only a menu leaves a date with its selection.
 * Parts may be shorter than their places, so that "5.3.2019" is complete, and a year of two digits is one of
 * the first century. Days up to 39, months up to 19 and years up to 2999 can be typed.
 *
 * Up and Down change the number at the cursor by 1, PageUp and PageDown by 10, within those bounds and
 * without a carry to its neighbour. The four keys never reach the parent. They do nothing while a modifier is
 * held or the field is read-only.
 *
 * The signals are those of QLineEdit. While a field is empty, the form of its dates is its accessible
 * description, unless the application has set one.
 */
class NVO_EXPORT BaseDateEdit : public BaseEdit
{
    Q_OBJECT
    Q_PROPERTY(Flags flags READ flags WRITE setFlags)
    Q_PROPERTY(int fixedYear READ fixedYear WRITE setFixedYear)

public:
    /** Which parts of a date are shown and what stands between them; the last four name whole forms. */
    enum Flag : int {
        NoFlag = 0,
        HideDay = 1,
        HideMonth = 2,
        HideYear = 4,
        SeparatorSlash = 8, ///< "/" follows day and month, else ".".
        DayMonthYear = 0,   ///< "05.03.2019"
        DayMonth = 4,       ///< "05.03."
        MonthYear = 9,      ///< "03/2019"
        Year = 3            ///< "2019"
    };
    Q_DECLARE_FLAGS(Flags, Flag)
    Q_FLAG(Flags)

    explicit BaseDateEdit(Element element);
    BaseDateEdit(Element element, QWidget *parent);

    Flags flags() const { return m_flags; }

    /** Changes the form. A text that is no date in the new form is cleared. */
    void setFlags(Flags flags);

    int fixedYear() const { return m_fixedYear; }

    /** Fixes the year; 0 or less sets it free. A text with another year is cleared. */
    void setFixedYear(int year);

public Q_SLOTS:
    /**
     * Empties the field and takes the cursor to its start. Where there is no text to clear, none is reported
     * as changed, so that a slot of textChanged() may call this. The fixed year is not cleared, and the face
     * stays.
     */
    void clear();

protected:
    /** The places and separators of one date in the language of QLineEdit::inputMask(), without a blank. */
    static QString maskPartFor(Flags flags, int fixedYear);

    /** The form of one date for the eye. */
    static QString placeholderPartFor(Flags flags, int fixedYear);

    /** \a date as text, with zeros in front of short numbers. The year is that of \a date in any case. */
    static QString stringFor(const QDate &date, Flags flags);

    /**
     * Judges \a text as one date. Intermediate is what can become a date by typing: parts are missing, or
     * all are within the bounds of the places but name no day of the calendar. \a result, which may be null,
     * is written if the text is Acceptable only.
     */
    static QValidator::State validatePart(const QString &text, Flags flags, int fixedYear, QDate *result);

    /** Clears a text that is no date and takes the face that suits. Leaf classes end their constructor so. */
    void updateMaskOrPlaceholder();

    void keyPressEvent(QKeyEvent *event) override;
    void keyReleaseEvent(QKeyEvent *event) override;
    void focusInEvent(QFocusEvent *event) override;
    void focusOutEvent(QFocusEvent *event) override;

private:
    /** The mask of the whole field; its blank is "_". */
    virtual QString inputMaskFor(Flags flags, int fixedYear) = 0;
    virtual QString placeholderFor(Flags flags, int fixedYear) = 0;
    virtual QValidator::State validate(const QString &text, Flags flags, int fixedYear) = 0;

    void followFocus(Qt::FocusReason reason);
    bool isEmpty() const;
    bool isComplete();
    void clearUnlessComplete();
    bool showsDateInMask();
    void showMask();
    void showPlaceholder();
    void stepNumber(int delta);
    void updateDescription();

    Flags m_flags = NoFlag;
    int m_fixedYear = -1;
    QString m_description; // the accessible description that this class has set last
};

Q_DECLARE_OPERATORS_FOR_FLAGS(BaseDateEdit::Flags)

} // namespace NVO
