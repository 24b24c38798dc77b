#pragma once

#include <nvo/Export.h>

#include <QCheckBox>

namespace NVO {

/**
 * The base of the switches with an on side and an off side: check boxes to the program, drawn as push buttons
 * whose sides are child frames. The whole of a toggle takes the mouse, and a toggle that is held down already
 * shows what it becomes on release.
 *
 * To assistive technology a toggle is one check box without children, described by the labels of its sides.
 */
class NVO_EXPORT AbstractToggle : public QCheckBox
{
    Q_OBJECT

protected:
    explicit AbstractToggle(QWidget *parent);

    void enterEvent(QEvent *event) override;
    void leaveEvent(QEvent *event) override;
    void focusInEvent(QFocusEvent *event) override;
    void focusOutEvent(QFocusEvent *event) override;
    void changeEvent(QEvent *event) override;
    void nextCheckState() override;

private:
    void updateState();

    /** Shows \a state: "pressed", "hoverfocus", "hover", "focus", or the empty string. */
    virtual void applyState(const QString &state) = 0;
};

} // namespace NVO
