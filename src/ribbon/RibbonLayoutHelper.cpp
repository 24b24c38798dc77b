#include <nvo/RibbonLayoutHelper.h>

#include <QLayoutItem>

#include <algorithm>

namespace NVO {

RibbonLayoutHelper::RibbonLayoutHelper(QWidget *p_widget)
{
    append(RibbonLayoutItem(p_widget));
}

RibbonLayoutHelper::RibbonLayoutHelper(const QList<QWidget *> &p_widgets)
{
    for (QWidget *widget : p_widgets)
        append(RibbonLayoutItem(widget));
}

RibbonLayoutHelper::RibbonLayoutHelper(const QList<QLayoutItem *> &p_items)
{
    for (QLayoutItem *item : p_items) {
        if (item && item->widget())
            append(RibbonLayoutItem(item->widget()));
    }
}

QSize RibbonLayoutHelper::size(Qt::Orientation p_orientation, RibbonControl::SizeMode p_mode,
                               bool p_minimum) const
{
    const bool horizontal = p_orientation == Qt::Horizontal;
    QSize sum;
    int visible = 0;
    for (const RibbonLayoutItem &item : *this) {
        if (!item.isVisible())
            continue;
        const QSize own = item.sizeFromMode(p_mode, p_minimum);
        sum = horizontal ? QSize(sum.width() + own.width(), std::max(sum.height(), own.height()))
                         : QSize(std::max(sum.width(), own.width()), sum.height() + own.height());
        ++visible;
    }
    if (isEmpty())
        return sum;
    const int gaps = (visible - 1) * m_spacing;
    return sum + (horizontal ? QSize(gaps, 0) : QSize(0, gaps));
}

int RibbonLayoutHelper::maxWidth(RibbonControl::SizeMode p_mode, bool p_minimum) const
{
    int width = 0;
    for (const RibbonLayoutItem &item : *this)
        width = std::max(width, item.sizeFromMode(p_mode, p_minimum).width());
    return width;
}

int RibbonLayoutHelper::maxHeight(RibbonControl::SizeMode p_mode, bool p_minimum) const
{
    int height = 0;
    for (const RibbonLayoutItem &item : *this)
        height = std::max(height, item.sizeFromMode(p_mode, p_minimum).height());
    return height;
}

int RibbonLayoutHelper::focusIndex() const
{
    const auto focused = std::find_if(
        begin(), end(), [](const RibbonLayoutItem &item) { return item.widget && item.widget->hasFocus(); });
    return focused == end() ? -1 : int(focused - begin());
}

QWidget *RibbonLayoutHelper::nextInColumn(int p_key) const
{
    if (p_key != Qt::Key_Up && p_key != Qt::Key_Down)
        return nullptr;
    const int focused = focusIndex();
    if (focused < 0)
        return nullptr;
    const int step = p_key == Qt::Key_Up ? -1 : 1;
    for (int i = focused + step; i >= 0 && i < count(); i += step) {
        if (at(i).widget && at(i).widget->isEnabled())
            return at(i).widget;
    }
    return nullptr;
}

QWidget *RibbonLayoutHelper::nextInColumns(const QList<RibbonLayoutHelper> &p_columns, int p_key, int *p_row)
{
    const auto focused =
        std::find_if(p_columns.begin(), p_columns.end(),
                     [](const RibbonLayoutHelper &column) { return column.focusIndex() >= 0; });
    if (focused == p_columns.end())
        return nullptr;
    int row = focused->focusIndex();
    if (p_row)
        *p_row = row;
    if (p_key != Qt::Key_Left && p_key != Qt::Key_Right)
        return focused->nextInColumn(p_key);

    const int next = int(focused - p_columns.begin()) + (p_key == Qt::Key_Left ? -1 : 1);
    if (next < 0 || next >= p_columns.count() || p_columns[next].isEmpty())
        return nullptr;
    if (row >= p_columns[next].count()) {
        row = 0;
        if (p_row)
            *p_row = row;
    }
    return p_columns[next].at(row).widget;
}

} // namespace NVO
