#pragma once

#include <nvo/Export.h>
#include <nvo/RibbonControl.h>

#include <QCheckBox>
#include <QPointer>

namespace NVO {

/**
 * A check box of the ribbon, always in the mode it is in. It mirrors text, tool tip, visibility and enabled
 * state of its action, but never the checked state: its own stands until the application changes it. A click
 * emits QAction::triggered() of the action, which is not owned and should outlive the box.
 */
class NVO_EXPORT RibbonCheckBox : public QCheckBox, public RibbonControl
{
    Q_OBJECT

public:
    RibbonCheckBox(Action *p_action, QWidget *p_parent);

    /** A mark for the application; nothing in the library reads it. */
    bool elideEnabled() const { return m_elideEnabled; }
    void setElideEnable(bool p_enable);

    /** Returns false and changes nothing. */
    bool setSizeMode(SizeMode p_mode, bool p_force) override;
    void updateLayout() override;
    using RibbonControl::sizeFromMode;
    QSize sizeFromMode(SizeMode p_mode, bool p_minimum) const override;
    Action *action() const override;

Q_SIGNALS:
    /** The action has changed, and with it perhaps whether the control shows. */
    void visibleChange(NVO::RibbonControl *p_ribbonControl);
    /** The focus comes (\a p_in) or goes. */
    void focusInOutEvent(QFocusEvent *p_event, bool p_in);

public Q_SLOTS:
    /** Takes over what the action is now. */
    void changedAction();

protected:
    bool event(QEvent *event) override;
    void focusInEvent(QFocusEvent *event) override;
    void focusOutEvent(QFocusEvent *event) override;

private:
    void initStyleSheet();
    bool setActionParams();

    QPointer<Action> m_action;
    bool m_elideEnabled = false;
};

} // namespace NVO
