#pragma once

#include <nvo/AbstractToggle.h>

#include <QPointer>

class QFrame;

namespace NVO {

class RadioToggleRadioButton;

/**
 * A toggle with two labelled radio buttons, "Ja" for on and "Nein" for off at first. They only show the
 * choice: mouse and keyboard go to the toggle.
 *
 * Its look comes from the sheet of ElementRadioToggle, which selects on the property "style" of the toggle,
 * the key of the RadioToggleStyle, on the frames "leftFrame", "middleFrame" and "rightFrame", on their
 * property "state", and on the property "checked" of the outer two and of the QRadioButton in each.
 *
 * In the classic look, Product::variant 0, a shadow makes the chosen side look sunken; in the modern one it
 * makes the other side look raised. An effect of another kind that replaces the shadow is left alone.
 */
class NVO_EXPORT RadioToggle : public AbstractToggle
{
    Q_OBJECT
    Q_PROPERTY(QString onText READ onText WRITE setOnText)
    Q_PROPERTY(QString offText READ offText WRITE setOffText)
    Q_PROPERTY(RadioToggleStyle radioToggleStyle READ radioToggleStyle WRITE setRadioToggleStyle)

public:
    enum RadioToggleStyle : int {
        Normal = 0,
        Error = 1, ///< What is chosen cannot stay so.
        Info = 2,  ///< What is chosen deserves a look.
        VaSt = 3   ///< What is chosen was filled in from data fetched elsewhere.
    };
    Q_ENUM(RadioToggleStyle)

    explicit RadioToggle(QWidget *parent = nullptr);

    /** The label of the on side. "&" is treated as in the text of any button, but there is no shortcut. */
    QString onText() const;
    void setOnText(const QString &text);

    /** The label of the off side, likewise. */
    QString offText() const;
    void setOffText(const QString &text);

    /** The x of the divider in the toggle, in pixels, to line other things up with it once it is laid out. */
    int middleX() const;

    RadioToggleStyle radioToggleStyle() const { return m_radioToggleStyle; }

    /** Changes the look; hover and focus show again with the next change of either. */
    void setRadioToggleStyle(RadioToggleStyle style);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    bool hitButton(const QPoint &pos) const override;
    void checkStateSet() override;
    void paintEvent(QPaintEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;

private:
    void applyState(const QString &state) override;
    void initStyleSheet();
    void checkBoxToggled();
    void installShadows();
    void raiseHalf(const QRect &rect);

    QPointer<RadioToggleRadioButton> m_onRadio;
    QPointer<RadioToggleRadioButton> m_offRadio;
    QPointer<QFrame> m_leftFrame;
    QPointer<QFrame> m_rightFrame;
    QPointer<QFrame> m_middleFrame;
    RadioToggleStyle m_radioToggleStyle = Normal;
};

} // namespace NVO
