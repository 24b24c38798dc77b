#include "ribbon/RibbonSeperator.h"

#include <QLayout>

namespace NVO {

namespace {

constexpr int lineHeight = 72;

} // namespace

RibbonSeperator::RibbonSeperator(RibbonControl *p_control, QWidget *p_parent)
    : QFrame(p_parent)
    , m_control(p_control)
    , m_controlIsWidget(dynamic_cast<QWidget *>(p_control) != nullptr)
    , m_controlWidget(dynamic_cast<QWidget *>(p_control))
{
    setObjectName(QStringLiteral("RibbonSeperator"));
    onVisibleChange(p_control);
}

void RibbonSeperator::updateLayout()
{
    updateGeometry();
}

QSize RibbonSeperator::sizeFromMode(SizeMode, bool) const
{
    const QMargins margins = contentsMargins();
    return QSize(margins.left() + margins.right(), lineHeight - margins.top() - margins.bottom());
}

bool RibbonSeperator::controlVisible() const
{
    return controlLives() && m_control->controlVisible() && hasVisibleBefore();
}

bool RibbonSeperator::controlLives() const
{
    return m_controlIsWidget ? !m_controlWidget.isNull() : m_control != nullptr;
}

/** Whether something that shows on the page stands before the line; without a page nothing is in its way. */
bool RibbonSeperator::hasVisibleBefore() const
{
    const QWidget *page = parentWidget();
    const QLayout *pageLayout = page ? page->layout() : nullptr;
    if (!pageLayout)
        return true;
    for (int i = 0; i < pageLayout->count(); ++i) {
        const QWidget *widget = pageLayout->itemAt(i)->widget();
        if (widget == this)
            return false;
        if (widget && widget->isVisibleTo(page))
            return true;
    }
    return true;
}

void RibbonSeperator::onVisibleChange(RibbonControl *)
{
    setVisible(controlVisible());
}

} // namespace NVO
