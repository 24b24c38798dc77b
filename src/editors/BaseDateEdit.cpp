#include <nvo/BaseDateEdit.h>

#include "editors/DateText.h"

#include <QDate>
#include <QKeyEvent>
#include <QSignalBlocker>

#include <array>

namespace NVO {

namespace {

// What a first digit of 3 in the day, of 1 in the month and of 2 in the year leaves open.
constexpr int maximumDay = 39;
constexpr int maximumMonth = 19;
constexpr int maximumYear = 2999;

constexpr int yearOfDatesWithout = 2000;

QLatin1Char separatorFor(BaseDateEdit::Flags flags)
{
    return QLatin1Char(flags.testFlag(BaseDateEdit::SeparatorSlash) ? '/' : '.');
}

QString padded(int number, int width)
{
    return QString::number(number).rightJustified(width, QLatin1Char('0'));
}

/** The shown ones of three parts, with separators. */
QString join(const QString &day, const QString &month, const QString &year, BaseDateEdit::Flags flags)
{
    QString text;
    if (!flags.testFlag(BaseDateEdit::HideDay))
        text += day + separatorFor(flags);
    if (!flags.testFlag(BaseDateEdit::HideMonth))
        text += month + separatorFor(flags);
    if (!flags.testFlag(BaseDateEdit::HideYear))
        text += year;
    return text;
}

/** By how much a key changes the number at the cursor; 0 for keys that don't. */
int deltaOf(int key)
{
    switch (key) {
    case Qt::Key_Up:
        return 1;
    case Qt::Key_Down:
        return -1;
    case Qt::Key_PageUp:
        return 10;
    case Qt::Key_PageDown:
        return -10;
    default:
        return 0;
    }
}

} // namespace

BaseDateEdit::BaseDateEdit(Element element)
    : BaseDateEdit(element, nullptr)
{}

BaseDateEdit::BaseDateEdit(Element element, QWidget *parent)
    : BaseEdit(element, parent)
{
    connect(this, &QLineEdit::textChanged, this, &BaseDateEdit::updateDescription);
}

void BaseDateEdit::setFlags(Flags flags)
{
    if (m_flags == flags)
        return;
    m_flags = flags;
    updateMaskOrPlaceholder();
}

void BaseDateEdit::setFixedYear(int year)
{
    if (m_fixedYear == year)
        return;
    m_fixedYear = year;
    updateMaskOrPlaceholder();
}

void BaseDateEdit::clear()
{
    // With a mask Qt reports a change even if there was nothing to clear.
    if (isEmpty())
        home(false);
    else
        BaseEdit::clear();
}

QString BaseDateEdit::maskPartFor(Flags flags, int fixedYear)
{
    const QString twoPlaces = QStringLiteral("09");
    QString year = QStringLiteral("9999");
    if (fixedYear > 0) {
        year = QString::number(fixedYear)
                   .replace(QLatin1Char('9'), QLatin1String("\\9"))
                   .replace(QLatin1Char('0'), QLatin1String("\\0"));
    }
    return join(twoPlaces, twoPlaces, year, flags);
}

QString BaseDateEdit::placeholderPartFor(Flags flags, int fixedYear)
{
    return join(QStringLiteral("dd"), QStringLiteral("mm"),
                fixedYear > 0 ? QString::number(fixedYear) : QStringLiteral("jjjj"), flags);
}

QString BaseDateEdit::stringFor(const QDate &date, Flags flags)
{
    return join(padded(date.day(), 2), padded(date.month(), 2), padded(date.year(), 4), flags);
}

QValidator::State BaseDateEdit::validatePart(const QString &text, Flags flags, int fixedYear, QDate *result)
{
    struct Field
    {
        Flag hidden;
        int maximum;
        int value;
    };
    std::array fields = {Field{HideDay, maximumDay, 1}, Field{HideMonth, maximumMonth, 1},
                         Field{HideYear, maximumYear, fixedYear > 0 ? fixedYear : yearOfDatesWithout}};

    const QString typed = QString(text).remove(QLatin1Char('_'));
    const QVector<QStringRef> parts = typed.splitRef(separatorFor(flags));
    int next = 0;
    bool complete = true;
    for (Field &field : fields) {
        if (flags.testFlag(field.hidden))
            continue;
        if (next == parts.size())
            return QValidator::Invalid;
        const QStringRef &part = parts[next++];
        if (part.isEmpty()) {
            complete = false;
        } else {
            bool isNumber = false;
            field.value = part.toInt(&isNumber);
            if (!isNumber || field.value < 0 || field.value > field.maximum)
                return QValidator::Invalid;
        }
    }
    const auto &[day, month, year] = fields;
    if (fixedYear > 0 && year.value != fixedYear)
        return QValidator::Invalid;
    if (!complete || !QDate::isValid(year.value, month.value, day.value))
        return QValidator::Intermediate;
    if (result)
        result->setDate(year.value, month.value, day.value);
    return QValidator::Acceptable;
}

void BaseDateEdit::updateMaskOrPlaceholder()
{
    if (showsDateInMask())
        return; // nearly always when the focus comes or goes
    clearUnlessComplete();
    // Asked anew each time, because a slot may answer the empty text with a date or move the focus.
    if (isComplete() || hasFocus())
        showMask();
    // More parts than the form has may be a date and still not go through its mask.
    clearUnlessComplete();
    if (!isComplete() && !hasFocus())
        showPlaceholder();
    updateDescription();
}

void BaseDateEdit::keyPressEvent(QKeyEvent *event)
{
    const int delta = deltaOf(event->key());
    if (delta == 0) {
        BaseEdit::keyPressEvent(event);
        return;
    }
    // The keypad is no modifier that is held; on some systems it stands for the arrow keys as such.
    const bool plain = !(event->modifiers() & ~Qt::KeypadModifier);
    if (plain && !isReadOnly())
        stepNumber(delta);
}

void BaseDateEdit::keyReleaseEvent(QKeyEvent *event)
{
    if (deltaOf(event->key()) == 0)
        QWidget::keyReleaseEvent(event);
}

void BaseDateEdit::focusInEvent(QFocusEvent *event)
{
    BaseEdit::focusInEvent(event);
    followFocus(event->reason());
}

void BaseDateEdit::focusOutEvent(QFocusEvent *event)
{
    followFocus(event->reason());
    BaseEdit::focusOutEvent(event);
}

void BaseDateEdit::followFocus(Qt::FocusReason reason)
{
    updateMaskOrPlaceholder();
    // The commands of a menu are for what is selected.
    if (reason != Qt::PopupFocusReason)
        home(false);
}

bool BaseDateEdit::isEmpty() const
{
    return displayText() == DateText::blank(inputMask());
}

bool BaseDateEdit::isComplete()
{
    return validate(text(), m_flags, m_fixedYear) == QValidator::Acceptable;
}

void BaseDateEdit::clearUnlessComplete()
{
    if (!isComplete())
        clear();
}

bool BaseDateEdit::showsDateInMask()
{
    return placeholderText().isEmpty() && inputMask() == inputMaskFor(m_flags, m_fixedYear) && isComplete();
}

void BaseDateEdit::showMask()
{
    setPlaceholderText(QString());
    // A mask that is set again takes cursor, selection and undo with it, and it loses a date: Qt puts what
    // shows through the mask like typed keys, and the digits behind the free place of "5_.3_.2019" slide on.
    if (showsDateInMask())
        return;
    const QString typed = DateText::withShortYear(text(), m_fixedYear);
    if (typed != displayText() && isComplete()) {
        {
            const QSignalBlocker blocker(this);
            setInputMask(QString());
        }
        setText(typed);
    }
    setInputMask(inputMaskFor(m_flags, m_fixedYear));
}

void BaseDateEdit::showPlaceholder()
{
    setInputMask(QString());
    // A slot may have brought the focus back.
    if (inputMask().isEmpty())
        setPlaceholderText(placeholderFor(m_flags, m_fixedYear));
}

void BaseDateEdit::stepNumber(int delta)
{
    const int cursor = cursorPosition();
    QString text = DateText::stepped(displayText(), cursor, delta);
    if (text.isNull() || validate(text, m_flags, m_fixedYear) == QValidator::Invalid)
        return;
    setText(text.remove(QLatin1Char('_')));
    setCursorPosition(cursor);
}

void BaseDateEdit::updateDescription()
{
    const QString description = isEmpty() ? placeholderFor(m_flags, m_fixedYear) : QString();
    if (accessibleDescription() != m_description || description == m_description)
        return;
    m_description = description;
    setAccessibleDescription(description);
}

} // namespace NVO
