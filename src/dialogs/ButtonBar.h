#pragma once

#include <nvo/DialogButton.h>

#include <QDialogButtonBox>
#include <QFlags>
#include <QFrame>
#include <QPointer>
#include <QVector>

class QSpacerItem;

namespace NVO {

class IconButton;

/**
 * The bottom row of a dialog: help button, an extra widget, and the buttons in the order that the platform
 * gives their roles. It is visible as long as there is anything in it.
 *
 * Sheets select on the dynamic properties "darkBackground" of the bar, "DarkBackground" of each button, and
 * "buttonPrimary" and "buttonSecondary" of the buttons that setButtons() has made.
 */
class ButtonBar : public QFrame
{
    Q_OBJECT

public:
    using ButtonType = DialogButton::ButtonType;

    explicit ButtonBar(QWidget *parent = nullptr);

    /** Makes a button for each type in \a buttons in place of all that are there, with their shortcuts. */
    void setButtons(QFlags<ButtonType> buttons, ButtonType defaultButton);

    /** The types given to setButtons(). */
    QFlags<ButtonType> buttonFlags() const { return m_buttonFlags; }

    /** Adds a button of type UserDefined, without a shortcut. */
    void addButton(const QString &text, QDialogButtonBox::ButtonRole role);

    /** Makes the first button of a type the only default one; none if there is no such button. */
    void setDefaultButton(ButtonType type);

    /** Gives all buttons of a type a text. */
    void setButtonText(ButtonType type, const QString &text);

    /** The path that helpClicked() carries; the empty path takes the help button away. */
    void setHelpPath(const QString &path);
    void setHelpButtonText(const QString &text);

    /** Puts a widget between help and buttons and deletes the one before; null for none. */
    void setExtraWidget(QWidget *widget);

    bool darkBackground() const;
    void setDarkBackground(bool dark);

Q_SIGNALS:
    void helpClicked(QString p_helpPath);
    void buttonClicked(NVO::DialogButton::ButtonType buttonType);

protected:
    void showEvent(QShowEvent *event) override;

private:
    void insertButton(DialogButton *button, QDialogButtonBox::ButtonRole role);
    void addShortcut(DialogButton *button, const QKeySequence &keys);
    static bool publishDefault(DialogButton *button, bool isDefault);
    void applyDefault(DialogButton *button, bool isDefault);
    void updateVisible();
    void updateTabOrder();
    QList<DialogButton *> dialogButtons() const;

    QDialogButtonBox *m_buttonBox;
    IconButton *m_helpButton;
    QFlags<ButtonType> m_buttonFlags;
    QString m_helpPath;
    QWidget *m_extraHost;
    QPointer<QWidget> m_extraWidget;
    QSpacerItem *m_extraSpacer;
};

} // namespace NVO
