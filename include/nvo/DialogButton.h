#pragma once

#include <nvo/AbstractButton.h>
#include <nvo/Export.h>

#include <QDialogButtonBox>
#include <QKeySequence>
#include <QString>

namespace NVO {

class Icon;

/** What belongs to a type of dialog button. */
struct DialogButtonProperties
{
    QString text;                                                     ///< In German.
    QKeySequence shortcut;                                            ///< Empty for none.
    QDialogButtonBox::ButtonRole role = QDialogButtonBox::AcceptRole; ///< In the button box.
};

/**
 * A push button in the row of buttons of a dialog, at least 100 pixels wide. Its type decides its text.
 *
 * It is painted by the sheet of ElementDialogButton. The row says what a button is to the dialog in the
 * dynamic properties "buttonPrimary", "buttonSecondary" and "DarkBackground" (all bool), on which the sheet
 * selects; whoever sets them on a button that was shown repolishes it. The text has the colour that the sheet
 * gives to the normal or the disabled button, in all states.
 */
class NVO_EXPORT DialogButton : public AbstractButton
{
    Q_OBJECT
    Q_PROPERTY(QCursor hoverCursor READ hoverCursor WRITE setHoverCursor)

public:
    /** The types, one bit each, so that a set of buttons is a value of ButtonTypes; in the order of the row.
     */
    enum ButtonType : int {
        NoButton = 0,
        Ok = 0x1,
        Cancel = 0x2,
        Retry = 0x4,
        Yes = 0x8,
        No = 0x10,
        Ignore = 0x20,
        Close = 0x40,
        Save = 0x100,
        NoSave = 0x200,
        Replace = 0x400,
        Apply = 0x800,
        Calculate = 0x1000,
        SetBookmark = 0x2000,
        DeleteBookmark = 0x4000,
        GoToMapping = 0x8000,
        SurveyNow = 0x10000,
        SurveyLater = 0x20000,
        SurveyNo = 0x40000,
        SurveyJa = 0x80000,
        SurveyNotReally = 0x100000,
        Print = 0x200000,
        Next = 0x400000,
        AbgabeComplete = 0x800000,
        Accept = 0x1000000,
        UserDefined = 0x40000000 ///< Text and shortcut are the caller's.
    };
    using ButtonTypes = QFlags<ButtonType>;
    Q_FLAG(ButtonType)

    /** A button of type NoButton, without an icon, a text and a parent. */
    DialogButton();

    /** A button with the text of \a type; a null \a icon shows none. */
    DialogButton(const Icon &icon, ButtonType type, QWidget *parent);

    ButtonType buttonType() const { return m_type; }

    /**
     * Text, shortcut and role of \a type. Anything but one of the types, a combination of them included, has
     * no text, no shortcut and QDialogButtonBox::AcceptRole.
     */
    static DialogButtonProperties properties(ButtonType type);

    /**
     * The cursor while the mouse is over the button; Qt::PointingHandCursor at first. Qt::ArrowCursor means
     * none: the cursor is left alone then. A cursor of the same shape as the present one is not stored, and
     * what the widget shows at the moment is not touched.
     */
    QCursor hoverCursor() const { return m_hoverCursor; }
    void setHoverCursor(const QCursor &cursor);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    void enterEvent(QEvent *event) override;
    void leaveEvent(QEvent *event) override;

private:
    QCursor m_hoverCursor = Qt::PointingHandCursor;
    QCursor m_savedCursor;
    ButtonType m_type;
};

Q_DECLARE_OPERATORS_FOR_FLAGS(DialogButton::ButtonTypes)

} // namespace NVO
