#include <nvo/ScrollBar.h>

#include "theme/StyleSupport.h"

namespace NVO {

ScrollBar::ScrollBar(QWidget *parent)
    : ScrollBar(Qt::Vertical, parent)
{}

ScrollBar::ScrollBar(Qt::Orientation orientation, QWidget *parent)
    : QScrollBar(orientation, parent)
{
    initStyleSheet();
    setCursor(Qt::PointingHandCursor);
}

void ScrollBar::initStyleSheet()
{
    const QString key = StyleSupport::enumKey(m_style);
    if (!key.isEmpty())
        setProperty("style", key);
    StyleSupport::applySheet(this, ElementScrollBar);
}

void ScrollBar::setScrollBarStyle(ScrollBarStyle style)
{
    if (m_style == style)
        return;
    m_style = style;
    initStyleSheet();
}

void ScrollBar::setTransient(bool transient)
{
    m_transient = transient;
    update();
}

void ScrollBar::paintEvent(QPaintEvent *event)
{
    const bool nothingToScroll = minimum() == maximum();
    if (!m_transient || !nothingToScroll)
        QScrollBar::paintEvent(event);
}

} // namespace NVO
