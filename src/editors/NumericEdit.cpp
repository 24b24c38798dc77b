#include <nvo/NumericEdit.h>

#include "editors/NumericText.h"
#include "theme/FieldShadow.h"
#include "theme/StyleSupport.h"

#include <QKeyEvent>
#include <QLineEdit>
#include <QPointer>

#include <utility>

namespace NVO {

namespace {

constexpr int fieldHeight = 25;
constexpr QChar blank = QLatin1Char(' ');

/** The part of the suffix that stands for the fraction of whole units. */
QString zeroSymbol()
{
    return QStringLiteral(",\u2013\u2013 ");
}

} // namespace

NumericEdit::NumericEdit(QWidget *parent)
    : QDoubleSpinBox(parent)
{
    initStyleSheet();
    setAttribute(Qt::WA_MacShowFocusRect, false);
    setButtonSymbols(QAbstractSpinBox::NoButtons);
    setGroupSeparatorShown(true);
    setAlignment(Qt::AlignRight);
    installFieldShadow(this);
}

void NumericEdit::setRange(int maximum, int decimals, const QString &unit, Flags flags)
{
    setMaximum(maximum);
    setMinimum(flags & AllowNegativ ? -double(maximum) : 0.0);
    setDecimals(decimals);
    m_editDecimals = decimals;
    setSuffix(blank + unit);
    m_zeroSymbol = flags & ZeroSymbol;
    m_unit = unit;
    updateSuffix(hasFocus());
}

void NumericEdit::setLineEditStyle(NumericEditStyle style)
{
    if (m_lineEditStyle == style)
        return;
    m_lineEditStyle = style;
    initStyleSheet();
}

QSize NumericEdit::sizeHint() const
{
    return QDoubleSpinBox::sizeHint().expandedTo(QSize(0, fieldHeight));
}

QValidator::State NumericEdit::validate(QString &input, int &pos) const
{
    NumericFormat format(locale());
    format.prefix = prefix();
    format.suffix = suffix();
    format.hasFraction = decimals() != 0;
    return validateNumericText(input, pos, format, [this](QString &text, int &cursor) {
        return QDoubleSpinBox::validate(text, cursor);
    });
}

void NumericEdit::keyPressEvent(QKeyEvent *event)
{
    const int key = event->key();
    if (isReadOnly()) {
        QDoubleSpinBox::keyPressEvent(event);
        return;
    }
    stepOverSeparator(key);
    if (key == Qt::Key_Minus && !lineEdit()->hasSelectedText()) {
        if (readNumber() && pressMinus())
            passMinusOn(event);
    } else if (key == Qt::Key_Plus) {
        if (readNumber())
            pressPlus();
    } else if ((key == Qt::Key_Period || key == Qt::Key_Comma) && decimals() != 0) {
        goBehindDecimalPoint();
    } else {
        QDoubleSpinBox::keyPressEvent(event);
    }
}

void NumericEdit::keyReleaseEvent(QKeyEvent *event)
{
    switch (event->key()) {
    case Qt::Key_Plus:
        return;
    case Qt::Key_Minus:
        if (std::exchange(m_swallowMinusRelease, false))
            return;
        break;
    case Qt::Key_Period:
    case Qt::Key_Comma:
        if (decimals() != 0)
            return;
        break;
    default:
        break;
    }
    QDoubleSpinBox::keyReleaseEvent(event);
}

void NumericEdit::focusInEvent(QFocusEvent *event)
{
    const QPointer<NumericEdit> alive(this);
    updateSuffix(true);
    if (alive)
        QDoubleSpinBox::focusInEvent(event);
}

void NumericEdit::focusOutEvent(QFocusEvent *event)
{
    const QPointer<NumericEdit> alive(this);
    QDoubleSpinBox::focusOutEvent(event);
    // While its context menu is open the field is still the one that the user edits.
    if (alive && event->reason() != Qt::PopupFocusReason)
        updateSuffix(false);
}

void NumericEdit::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LocaleChange) {
        // The spin box keeps the verdict on its last text, which may mean another number now.
        QString other;
        int pos = 0;
        QDoubleSpinBox::validate(other, pos);
    }
    QDoubleSpinBox::changeEvent(event);
}

void NumericEdit::initStyleSheet()
{
    setProperty("style", StyleSupport::enumKey(m_lineEditStyle));
    StyleSupport::applySheet(this, ElementNumericEdit);
}

void NumericEdit::updateSuffix(bool focused)
{
    if (!m_zeroSymbol)
        return;
    if (focused) {
        setSuffix(blank + m_unit);
        setDecimals(m_editDecimals);
        return;
    }
    const QPointer<NumericEdit> alive(this);
    setDecimals(0); // rounds the value
    if (alive)
        setSuffix(zeroSymbol() + m_unit);
}

/** Lets Backspace and Delete at a separator act on the digit next to it. */
void NumericEdit::stepOverSeparator(int key)
{
    if ((key != Qt::Key_Backspace && key != Qt::Key_Delete) || lineEdit()->hasSelectedText())
        return;
    const NumericFormat format(locale());
    const QString text = lineEdit()->text();
    const int cursor = lineEdit()->cursorPosition();
    const int start = prefix().size();
    const int end = text.size() - suffix().size();
    if (cursor < start || cursor > end)
        return; // in the unit there are no separators, whatever its letters
    const QStringRef before = text.midRef(start, cursor - start);
    const QStringRef behind = text.midRef(cursor, end - cursor);
    for (const QString &separator : {format.decimalPoint, format.groupSeparator}) {
        if (key == Qt::Key_Backspace && before.endsWith(separator))
            lineEdit()->setCursorPosition(cursor - separator.size());
        else if (key == Qt::Key_Delete && behind.startsWith(separator))
            lineEdit()->setCursorPosition(cursor + separator.size());
    }
}

/** Brings value() up to date where the spin box reads its text late; returns whether the field lives on. */
bool NumericEdit::readNumber()
{
    const QPointer<NumericEdit> alive(this);
    if (!keyboardTracking())
        interpretText();
    return alive;
}

/** Makes the number negative if it may be; returns whether the key goes on to the spin box. */
bool NumericEdit::pressMinus()
{
    m_swallowMinusRelease = false;
    if (value() > 0 && minimum() < 0) {
        const QPointer<NumericEdit> alive(this);
        flipSign(+1);
        return alive;
    }
    m_swallowMinusRelease = !(value() < 0);
    return !m_swallowMinusRelease;
}

void NumericEdit::pressPlus()
{
    if (value() < 0 && minimum() < 0)
        flipSign(-1);
}

void NumericEdit::flipSign(int cursorStep)
{
    const QPointer<NumericEdit> alive(this);
    const int cursor = lineEdit()->cursorPosition();
    setValue(-value());
    if (alive)
        lineEdit()->setCursorPosition(cursor + cursorStep);
}

/** The spin box refuses a second sign, but one behind the last fraction digit is only cut off. */
void NumericEdit::passMinusOn(QKeyEvent *event)
{
    const QPointer<NumericEdit> alive(this);
    const QString text = lineEdit()->text();
    const int cursor = lineEdit()->cursorPosition();
    QDoubleSpinBox::keyPressEvent(event);
    if (alive && lineEdit()->text() == text)
        lineEdit()->setCursorPosition(cursor);
}

void NumericEdit::goBehindDecimalPoint()
{
    const QString point(locale().decimalPoint());
    const int index = lineEdit()->text().indexOf(point, prefix().size());
    if (index >= 0)
        lineEdit()->setCursorPosition(index + point.size());
}

} // namespace NVO
