#include <nvo/RibbonCheckBox.h>

#include "ribbon/RibbonAccessible.h"
#include "ribbon/RibbonSupport.h"
#include "theme/StyleSupport.h"

#include <nvo/Action.h>
#include <nvo/Ribbon.h>

#include <QFocusEvent>

namespace NVO {

namespace {

constexpr int highest = 20;

} // namespace

RibbonCheckBox::RibbonCheckBox(Action *p_action, QWidget *p_parent)
    : QCheckBox(p_parent)
    , m_action(p_action)
{
    if (p_action) {
        connect(this, &QAbstractButton::clicked, p_action, &QAction::triggered);
        connect(p_action, &QAction::changed, this, &RibbonCheckBox::changedAction);
    }
    setMaximumHeight(highest);
    RibbonAccessible::install();
    initStyleSheet();
    setActionParams();
}

void RibbonCheckBox::setElideEnable(bool p_enable)
{
    if (m_elideEnabled == p_enable)
        return;
    m_elideEnabled = p_enable;
    updateGeometry();
}

bool RibbonCheckBox::setSizeMode(SizeMode, bool)
{
    return false;
}

void RibbonCheckBox::updateLayout()
{
    updateGeometry();
}

QSize RibbonCheckBox::sizeFromMode(SizeMode, bool p_minimum) const
{
    return p_minimum ? minimumSizeHint() : sizeHint();
}

Action *RibbonCheckBox::action() const
{
    return m_action;
}

void RibbonCheckBox::changedAction()
{
    if (setActionParams())
        Q_EMIT visibleChange(this);
}

bool RibbonCheckBox::event(QEvent *event)
{
    if (event->type() == QEvent::ApplicationFontChange) {
        initStyleSheet();
        return true;
    }
    return QCheckBox::event(event);
}

void RibbonCheckBox::focusInEvent(QFocusEvent *event)
{
    const QPointer<RibbonCheckBox> alive(this);
    Q_EMIT focusInOutEvent(event, true);
    if (alive)
        QCheckBox::focusInEvent(event);
}

void RibbonCheckBox::focusOutEvent(QFocusEvent *event)
{
    const QPointer<RibbonCheckBox> alive(this);
    Q_EMIT focusInOutEvent(event, false);
    if (alive)
        QCheckBox::focusOutEvent(event);
}

void RibbonCheckBox::initStyleSheet()
{
    StyleSupport::applyStyle(this, ElementRibbonCheckBox);
}

/** Copies the state of the action; false if that was the end of the check box. */
bool RibbonCheckBox::setActionParams()
{
    return RibbonSupport::copyState(
        this, m_action, [this] { setVisible(controlVisible()); },
        [this] { setEnabled(m_action->isEnabled()); },
        [this] {
            setText(m_action->text().remove(QLatin1String("<br>")));
            setToolTip(Ribbon::createTooltip(m_action, this));
        });
}

} // namespace NVO
