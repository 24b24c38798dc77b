#include "containers/HalvedLayout.h"

#include <QDebug>
#include <QStyle>

#include <algorithm>

namespace NVO {

namespace {

/** The items of dead widgets are only waiting to be deleted. */
bool isShown(QLayoutItem *item)
{
    return item && item->widget() && !item->isEmpty();
}

QSize hintOf(QLayoutItem *item)
{
    return isShown(item) ? item->sizeHint() : QSize(0, 0);
}

QSize minimumOf(QLayoutItem *item)
{
    return isShown(item) ? item->minimumSize() : QSize(0, 0);
}

/** Who is not there narrows nothing. */
QSize maximumOf(QLayoutItem *item)
{
    return isShown(item) ? item->maximumSize() : QSize(QWIDGETSIZE_MAX, QWIDGETSIZE_MAX);
}

Qt::Orientations directionsOf(QLayoutItem *item)
{
    return isShown(item) ? item->expandingDirections() : Qt::Orientations();
}

int heightOf(QLayoutItem *item, int width)
{
    if (!isShown(item))
        return 0;
    return item->hasHeightForWidth() ? item->heightForWidth(width) : item->sizeHint().height();
}

/** Two halves of \a half and the gap between them. */
QSize whole(const QSize &half, int gap)
{
    return {gap + 2 * half.width(), half.height()};
}

bool isAbove(const QWidget *widget, const QWidget *parent)
{
    return widget && parent && (widget == parent || widget->isAncestorOf(parent));
}

} // namespace

HalvedLayout::HalvedLayout(QWidget *parent)
    : QLayout(parent)
{}

HalvedLayout::~HalvedLayout()
{
    delete m_leftItem;
    delete m_rightItem;
}

void HalvedLayout::setWidgets(QWidget *left, QWidget *right)
{
    for (const QWidget *widget : {m_leftWidget.data(), m_rightWidget.data()}) {
        if (widget && widget->parentWidget() == parentWidget()) {
            qWarning("Can't add parent widget to layout");
            return;
        }
    }
    delete std::exchange(m_leftItem, nullptr);
    delete std::exchange(m_rightItem, nullptr);
    for (QPointer<QWidget> *old : {&m_leftWidget, &m_rightWidget}) {
        if (*old != left && *old != right)
            delete *old;
    }
    m_leftWidget = isAbove(left, parentWidget()) ? nullptr : left;
    m_rightWidget = isAbove(right, parentWidget()) || right == left ? nullptr : right;
    m_leftItem = makeItem(m_leftWidget);
    m_rightItem = makeItem(m_rightWidget);
    invalidate();
}

QLayoutItem *HalvedLayout::makeItem(QWidget *widget)
{
    if (!widget)
        return nullptr;
    addChildWidget(widget);
    return new QWidgetItemV2(widget);
}

void HalvedLayout::setSpacing(int spacing)
{
    m_spacing = spacing;
    invalidate();
}

void HalvedLayout::addItem(QLayoutItem *)
{
    qWarning("HalvedLayout has no addItem");
}

QLayoutItem *HalvedLayout::itemAt(int index) const
{
    return index == 0 ? m_leftItem : index == 1 ? m_rightItem : nullptr;
}

QLayoutItem *HalvedLayout::takeAt(int index)
{
    if (index != 0 && index != 1)
        return nullptr;
    return std::exchange(index == 0 ? m_leftItem : m_rightItem, nullptr);
}

int HalvedLayout::count() const
{
    return (m_leftWidget ? 1 : 0) + (m_rightWidget ? 1 : 0);
}

QSize HalvedLayout::sizeHint() const
{
    fillCache();
    return m_cachedSizeHint;
}

QSize HalvedLayout::minimumSize() const
{
    fillCache();
    return m_cachedMinimumSize;
}

QSize HalvedLayout::maximumSize() const
{
    fillCache();
    return m_cachedMaximumSize;
}

Qt::Orientations HalvedLayout::expandingDirections() const
{
    fillCache();
    return m_cachedExpandingDirections;
}

void HalvedLayout::setGeometry(const QRect &rect)
{
    QLayout::setGeometry(rect);
    fillCache();
    const QMargins margins = contentsMargins();
    const int width = rect.width() - margins.left() - margins.right() - gap();
    const int height = rect.height() - margins.top() - margins.bottom();
    const bool areBoth = isShown(m_leftItem) && isShown(m_rightItem);
    const int share = areBoth ? width / 2 : width;

    const auto place = [&](QLayoutItem *item, int x) {
        if (isShown(item))
            item->setGeometry(QStyle::visualRect(parentWidget()->layoutDirection(),
                                                 QRect({0, 0}, rect.size()),
                                                 QRect(x, margins.top(), share, height)));
    };
    place(m_leftItem, margins.left());
    place(m_rightItem, margins.left() + (areBoth ? share + gap() : 0));
}

bool HalvedLayout::hasHeightForWidth() const
{
    return (m_leftWidget && m_leftWidget->hasHeightForWidth())
           || (m_rightWidget && m_rightWidget->hasHeightForWidth());
}

int HalvedLayout::heightForWidth(int width) const
{
    const QMargins margins = parentWidget() ? parentWidget()->contentsMargins() : QMargins();
    const int half = (width - margins.right() - margins.left() - gap()) / 2;
    return std::max({heightOf(m_leftItem, half), heightOf(m_rightItem, half), 0});
}

int HalvedLayout::minimumHeightForWidth(int width) const
{
    return heightForWidth(width);
}

void HalvedLayout::invalidate()
{
    m_dirty = true;
    QLayout::invalidate();
}

int HalvedLayout::gap() const
{
    return isShown(m_leftItem) && isShown(m_rightItem) ? m_spacing : 0;
}

void HalvedLayout::fillCache() const
{
    if (!m_dirty)
        return;
    m_cachedExpandingDirections = directionsOf(m_leftItem) | directionsOf(m_rightItem);
    m_cachedMinimumSize = whole(minimumOf(m_leftItem).expandedTo(minimumOf(m_rightItem)), gap());
    m_cachedMaximumSize =
        whole(maximumOf(m_leftItem).boundedTo(maximumOf(m_rightItem)), gap()).expandedTo(m_cachedMinimumSize);
    m_cachedSizeHint = whole(hintOf(m_leftItem).expandedTo(hintOf(m_rightItem)), gap())
                           .expandedTo(m_cachedMinimumSize)
                           .boundedTo(m_cachedMaximumSize);

    const QMargins margins = contentsMargins();
    const QSize around(margins.left() + margins.right(), margins.top() + margins.bottom());
    for (QSize *size : {&m_cachedMinimumSize, &m_cachedMaximumSize, &m_cachedSizeHint})
        *size += around;
    m_dirty = false;
}

} // namespace NVO
