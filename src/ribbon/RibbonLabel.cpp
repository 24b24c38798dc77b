#include <nvo/RibbonLabel.h>

#include "ribbon/RibbonAccessible.h"
#include "ribbon/RibbonSupport.h"
#include "theme/StyleSupport.h"

#include <nvo/Action.h>
#include <nvo/Ribbon.h>

#include <QFocusEvent>

namespace NVO {

RibbonLabel::RibbonLabel(Action *p_action, QWidget *p_parent)
    : Label(p_parent)
    , m_action(p_action)
{
    if (p_action)
        connect(p_action, &QAction::changed, this, &RibbonLabel::changedAction);
    RibbonAccessible::install();
    initStyleSheet();
    setActionParams();
}

void RibbonLabel::updateLayout()
{
    updateGeometry();
}

QSize RibbonLabel::sizeFromMode(SizeMode, bool) const
{
    return QLabel::sizeHint();
}

Action *RibbonLabel::action() const
{
    return m_action;
}

void RibbonLabel::changedAction()
{
    if (setActionParams())
        Q_EMIT visibleChange(this);
}

void RibbonLabel::focusInEvent(QFocusEvent *event)
{
    const QPointer<RibbonLabel> alive(this);
    Q_EMIT focusInOutEvent(event, true);
    if (alive)
        Label::focusInEvent(event);
}

void RibbonLabel::focusOutEvent(QFocusEvent *event)
{
    const QPointer<RibbonLabel> alive(this);
    Q_EMIT focusInOutEvent(event, false);
    if (alive)
        Label::focusOutEvent(event);
}

void RibbonLabel::initStyleSheet()
{
    StyleSupport::applySheet(this, ElementRibbonLabel);
}

/** Copies the state of the action; false if that was the end of the label. */
bool RibbonLabel::setActionParams()
{
    return RibbonSupport::copyState(
        this, m_action, [this] { setVisible(controlVisible()); },
        [this] { setEnabled(m_action->isEnabled()); },
        [this] {
            setText(m_action->text());
            setToolTip(Ribbon::createTooltip(m_action, this));
        });
}

} // namespace NVO
