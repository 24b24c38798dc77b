#pragma once

#include <nvo/Dialog.h>

#include <QMessageBox>

namespace NVO {

class CheckBox;

/**
 * The house message box: an icon, a word-wrapped message in rich text, buttons, and on demand a check box
 * below them. It is 520 pixels wide, or 630 if the message gains from more room than that.
 *
 * There are no static convenience functions: construct it, exec() it, and ask pressedButton() and
 * isChecked().
 *
 * Sheets select on the object names "NvoMessageBox", "icon", "mmessage" and "frameCheckboxBar".
 */
class NVO_EXPORT MessageBox : public Dialog
{
    Q_OBJECT

public:
    /** \a icon NoIcon leaves no place for an icon. \a text is rich text, the title too. */
    MessageBox(QMessageBox::Icon icon, const QString &title, const QString &text, QFlags<ButtonType> buttons,
               ButtonType defaultButton, QWidget *parent);

    /** Shows the check box with a text and a state; the empty text hides it, with the state set. */
    void setCheckbox(const QString &text, Qt::CheckState state);
    void setCheckState(Qt::CheckState state);
    Qt::CheckState checkState() const;
    bool isChecked() const;

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;
    void setVisible(bool visible) override;

Q_SIGNALS:
    /** A link in the message was activated. */
    void linkActivated(QString p_link);

protected:
    bool event(QEvent *event) override;
    void showEvent(QShowEvent *event) override;

private:
    QWidget *createContent(QMessageBox::Icon icon, const QString &text);
    void createCheckBoxBar();

    QFrame *m_checkBoxBar = nullptr;
    CheckBox *m_checkBox = nullptr;
};

} // namespace NVO
