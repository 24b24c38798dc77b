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
    setActionParams(false);
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
    const QPointer<RibbonCheckBox> alive(this);
    setActionParams(false);
    if (alive)
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
    Q_EMIT focusInOutEvent(event, true);
    QCheckBox::focusInEvent(event);
}

void RibbonCheckBox::focusOutEvent(QFocusEvent *event)
{
    Q_EMIT focusInOutEvent(event, false);
    QCheckBox::focusOutEvent(event);
}

void RibbonCheckBox::initStyleSheet()
{
    StyleSupport::applyStyle(this, ElementRibbonCheckBox);
}

void RibbonCheckBox::setActionParams(bool p_skipVisible)
{
    if (!m_action)
        return;
    if (!p_skipVisible)
        setVisible(controlVisible());
    setEnabled(m_action->isEnabled());
    setText(m_action->text().remove(QLatin1String("<br>")));
    setAccessibleName(RibbonSupport::singleLine(m_action));
    setToolTip(Ribbon::createTooltip(m_action, this));
}

} // namespace NVO
