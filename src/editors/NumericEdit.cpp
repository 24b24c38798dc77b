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
    setAttribute(Qt::WA_MacShowFocusRect, false);
    setButtonSymbols(QAbstractSpinBox::NoButtons); // asks the style, so it comes before the sheet
    initStyleSheet();
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
    const QLocale locale = this->locale();
    const NumericFormat format{prefix(), suffix(), locale.decimalPoint(), locale.groupSeparator(),
                               decimals() != 0};
    completeNumber(input, pos, format);
    const QValidator::State state = QDoubleSpinBox::validate(input, pos);
    groupNumber(input, pos, format);
    return state;
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
    } else if (event->type() == QEvent::ReadOnlyChange) {
        StyleSupport::repolish(this);
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
    if (lineEdit()->hasSelectedText())
        return;
    const int cursor = lineEdit()->cursorPosition();
    if (key == Qt::Key_Backspace && isSeparator(cursor - 1))
        lineEdit()->setCursorPosition(cursor - 1);
    else if (key == Qt::Key_Delete && isSeparator(cursor))
        lineEdit()->setCursorPosition(cursor + 1);
}

/** Whether a separator of the number stands at \a index; in the unit there are none, whatever its letters. */
bool NumericEdit::isSeparator(int index) const
{
    const QString text = lineEdit()->text();
    if (index < prefix().size() || index >= text.size() - suffix().size())
        return false;
    return text.at(index) == locale().decimalPoint() || text.at(index) == locale().groupSeparator();
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
    const bool flips = value() > 0 && minimum() < 0;
    m_swallowMinusRelease = !flips && !(value() < 0);
    if (!flips)
        return !m_swallowMinusRelease;
    const QPointer<NumericEdit> alive(this);
    flipSign(+1);
    return alive;
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
    const int point = lineEdit()->text().indexOf(locale().decimalPoint(), prefix().size());
    if (point >= 0)
        lineEdit()->setCursorPosition(point + 1);
}

} // namespace NVO
