#include "ribbon/RibbonLayout.h"

#include "ribbon/RibbonGeometry.h"

#include <QWidget>

namespace NVO {

RibbonLayout::RibbonLayout(QWidget *p_parent)
    : QLayout(p_parent)
{}

void RibbonLayout::addItem(QLayoutItem *p_item)
{
    m_items.add(p_item);
}

QLayoutItem *RibbonLayout::itemAt(int p_index) const
{
    return m_items.itemAt(p_index);
}

QLayoutItem *RibbonLayout::takeAt(int p_index)
{
    return m_items.takeAt(p_index);
}

QSize RibbonLayout::sizeHint() const
{
    return minimumSize();
}

QSize RibbonLayout::minimumSize() const
{
    if (m_minimum.isValid())
        return m_minimum;
    const RibbonLayoutHelper items = m_items.row(spacing());
    const QSize large = items.size(Qt::Horizontal, RibbonControl::Large, true);
    const QSize small = items.size(Qt::Horizontal, RibbonControl::Small, true);
    const QMargins margins = contentsMargins();
    return m_minimum = (small.width() < large.width() ? small : large)
                       + QSize(margins.left() + margins.right(), margins.top() + margins.bottom());
}

QSize RibbonLayout::maximumSize() const
{
    const RibbonLayoutHelper items = m_items.row(spacing());
    const QSize large = items.size(Qt::Horizontal, RibbonControl::Large, false);
    const QSize small = items.size(Qt::Horizontal, RibbonControl::Small, false);
    const QMargins margins = contentsMargins();
    return (large.width() > small.width() ? large : small)
           + QSize(margins.left() + margins.right(), margins.top() + margins.bottom());
}

void RibbonLayout::invalidate()
{
    m_minimum = QSize();
    QLayout::invalidate();
}

void RibbonLayout::setGeometry(const QRect &p_rect)
{
    QLayout::setGeometry(p_rect);
    doLayout();
}

QList<QWidget *> RibbonLayout::visibleWidgets() const
{
    return m_items.visibleWidgets();
}

void RibbonLayout::doLayout()
{
    QVector<RibbonGeometry::Group> groups;
    for (const RibbonItemList::Item &item : qAsConst(m_items)) {
        // What only waits for the page to show gets its place, too: nothing lays it out when it shows.
        groups.append({!item.widget()->isHidden(), item.isVisible(), item.control != nullptr,
                       item.control ? item.control->fixSizeMode() : RibbonControl::Auto});
    }
    RibbonGeometry::GroupSizes sizes;
    sizes.smallest = [this](int group, RibbonControl::SizeMode mode) {
        return m_items.at(group).smallest(mode);
    };
    sizes.preferred = [this](int group) { return m_items.at(group).widget()->sizeHint(); };
    sizes.open = [this](int group, RibbonControl::SizeMode mode, const QSize &available) {
        return m_items.at(group).control->sizeFromMode(mode, available);
    };

    const QMargins margins = contentsMargins();
    const QSize area = geometry().marginsRemoved(margins).size();
    const QVector<RibbonGeometry::Place> places =
        RibbonGeometry::arrangeGroups(groups, area, spacing(), sizes);
    QPoint point(margins.left(), margins.top());
    for (int i = 0; i < places.size(); ++i) {
        if (!groups[i].shown)
            continue;
        if (m_items.at(i).control)
            m_items.at(i).control->setSizeMode(places[i].mode, false);
        const QRect rect(point, QSize(places[i].size.width(), area.height()));
        m_items.at(i).widget()->setGeometry(rect);
        point.rx() += rect.width() + spacing();
    }
}

} // namespace NVO
