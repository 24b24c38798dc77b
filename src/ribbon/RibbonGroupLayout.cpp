#include <nvo/RibbonGroupLayout.h>

#include "ribbon/RibbonGeometry.h"
#include "ribbon/RibbonItemList.h"
#include "theme/StyleSupport.h"

#include <nvo/Label.h>

namespace NVO {

namespace {

constexpr int layoutSpacing = 2;
constexpr int captionPixelSize = 11;

} // namespace

/** The visible items of a layout and the columns that they can stand in. */
class RibbonGroupLayout::Arrangement
{
public:
    explicit Arrangement(const RibbonGroupLayout &layout)
        : m_spacing(layout.spacing())
    {
        for (const RibbonItemList::Item &item : *layout.m_items) {
            if (!item.isVisible())
                continue;
            m_items.append(item);
            RibbonGeometry::Control control;
            if (item.control)
                control = {item.control->sizeMode(), item.control->fixSizeMode()};
            m_controls.append(control);
        }
    }

    RibbonGeometry::Columns forWidth(int width) const
    {
        return RibbonGeometry::columnsForWidth(m_controls, width, m_spacing, sizes());
    }

    QSize compactSize() const { return sizeOf(RibbonGeometry::compactColumns(m_controls)); }

    QSize sizeOf(const RibbonGeometry::Columns &columns) const
    {
        return RibbonGeometry::sizeOfColumns(m_controls, columns, sizes());
    }

    RibbonControl::SizeMode modeOf(const RibbonGeometry::Column &column, bool isOnlyColumn) const
    {
        return RibbonGeometry::columnMode(m_controls, column, isOnlyColumn);
    }

    const RibbonItemList::Item &item(int index) const { return m_items[index]; }

private:
    RibbonGeometry::SizeOf sizes() const
    {
        return [this](int index, RibbonControl::SizeMode mode) { return m_items[index].smallest(mode); };
    }

