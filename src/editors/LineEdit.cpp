#include <nvo/LineEdit.h>

namespace NVO {

namespace {

constexpr QChar space = QLatin1Char(' ');

} // namespace

LineEdit::LineEdit(QWidget *parent)
    : BaseEdit(ElementLineEdit, parent)
{
    connect(this, &QLineEdit::cursorPositionChanged, this, &LineEdit::slotCursorPositionChanged);
    connect(this, &QLineEdit::selectionChanged, this, &LineEdit::slotSelectionChanged);
    connect(this, &QLineEdit::textChanged, this, &LineEdit::slotTextChanged);
}

void LineEdit::setInputMask(const QString &mask)
{
    QLineEdit::setInputMask(mask);
    parseInputMask(mask);
}

/** The furthest place for the cursor. */
int LineEdit::maxCursorPosition() const
{
    const QString text = displayText();
    int position = text.size();
    while (position > 0 && text.at(position - 1) == space)
        --position;
    while (position < m_maskBlanks.size() && m_maskBlanks.at(position))
        ++position;
    return position;
}

/** Where the selection ends; -1 without one, as QLineEdit::selectionStart() then is. */
int LineEdit::selectionEndOrMinusOne() const
{
    return selectionStart() + selectedText().size();
}

/** Lets the selection from \a start end at \a max. */
void LineEdit::cutSelection(int start, int max)
{
    setSelection(0, 0);
    setSelection(start, max - start);
}

void LineEdit::parseInputMask(const QString &mask)
{
    m_maskBlanks.clear();
    bool escaped = false;
    for (const QChar character : mask) {
        if (escaped) {
            m_maskBlanks.append(character == space);
            escaped = false;
        } else if (character == QLatin1Char('\\')) {
            escaped = true;
        } else if (character == QLatin1Char(';')) {
            break; // the sign for what is blank follows
        } else if (!QLatin1String("<>!").contains(character)) {
            m_maskBlanks.append(character == space);
        }
    }
}

void LineEdit::slotCursorPositionChanged(int, int newPos)
{
    if (m_cursorGuard || inputMask().isEmpty())
        return;
    // At the end of a selection the cursor is left to what cuts that.
    const int max = maxCursorPosition();
    if (newPos <= max || selectionEndOrMinusOne() == newPos)
        return;
    m_cursorGuard = true;
    setCursorPosition(max);
    m_cursorGuard = false;
}

void LineEdit::slotSelectionChanged()
{
    if (m_selectionGuard || inputMask().isEmpty())
        return;
    const int max = maxCursorPosition();
    if (selectionEndOrMinusOne() <= max)
        return;
    m_selectionGuard = true;
    cutSelection(selectionStart(), max);
    m_selectionGuard = false;
}

void LineEdit::slotTextChanged()
{
    if (inputMask().isEmpty())
        return;
    const int max = maxCursorPosition();
    if (!hasSelectedText()) {
        if (cursorPosition() > max)
            setCursorPosition(max);
    } else if (selectionEndOrMinusOne() > max) {
        cutSelection(selectionStart(), max);
    }
}

} // namespace NVO
