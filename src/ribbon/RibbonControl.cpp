#include <nvo/RibbonControl.h>

#include <nvo/Action.h>

namespace NVO {

RibbonControl::~RibbonControl() = default;

bool RibbonControl::setSizeMode(SizeMode p_mode, bool p_force)
{
    if (p_mode == m_sizeMode)
        return false;
    if (!p_force && m_fixSizeMode != Auto)
        return true;
    const SizeMode oldMode = m_sizeMode;
    m_sizeMode = p_mode;
    onSetSizeModeChanged(oldMode);
    return true;
}

QSize RibbonControl::sizeFromMode(SizeMode p_mode, const QSize &) const
{
    return sizeFromMode(p_mode, true);
}

void RibbonControl::onSetSizeModeChanged(SizeMode) {}

Action *RibbonControl::action() const
{
    return nullptr;
}

bool RibbonControl::controlVisible() const
{
    const Action *own = action();
    return !own || own->isVisible();
}

void RibbonControl::setFixSizeMode(SizeMode p_mode)
{
    if (p_mode == m_fixSizeMode)
        return;
    m_fixSizeMode = p_mode;
    if (p_mode != Auto)
        m_sizeMode = p_mode;
}

QSize RibbonControl::sizeFromInternMode(bool p_minimum) const
{
    return sizeFromMode(m_sizeMode, p_minimum);
}

} // namespace NVO