    int m_spacing;
    QVector<RibbonItemList::Item> m_items;
    QVector<RibbonGeometry::Control> m_controls;
};

RibbonGroupLayout::RibbonGroupLayout(QWidget *p_parent)
    : QLayout(p_parent)
    , m_items(std::make_unique<RibbonItemList>())
    , m_label(new Label(parentWidget()))
{
    setSpacing(layoutSpacing);
    m_label->setObjectName(QStringLiteral("RibbonGroupLabel"));
    m_label->setAlignment(Qt::AlignHCenter | Qt::AlignVCenter);
    m_label->setVisible(false);
    StyleSupport::setPixelSize(m_label, captionPixelSize);
}

RibbonGroupLayout::~RibbonGroupLayout()
{
    delete m_label; // makes Qt look through the items, which are still there
}

void RibbonGroupLayout::addItem(QLayoutItem *p_item)
{
    m_items->add(p_item);
}

int RibbonGroupLayout::count() const
{
    return m_items->count();
}

QLayoutItem *RibbonGroupLayout::itemAt(int p_index) const
{
    return m_items->itemAt(p_index);
}

QLayoutItem *RibbonGroupLayout::takeAt(int p_index)
{
    return m_items->takeAt(p_index);
}

QSize RibbonGroupLayout::sizeHint() const
{
    return sizeFromMode(RibbonControl::Large, true);
}

QSize RibbonGroupLayout::minimumSize() const
{
    return sizeFromMode(RibbonControl::Small, true);
}

QSize RibbonGroupLayout::maximumSize() const
{
    return sizeFromMode(RibbonControl::Large, true);
}

void RibbonGroupLayout::setGeometry(const QRect &p_rect)
{
    QLayout::setGeometry(p_rect);
    m_area = p_rect;
    adoptCaption();
    doLayout();
}

QSize RibbonGroupLayout::sizeFromMode(RibbonControl::SizeMode p_mode, const QSize &p_available) const
{
    if (p_mode == RibbonControl::Small)
        return sizeFromMode(p_mode, true);
    const Arrangement arrangement(*this);
    return withCaption(arrangement.sizeOf(arrangement.forWidth(p_available.width())));
}

QSize RibbonGroupLayout::sizeFromMode(RibbonControl::SizeMode p_mode, bool p_minimum) const
{
    if (p_mode == RibbonControl::Small || p_minimum)
        return withCaption(Arrangement(*this).compactSize());
    return withCaption(m_items->row(RibbonGeometry::columnGap).size(Qt::Horizontal, p_mode, false));
}

QSize RibbonGroupLayout::withCaption(QSize size) const
{
    const QSize caption = m_label ? m_label->sizeHint() : QSize();
    const QMargins margins = contentsMargins();
    return QSize(qMax(size.width(), caption.width()) + margins.left() + margins.right(),
                 size.height() + caption.height() + spacing() + margins.top() + margins.bottom());
}

QList<QWidget *> RibbonGroupLayout::visibleWidgets() const
{
    return m_items->visibleWidgets();
}

QList<RibbonLayoutHelper> RibbonGroupLayout::getWidgets() const
{
    const Arrangement arrangement(*this);
    QList<RibbonLayoutHelper> result;
    const auto columns = arrangement.forWidth(m_area.marginsRemoved(contentsMargins()).width());
    for (const RibbonGeometry::Column &column : columns) {
        RibbonLayoutHelper helper;
        helper.setSpacing(column.spacing);
        for (const int control : column.controls) {
            const RibbonItemList::Item &item = arrangement.item(control);
            helper.append(RibbonLayoutItem(item.widget(), item.control));
        }
        result.append(helper);
    }
    return result;
}

QWidget *RibbonGroupLayout::getLabel() const
{
    return m_label;
}

void RibbonGroupLayout::setText(const QString &p_text)
{
    if (!m_label)
        return;
    adoptCaption();
    const QString before = m_label->text();
    m_label->setText(p_text);
    m_label->setVisible(!p_text.isEmpty() && m_label->parentWidget());
    if (m_area.isValid() && m_label->text() != before)
        doLayout();
}

/** A layout may be given its widget after it was made. */
void RibbonGroupLayout::adoptCaption()
{
    if (!m_label || !parentWidget() || m_label->parentWidget() == parentWidget())
        return;
    m_label->setParent(parentWidget());
    m_label->setVisible(!m_label->text().isEmpty());
}

int RibbonGroupLayout::getCountVerticalControls()
{
    return RibbonGeometry::controlsPerColumn;
}

void RibbonGroupLayout::doLayout() const
{
    const QMargins margins = contentsMargins();
    QRect rect = m_area.marginsRemoved(margins);
    const int captionHeight = m_label ? m_label->sizeHint().height() : 0;
    const int largeHeight = rect.height() - captionHeight - spacing();

    const Arrangement arrangement(*this);
    const RibbonGeometry::Columns columns = arrangement.forWidth(rect.width());
    int x = margins.left();
    for (const RibbonGeometry::Column &column : columns) {
        const RibbonControl::SizeMode mode = arrangement.modeOf(column, columns.size() == 1);
        int columnWidth = 0;
        for (const int control : column.controls)
            columnWidth = qMax(columnWidth, arrangement.item(control).smallest(mode).width());
        int y = margins.top();
        for (const int control : column.controls) {
            const RibbonItemList::Item &item = arrangement.item(control);
            if (item.control)
                item.control->setSizeMode(mode, true);
            QWidget *widget = item.widget();
            QSize size = widget->sizeHint();
            if (mode == RibbonControl::Large)
                size.setHeight(largeHeight);
            else
                size.setWidth(columnWidth);
            widget->setGeometry(QRect(QPoint(x, y), size));
            y += size.height() + RibbonGeometry::controlGap;
        }
        x += columnWidth + RibbonGeometry::columnGap;
    }

    rect.setTop(rect.bottom() - captionHeight);
    if (m_label)
        m_label->setGeometry(rect);
}

} // namespace NVO
