#pragma once

#include <nvo/OverviewButton.h>

#include <QWidget>

namespace NVO {

class CheckBox;

/**
 * An OverviewButton with a last line in the same tile: a check box or a text. The line follows the state of
 * the button, so that both read as one; it does not take part in its clicks.
 *
 * The sheet is that of ElementOverviewButton. Object names for it: "lastLine", whose dynamic properties are
 * "style", that of the button, and "state": empty, "focus", "hover" or "pressed" like the button; in it
 * "spacerBeforeLastLine" and "lastLineWidget", which is the check box and the text alike.
 */
class NVO_EXPORT OverviewButtonWithWidget : public QWidget
{
    Q_OBJECT
    Q_PROPERTY(QString title READ title WRITE setTitle)
    Q_PROPERTY(QString description READ description WRITE setDescription)
    Q_PROPERTY(QString note READ note WRITE setNote)
    Q_PROPERTY(QString hint READ hint WRITE setHint)
    Q_PROPERTY(QString lastLineText READ lastLineText WRITE setLastLineText)
    Q_PROPERTY(bool shadowEnabled READ shadowEnabled WRITE setShadowEnabled)

public:
    /** What the last line shows; a foreign value lets it show nothing. */
    enum LastLineMode : int { LastLineCheckBox = 0, LastLineText = 1 };

    explicit OverviewButtonWithWidget(QWidget *parent = nullptr);

    /** \name The button
     * See OverviewButton. */
    ///@{
    void setTitle(const QString &title);
    QString title() const;
    void setDescription(const QString &description);
    QString description() const;
    void setNote(const QString &note);
    QString note() const;
    void setHint(const QString &hint);
    QString hint() const;
    void setIcon(const Pixmap &icon);
    void setStatus(const Pixmap &status);
    void setAccessory(const Pixmap &accessory);
    void setButtonLayout(OverviewButton::Layout layout);
    OverviewButton::Layout buttonLayout() const;
    void setHeadlineStyle(OverviewButton::HeadlineStyle style);
    OverviewButton::HeadlineStyle headlineStyle() const;
    void setOverviewButtonStyle(OverviewButton::Style style);
    OverviewButton::Style overviewButtonStyle() const;
    void setShadowEnabled(bool enabled);
    bool shadowEnabled() const;

    /** False disables the button partially and leaves the check box as it is. */
    void setButtonEnabled(bool enabled);
    ///@}

    /** \name The last line */
    ///@{
    Qt::CheckState checkState() const;
    void setCheckState(Qt::CheckState state);
    bool isChecked() const;
    bool isTristate() const;
    void setTristate(bool tristate);

    /** The check box at first. */
    void setLastLineMode(LastLineMode mode);

    /** The text of both; html where it is the text that shows. */
    void setLastLineText(const QString &text);
    QString lastLineText() const;
    ///@}

Q_SIGNALS:
    /** Those of the button. */
    void pressed();
    void released();
    void clicked(bool p_checked = false);

    /** Those of the check box. Inside the last one the tile can only go by deleteLater(), as any of Qt's. */
    void checkBoxPressed();
    void checkBoxReleased();
    void checkBoxClicked(bool p_checked = false);
    void checkBoxToggled(bool p_checked);

private:
    void createLastLine();
    void connectSignals();
    void overviewButtonStyleStateChanged();

    OverviewButton *m_button;
    QWidget *m_lastLine;
    CheckBox *m_checkBox;
    Label *m_label;
};

} // namespace NVO
