#pragma once

#include <nvo/DialogButton.h>
#include <nvo/Element.h>
#include <nvo/Export.h>

#include <QDialog>
#include <QDialogButtonBox>
#include <QFlags>
#include <QPointer>

class QFrame;
class QVBoxLayout;
class WidgetResizeHandler;

namespace NVO {

class Button;
class ButtonBar;
class HairLine;
class Label;

/**
 * The house dialog: a frameless window with a title bar of its own, a slot for content, a hair line, a row of
 * buttons with help at the left, and a footer.
 *
 * A click on a button accepts or rejects by the role of its type (DialogButton::properties()): AcceptRole,
 * ApplyRole, YesRole and ActionRole ask checkAccept() and accept, the others reject. Print only emits
 * printClicked(). After exec() pressedButton() tells which button it was. Esc rejects in the name of the
 * first of Close, Cancel, No, NoSave, Ignore, SurveyLater and SurveyNo that is there. Enter presses the
 * button that has the focus, or else the default one. Buttons with a shortcut take its letter unless what has
 * the focus takes letters itself, as a text field does; lists and closed combo boxes do not.
 *
 * Sheets select on the object names "NvoDialog", "frame", "frameTitleBar", "title" and "frameActionBar".
 */
class NVO_EXPORT Dialog : public QDialog
{
    Q_OBJECT

public:
    using ButtonType = DialogButton::ButtonType;

    /** What kind of window the dialog is, and that its button row stands on a dark ground. */
    enum DialogFlag : int {
        NoFlag = 0,
        StaysOnTop = 1, ///< Wins over Tool.
        Tool = 2,
        HasDarkBackground = 4
    };
    Q_DECLARE_FLAGS(DialogFlags, DialogFlag)
    Q_FLAG(DialogFlags)

    Dialog(QWidget *parent, Element element, QFlags<ButtonType> buttons, ButtonType defaultButton,
           QFlags<DialogFlag> flags);
    /** A dialog without buttons. \a element is the sheet that it wears. */
    explicit Dialog(QWidget *parent = nullptr, Element element = ElementDialog,
                    QFlags<DialogFlag> flags = NoFlag);
    ~Dialog() override;

    /**
     * Puts \a widget between title bar and buttons and deletes the content before; null for none. One that
     * contains the dialog is ignored.
     */
    void setContent(QWidget *widget, Qt::Alignment alignment = Qt::Alignment());
    /** The content, owned by the dialog; null if there is none or its owner has deleted it. */
    QWidget *content();

    /** Sets the title of the window and of the title bar, which shows rich text. Hides that of QWidget. */
    void setWindowTitle(const QString &title);

    void setTitleBarVisible(bool visible);
    /** Shows the closing cross, which is hidden at first. */
    void enableCloseButton(bool enable);
    /** Whether the title bar moves the dialog; it does at first. */
    void enableMove(bool enable);
    /** Whether the edges resize the dialog; they do not at first. */
    void enableResize(bool enable);

    /**
     * To be called before the first show: a window that is there already does not become translucent. Puts a
     * shadow around the frame, which takes 10 pixels at the left, right and bottom. Switches it off if
     * \a enable is false, Product::effectsEnabled is false, or there is a shadow already.
     */
    void setShadowEnabled(bool enable);

    /** The present height of the title bar, in pixels. */
    int titleBarHeight() const;
    /** The present height of the button row, in pixels. */
    int actionBarHeight() const;

    /** Adds a button of type UserDefined at the place of \a role. Whatever the role, a click accepts. */
    void addButton(const QString &text, QDialogButtonBox::ButtonRole role);
    /** Gives the buttons of a type another text. */
    void setButtonText(ButtonType type, const QString &text);
    /** Makes the button of a type the default one, which gets the focus with it; none if there is no such
     * button. */
    void setDefaultButton(ButtonType type);
    /**
     * The type of the button that was pressed last, or that Esc stood for; NoButton before. Showing the
     * dialog again or closing the window does not change it.
     */
    ButtonType pressedButton() const { return m_pressedButtonType; }

    /** Sets the path that helpClicked() carries and shows the help button; the empty path hides it. */
    void setHelpFilePath(const QString &path);
    /** The same as setHelpFilePath(). Hides the function of QWidget. */
    void setWindowFilePath(const QString &path);
    void setHelpButtonText(const QString &text);

    /** Puts a widget beside the buttons and deletes the one before; null for none. */
    void setExtraActionBarWidget(QWidget *widget);
    /** Tells the sheets that the button row stands on a dark ground. */
    void setActionBarDarkBackground(bool dark);

    void setVisible(bool visible) override;

Q_SIGNALS:
    /** The help button was clicked; the application shows the help. */
    void helpClicked(QString p_helpPath);
    /** The button Print was clicked; the application prints, and the dialog stays open. */
    void printClicked();

protected:
    /** Makes the buttons anew, with their shortcuts. */
    void setButtons(QFlags<ButtonType> buttons, ButtonType defaultButton, QFlags<DialogFlag> flags);
    /** Puts a widget below the buttons and deletes the one before; null for none. */
    void setExtraFooterWidget(QWidget *widget);
    /** Whether a line shows above the buttons, if there are any. */
    void setHairLineVisible(bool visible);
    /** Shows the footer if its widget is not hidden. */
    void updateFooterVisible();
    bool isActionBarVisible() const;

    /** Asked before a button accepts; false keeps the dialog open. */
    virtual bool checkAccept();

    void keyPressEvent(QKeyEvent *event) override;

protected Q_SLOTS:
    /** Ends the dialog as the role of a button type says. */
    void buttonClicked(NVO::DialogButton::ButtonType type);

private:
    void createFrame();
    void createTitleBar();
    void createHairLine();
    void createButtonBar();
    void createFooter();
    ButtonType buttonTypeForEsc() const;
    void updateHairLineVisible();

    QFrame *m_frame = nullptr;
    QVBoxLayout *m_frameLayout = nullptr;
    Button *m_closeButton = nullptr;
    Label *m_titleLabel = nullptr;
    QFrame *m_titleBar = nullptr;
    ButtonBar *m_buttonBar = nullptr;
    HairLine *m_hairLine = nullptr;
    bool m_hairLineWanted = false;
    ButtonType m_pressedButtonType = DialogButton::NoButton;
    QPointer<QWidget> m_contentWidget;
    WidgetResizeHandler *m_resizeHandler;
    QWidget *m_footer = nullptr;
    QPointer<QWidget> m_extraFooterWidget;
};

Q_DECLARE_OPERATORS_FOR_FLAGS(Dialog::DialogFlags)

} // namespace NVO
