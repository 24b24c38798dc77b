#pragma once

#include <nvo/Export.h>

#include <QDoubleSpinBox>

namespace NVO {

/**
 * A field for amounts: a number with digit groups, two fraction digits and a unit behind it, without spin
 * buttons, aligned to the right.
 *
 * The text keeps its shape while the user types: the digit groups are rebuilt, the decimal point stays, and
 * behind it there are always two digits, of which a typed digit pushes out the one at the end and a deleted
 * one makes room for a "0". Comma and period both put the cursor behind the decimal point. Minus and plus
 * switch the sign of the number, wherever the cursor stands. Decimal point, group separator and minus sign
 * are those of QWidget::locale(), and digits of that locale are taken as well as ASCII ones.
 *
 * That shape is the one of two decimals, which setRange() should be asked for. With 0 decimals the number
 * has no fraction: one that is typed or pasted is cut, and the digit groups are kept as ever. With any other
 * number of decimals the text still has two fraction digits: with 1 the spin box accepts no text, and of
 * more than 2 the rest is neither shown nor kept when the text is edited.
 *
 * Value, signals, stepping, undo and what assistive tools are told are those of QDoubleSpinBox:
 * valueChanged() comes with each accepted key unless keyboard tracking is off. A field that can only be read
 * takes no key of those above. The look comes from the sheet of ElementNumericEdit, which selects on the
 * dynamic property "style", the key of the NumericEditStyle, and on "readOnly"; if Product::variant is 0 at
 * construction, the field has a shadow that makes it look sunken.
 */
class NVO_EXPORT NumericEdit : public QDoubleSpinBox
{
    Q_OBJECT
    Q_PROPERTY(NumericEditStyle lineEditStyle READ lineEditStyle WRITE setLineEditStyle)

public:
    /** The looks. */
    enum NumericEditStyle : int {
        Normal = 0,
        Error = 1, ///< What is entered cannot stay so.
        Info = 2,  ///< What is entered deserves a look.
        VaSt = 3,  ///< What is entered was filled in from data fetched elsewhere.
        Due = 4    ///< An entry is due here.
    };
    Q_ENUM(NumericEditStyle)

    enum Flag : int {
        NoFlag = 0,
        ZeroSymbol = 1,  ///< Without the focus the field shows whole units, as in "1.235,–– €".
        AllowNegativ = 2 ///< The number may be below 0.
    };
    Q_DECLARE_FLAGS(Flags, Flag)
    Q_FLAG(Flags)

    /** A field for numbers from 0 to 99.99 without a unit. */
    explicit NumericEdit(QWidget *parent = nullptr);

    /**
     * Takes numbers from 0, or with AllowNegativ from -\a maximum, to \a maximum, which are shown with a
     * blank and \a unit behind them. A value that is out of the range then becomes the nearest in it.
     *
     * A field with the ZeroSymbol rounds its value to whole units each time it loses the focus, and now if it
     * does not have it; the value stays rounded when the focus comes back. An open context menu does not take
     * the focus away. Hides the function of QDoubleSpinBox of this name.
     */
    void setRange(int maximum, int decimals, const QString &unit, Flags flags);

    NumericEditStyle lineEditStyle() const { return m_lineEditStyle; }

    /** Changes the look; text, cursor, selection and focus stay. */
    void setLineEditStyle(NumericEditStyle style);

    /** The hint of QDoubleSpinBox, and at least 25 pixels high. */
    QSize sizeHint() const override;

    /**
     * Brings \a input into shape and lets QDoubleSpinBox judge it; \a pos, the cursor, stays at its digit.
     * The result is the verdict of QDoubleSpinBox. Text that it calls invalid is regrouped too.
     */
    QValidator::State validate(QString &input, int &pos) const override;

protected:
    void keyPressEvent(QKeyEvent *event) override;
    void keyReleaseEvent(QKeyEvent *event) override;
    void focusInEvent(QFocusEvent *event) override;
    void focusOutEvent(QFocusEvent *event) override;
    void changeEvent(QEvent *event) override;

private:
    void initStyleSheet();
    void updateSuffix(bool focused);
    void stepOverSeparator(int key);
    bool isSeparator(int index) const;
    bool readNumber();
    bool pressMinus();
    void pressPlus();
    void flipSign(int cursorStep);
    void goBehindDecimalPoint();
    void passMinusOn(QKeyEvent *event);

    bool m_zeroSymbol = false;
    QString m_unit;
    int m_editDecimals = 0;
    bool m_swallowMinusRelease = false;
    NumericEditStyle m_lineEditStyle = Normal;
};

Q_DECLARE_OPERATORS_FOR_FLAGS(NumericEdit::Flags)

} // namespace NVO
