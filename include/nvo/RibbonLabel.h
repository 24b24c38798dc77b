#pragma once

#include <nvo/Export.h>
#include <nvo/Label.h>
#include <nvo/RibbonControl.h>

#include <QPointer>

namespace NVO {

/**
 * A text of the ribbon. It mirrors text, tool tip, visibility and enabled state of its action, which is not
 * owned and should outlive the label.
 */
class NVO_EXPORT RibbonLabel : public Label, public RibbonControl
{
    Q_OBJECT

public:
    RibbonLabel(Action *p_action, QWidget *p_parent);

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
    void focusInEvent(QFocusEvent *event) override;
    void focusOutEvent(QFocusEvent *event) override;

private:
    void initStyleSheet();
    bool setActionParams();

    QPointer<Action> m_action;
};

} // namespace NVO
