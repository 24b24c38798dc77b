#include <nvo/FlowLayout.h>

#include <QApplication>
#include <QWidget>

#include <algorithm>

namespace NVO {

namespace {

/** What stands for a spacing that nothing around the layout decides. */
int styleSpacing(QLayoutItem *item, Qt::Orientation orientation)
{
    const QWidget *widget = item->widget();
    const QStyle *style = widget ? widget->style() : QApplication::style();
    return style->layoutSpacing(QSizePolicy::PushButton, QSizePolicy::PushButton, orientation);
}

/** The margin of a layout as one number; -1 if the four are different. */
int commonMargin(const QLayout *layout)
{
    const QMargins margins = layout->contentsMargins();
    const bool isCommon = margins.left() == margins.top() && margins.left() == margins.right()
                          && margins.left() == margins.bottom();
    return isCommon ? margins.left() : -1;
}

} // namespace

FlowLayout::FlowLayout(int margin, int horizontalSpacing, int verticalSpacing)
    : FlowLayout(nullptr, margin, horizontalSpacing, verticalSpacing)
{}

FlowLayout::FlowLayout(QWidget *parent, int margin, int horizontalSpacing, int verticalSpacing)
    : QLayout(parent)
    , m_horizontalSpace(horizontalSpacing)
    , m_verticalSpace(verticalSpacing)
{
    setContentsMargins(margin, margin, margin, margin);
}

FlowLayout::~FlowLayout()
{
    qDeleteAll(m_items);
}

int FlowLayout::horizontalSpacing() const
{
    return m_horizontalSpace >= 0 ? m_horizontalSpace : smartSpacing(QStyle::PM_LayoutHorizontalSpacing);
}

int FlowLayout::verticalSpacing() const
{
    return m_verticalSpace >= 0 ? m_verticalSpace : smartSpacing(QStyle::PM_LayoutVerticalSpacing);
}

void FlowLayout::addItem(QLayoutItem *item)
{
    if (item)
        m_items.append(item);
}

int FlowLayout::count() const
{
    return m_items.size();
}

QLayoutItem *FlowLayout::itemAt(int index) const
{
    return m_items.value(index);
}

QLayoutItem *FlowLayout::takeAt(int index)
{
    return index >= 0 && index < m_items.size() ? m_items.takeAt(index) : nullptr;
}

Qt::Orientations FlowLayout::expandingDirections() const
{
    return {};
}

bool FlowLayout::hasHeightForWidth() const
{
    return true;
}

int FlowLayout::heightForWidth(int width) const
{
    return doLayout(QRect(0, 0, width, 0), true);
}

QSize FlowLayout::minimumSize() const
{
    QSize size(0, 0);
    for (const QLayoutItem *item : m_items)
        size = size.expandedTo(item->minimumSize());
    const int margins = 2 * commonMargin(this);
    return size + QSize(margins, margins);
}

QSize FlowLayout::sizeHint() const
{
    return minimumSize();
}

void FlowLayout::setGeometry(const QRect &rect)
{
    QLayout::setGeometry(rect);
    doLayout(rect, false);
}

/** Places the items, unless \a testOnly, and returns the height that they need. */
int FlowLayout::doLayout(const QRect &rect, bool testOnly) const
{
    const QMargins margins = contentsMargins();
    const QRect area = rect.marginsRemoved(margins);
    const Qt::LayoutDirection direction =
        parentWidget() ? parentWidget()->layoutDirection() : QApplication::layoutDirection();
    const int horizontal = horizontalSpacing();
    const int vertical = verticalSpacing();

    int x = area.x();
    int y = area.y();
    int lineHeight = 0;
    for (QLayoutItem *item : m_items) {
        const QSize size = item->sizeHint();
        const int spaceX = horizontal != -1 ? horizontal : styleSpacing(item, Qt::Horizontal);
        const int spaceY = vertical != -1 ? vertical : styleSpacing(item, Qt::Vertical);
        if (x + size.width() > area.right() && lineHeight > 0) {
            x = area.x();
            y += lineHeight + spaceY;
            lineHeight = 0;
        }
        if (!testOnly)
            item->setGeometry(QStyle::visualRect(direction, area, QRect(QPoint(x, y), size)));
        x += size.width() + spaceX;
        lineHeight = std::max(lineHeight, size.height());
    }
    return y + lineHeight - rect.y() + margins.bottom();
}

int FlowLayout::smartSpacing(QStyle::PixelMetric metric) const
{
    if (const auto *widget = qobject_cast<QWidget *>(parent()))
        return widget->style()->pixelMetric(metric, nullptr, widget);
    const auto *layout = qobject_cast<QLayout *>(parent());
    return layout ? layout->spacing() : -1;
}

} // namespace NVO
