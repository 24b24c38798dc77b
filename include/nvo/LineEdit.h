#pragma once

#include <nvo/BaseEdit.h>

#include <QVector>

namespace NVO {

/**
 * The plain text field, whose cursor stays near the text while there is an input mask.
 *
 * Cursor and selection reach as far as the last character that is no blank, and over the spaces of the mask
 * itself that follow it; the empty rest of the mask is out of reach for keys, mouse and setCursorPosition().
 * A selection that goes further is cut. Without a mask this is a QLineEdit.
 *
 * The fence knows the spaces of a mask from setInputMask() here and from the property "inputMask". A mask
 * that comes through a pointer to QLineEdit is fenced with the spaces of the mask before it.
 */
class NVO_EXPORT LineEdit : public BaseEdit
{
    Q_OBJECT
    Q_PROPERTY(QString inputMask READ inputMask WRITE setInputMask)

public:
    explicit LineEdit(QWidget *parent = nullptr);

    /** Sets \a mask, in the language of QLineEdit::inputMask(); an empty one takes the mask away. */
    void setInputMask(const QString &mask);

private:
    int maxCursorPosition() const;
    int selectionEndOrMinusOne() const;
    void cutSelection(int start, int max);
    void parseInputMask(const QString &mask);
    void slotCursorPositionChanged(int oldPos, int newPos);
    void slotSelectionChanged();
    void slotTextChanged();

    bool m_cursorGuard = false;
    bool m_selectionGuard = false;
    QVector<bool> m_maskBlanks; // for each position of the mask, whether it is a space of the mask itself
};

} // namespace NVO
