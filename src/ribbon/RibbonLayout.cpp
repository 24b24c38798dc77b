#include "ribbon/RibbonLayout.h"

#include "ribbon/RibbonGeometry.h"

#include <QWidget>

namespace NVO {

RibbonLayout::RibbonLayout(QWidget *p_parent)
    : QLayout(p_parent)
{}

RibbonLayout::~RibbonLayout()
{
    while (!m_items.isEmpty())
        delete m_items.takeLast().layoutItem;
}

void RibbonLayout::addItem(QLayoutItem *p_item)
{
    if (p_item->widget())
        m_items.append({p_item, dynamic_cast<RibbonControl *>(p_item->widget())});
    else
        delete p_item; // a spacer or a layout has no place here
}

QLayoutItem *RibbonLayout::itemAt(int p_index) const
{
    return p_index >= 0 && p_index < m_items.count() ? m_items[p_index].layoutItem : nullptr;
}

QLayoutItem *RibbonLayout::takeAt(int p_index)
{
    return p_index >= 0 && p_index < m_items.count() ? m_items.takeAt(p_index).layoutItem : nullptr;
}

QSize RibbonLayout::sizeHint() const
{
    return minimumSize();
}

QSize RibbonLayout::minimumSize() const
{
    const RibbonLayoutHelper items = row();
    const QSize large = items.size(Qt::Horizontal, RibbonControl::Large, true);
    const QSize small = items.size(Qt::Horizontal, RibbonControl::Small, true);
    const QMargins margins = contentsMargins();
    return (small.width() < large.width() ? small : large)
           + QSize(margins.left() + margins.right(), margins.top() + margins.bottom());
}

QSize RibbonLayout::maximumSize() const
{
    const RibbonLayoutHelper items = row();
    const QSize large = items.size(Qt::Horizontal, RibbonControl::Large, false);
    const QSize small = items.size(Qt::Horizontal, RibbonControl::Small, false);
    const QMargins margins = contentsMargins();
    return (large.width() > small.width() ? large : small)
           + QSize(margins.left() + margins.right(), margins.top() + margins.bottom());
}

void RibbonLayout::setGeometry(const QRect &p_rect)
{
    QLayout::setGeometry(p_rect);
    doLayout();
}

QList<QWidget *> RibbonLayout::visibleWidgets() const
{
    QList<QWidget *> widgets;
    for (const Item &item : m_items) {
        if (!item.control || item.control->controlVisible())
            widgets.append(item.layoutItem->widget());
    }
    return widgets;
}

RibbonLayoutHelper RibbonLayout::row() const
{
    RibbonLayoutHelper helper;
    for (const Item &item : m_items)
        helper.append(RibbonLayoutItem(item.layoutItem->widget(), item.control));
    helper.setSpacing(spacing());
    return helper;
}

void RibbonLayout::doLayout()
{
    QVector<RibbonGeometry::Group> groups;
    for (const Item &item : qAsConst(m_items)) {
        // What only waits for the page to show gets its place, too: nothing lays it out when it shows.
        groups.append({!item.layoutItem->widget()->isHidden(),
                       !item.control || item.control->controlVisible(), item.control != nullptr,
                       item.control ? item.control->fixSizeMode() : RibbonControl::Auto});
    }
    RibbonGeometry::GroupSizes sizes;
    sizes.smallest = [this](int group, RibbonControl::SizeMode mode) {
        const Item &item = m_items[group];
        return item.control ? item.control->sizeFromMode(mode, true)
                            : item.layoutItem->widget()->minimumSize();
    };
    sizes.preferred = [this](int group) { return m_items[group].layoutItem->widget()->sizeHint(); };
    sizes.open = [this](int group, RibbonControl::SizeMode mode, const QSize &available) {
        return m_items[group].control->sizeFromMode(mode, available);
    };

    const QMargins margins = contentsMargins();
    const QSize area = geometry().marginsRemoved(margins).size();
    const QVector<RibbonGeometry::Place> places =
        RibbonGeometry::arrangeGroups(groups, area, spacing(), sizes);
    QPoint point(margins.left(), margins.top());
    for (int i = 0; i < places.size(); ++i) {
        if (!groups[i].shown)
            continue;
        if (m_items[i].control)
            m_items[i].control->setSizeMode(places[i].mode, false);
        const QRect rect(point, QSize(places[i].size.width(), area.height()));
        m_items[i].layoutItem->widget()->setGeometry(rect);
        point.rx() += rect.width() + spacing();
    }
}

} // namespace NVO
