#include "RibbonPeerLayouts.h"

#include <QWidget>

namespace RibbonPeers {

namespace {

using Column = NVO::RibbonLayoutHelper;
using Columns = QList<Column>;

constexpr int columnGap = 5;
constexpr int controlGap = 2;
constexpr int highestColumn = 3;

Mode fixMode(const Column &column)
{
    return column.first().control->fixSizeMode();
}

Mode modeOf(const Column &column, const Columns &columns)
{
    const Mode fix = fixMode(column);
    const bool isLarge = fix == Mode::Auto
                             ? column.first().control->sizeMode() == Mode::Large
                             : column.count() == 1 && (fix == Mode::Large || columns.size() == 1);
    return isLarge ? Mode::Large : Mode::Small;
}

QSize sizeOf(const Columns &columns)
{
    if (columns.isEmpty())
        return QSize();
    QSize result((columns.size() - 1) * columnGap, -1);
    for (const Column &column : columns) {
        const QSize own = column.size(Qt::Vertical, modeOf(column, columns), true);
        result = QSize(result.width() + own.width(), qMax(result.height(), own.height()));
    }
    return result;
}

/** Moves the controls of the next column into one as long as there is room. */
void mergeNext(Columns &columns, int i)
{
    do
        columns[i].append(columns[i + 1].takeFirst());
    while (!columns[i + 1].isEmpty() && columns[i].count() < highestColumn);
    if (columns[i + 1].isEmpty())
        columns.removeAt(i + 1);
}

void mergeFixedSmall(Columns &columns)
{
    for (int i = 0; i < columns.size() - 1;) {
        if (columns[i].count() < highestColumn && fixMode(columns[i]) == Mode::Small
            && fixMode(columns[i + 1]) == Mode::Small) {
            mergeNext(columns, i);
            columns[i].setSpacing(controlGap);
        } else {
            ++i;
        }
    }
}

int widthOf(const NVO::RibbonLayoutHelper &items)
{
    int width = 0;
    int visible = 0;
    for (const NVO::RibbonLayoutItem &item : items) {
        if (!item.isVisible())
            continue;
        width += item.size.width();
        ++visible;
    }
    return width + qMax(visible - 1, 0) * items.spacing();
}

void closeAll(NVO::RibbonLayoutHelper &items)
{
    for (NVO::RibbonLayoutItem &item : items) {
        const Mode fix = item.control->fixSizeMode();
        item.mode = fix == Mode::Auto ? Mode::Small : fix;
        if (!item.widget->isHidden())
            item.size = item.sizeFromMode(true);
    }
}

void openFromLeft(NVO::RibbonLayoutHelper &items, const QSize &area)
{
    int total = widthOf(items);
    for (int i = 0; i < items.count() && total < area.width(); ++i) {
        NVO::RibbonLayoutItem &item = items[i];
        if (!item.isVisible())
            continue;
        const NVO::RibbonLayoutItem before = item;
        if (item.control->fixSizeMode() == Mode::Auto)
            item.mode = Mode::Large;
        NVO::RibbonLayoutHelper others = items;
        others.removeAt(i);
        const QSize available(area.width() - widthOf(others), area.height());
        item.size = item.control->sizeFromMode(item.mode, available);
        total = widthOf(items);
        if (total > area.width()) {
            item = before;
            break;
        }
    }
}

} // namespace

QLayoutItem *ListLayout::takeAt(int index)
{
    return index >= 0 && index < m_items.size() ? m_items.takeAt(index) : nullptr;
}

NVO::RibbonLayoutHelper ListLayout::row(int spacing) const
{
    NVO::RibbonLayoutHelper helper(m_items);
    helper.setSpacing(spacing);
    return helper;
}

QSize ListLayout::withMargins(const QSize &size) const
{
    const QMargins margins = contentsMargins();
    return size + QSize(margins.left() + margins.right(), margins.top() + margins.bottom());
}

GroupLayout::GroupLayout(QWidget *panel, QLabel *caption, bool keepsSize)
    : ListLayout(panel)
    , m_caption(caption)
    , m_keepsSize(keepsSize)
{
    setContentsMargins(0, 0, 0, 0);
    setSpacing(controlGap);
}

void GroupLayout::setGeometry(const QRect &geometry)
{
    QLayout::setGeometry(geometry);
    QRect rect = geometry;
    const int captionHeight = m_caption->sizeHint().height();
    const Columns columns = columnsFor(rect.width());
    int x = rect.left();
    for (const Column &column : columns) {
        const Mode mode = modeOf(column, columns);
        const int columnWidth = column.maxWidth(mode, true);
        int y = rect.top();
        for (const NVO::RibbonLayoutItem &item : column) {
            item.control->setSizeMode(mode, true);
            QSize size = item.widget->sizeHint();
            if (mode == Mode::Large)
                size.setHeight(rect.height() - captionHeight - spacing());
            else
                size.setWidth(columnWidth);
            item.widget->setGeometry(QRect(QPoint(x, y), size));
            y += size.height() + controlGap;
        }
        x += columnWidth + columnGap;
    }
    rect.setTop(rect.bottom() - captionHeight);
    m_caption->setGeometry(rect);
}

void GroupLayout::invalidate()
{
    m_compact = QSize();
    QLayout::invalidate();
}

QSize GroupLayout::sizeFromMode(Mode mode, const QSize &available) const
{
    return mode == Mode::Small ? sizeFromMode(mode, true)
                               : withCaption(sizeOf(columnsFor(available.width())));
}

QSize GroupLayout::sizeFromMode(Mode mode, bool minimum) const
{
    if (mode != Mode::Small && !minimum)
        return withCaption(row(columnGap).size(Qt::Horizontal, mode, false));
    if (!m_keepsSize || !m_compact.isValid())
        m_compact = withCaption(sizeOf(compactColumns()));
    return m_compact;
}

NVO::RibbonLayoutHelper GroupLayout::visible() const
{
    NVO::RibbonLayoutHelper result;
    const NVO::RibbonLayoutHelper all = row(0);
    for (const NVO::RibbonLayoutItem &item : all) {
        if (item.isVisible())
            result.append(item);
    }
    return result;
}

Columns GroupLayout::compactColumns() const
{
    Columns columns;
    bool closed = true;
    const NVO::RibbonLayoutHelper items = visible();
    for (const NVO::RibbonLayoutItem &item : items) {
        if (closed) {
            columns.append(Column());
            columns.last().setSpacing(controlGap);
        }
        columns.last().append(item);
        closed = columns.last().count() == highestColumn || item.control->fixSizeMode() == Mode::Large;
    }
    return columns;
}

Columns GroupLayout::columnsFor(int available) const
{
    Columns columns;
    const NVO::RibbonLayoutHelper items = visible();
    for (const NVO::RibbonLayoutItem &item : items) {
        columns.append(Column(item.widget));
        columns.last().setSpacing(spacing());
    }
    QSize needed = sizeOf(columns);
    if (!needed.isValid())
        return columns;
    mergeFixedSmall(columns);
    int i = 0;
    for (; needed.width() > available; ++i, needed = sizeOf(columns)) {
        for (int repetition = 0; repetition < 2; ++repetition) {
            if (i >= columns.size() - 1)
                return columns;
            const Column &column = columns[i];
            if (column.count() == highestColumn || (column.count() == 1 && fixMode(column) == Mode::Large))
                break;
            mergeNext(columns, i);
        }
    }
    if (i < columns.size() - 1 && columns[i].count() == 1
        && columns[i].first().control->sizeMode() == Mode::Small)
        mergeNext(columns, i);
    return columns;
}

QSize GroupLayout::withCaption(const QSize &size) const
{
    const QSize caption = m_caption->sizeHint();
    return QSize(qMax(size.width(), caption.width()), size.height() + caption.height() + spacing());
}

QSize PageLayout::minimumSize() const
{
    const QSize large = row(spacing()).size(Qt::Horizontal, Mode::Large, true);
    const QSize small = row(spacing()).size(Qt::Horizontal, Mode::Small, true);
    return withMargins(small.width() < large.width() ? small : large);
}

QSize PageLayout::maximumSize() const
{
    const QSize large = row(spacing()).size(Qt::Horizontal, Mode::Large, false);
    const QSize small = row(spacing()).size(Qt::Horizontal, Mode::Small, false);
    return withMargins(large.width() > small.width() ? large : small);
}

void PageLayout::setGeometry(const QRect &geometry)
{
    QLayout::setGeometry(geometry);
    const QRect area = geometry.marginsRemoved(contentsMargins());
    NVO::RibbonLayoutHelper items = row(spacing());
    closeAll(items);
    openFromLeft(items, area.size());
    QPoint point = area.topLeft();
    for (const NVO::RibbonLayoutItem &item : qAsConst(items)) {
        if (item.widget->isHidden())
            continue;
        item.control->setSizeMode(item.mode, false);
        item.widget->setGeometry(QRect(point, QSize(item.size.width(), area.height())));
        point.rx() += item.size.width() + spacing();
    }
}

} // namespace RibbonPeers
