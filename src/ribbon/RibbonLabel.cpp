#include <nvo/RibbonLabel.h>

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
    initStyleSheet();
    setActionParams(false);
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
    const QPointer<RibbonLabel> alive(this);
    setActionParams(false);
    if (alive)
        Q_EMIT visibleChange(this);
}

void RibbonLabel::focusInEvent(QFocusEvent *event)
{
    Q_EMIT focusInOutEvent(event, true);
    Label::focusInEvent(event);
}

void RibbonLabel::focusOutEvent(QFocusEvent *event)
{
    Q_EMIT focusInOutEvent(event, false);
    Label::focusOutEvent(event);
}

void RibbonLabel::initStyleSheet()
{
    StyleSupport::applySheet(this, ElementRibbonLabel);
}

void RibbonLabel::setActionParams(bool p_skipVisible)
{
    if (!m_action)
        return;
    if (!p_skipVisible)
        setVisible(controlVisible());
    setEnabled(m_action->isEnabled());
    setText(m_action->text());
    setToolTip(Ribbon::createTooltip(m_action, this));
}

} // namespace NVO
