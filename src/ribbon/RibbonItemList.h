#pragma once

#include <nvo/RibbonControl.h>
#include <nvo/RibbonLayoutHelper.h>

#include <QLayoutItem>
#include <QList>
#include <QVector>
#include <QWidget>

namespace NVO {

/** The items of a layout of the ribbon, which owns them, with what each widget is as a control. */
class RibbonItemList
{
public:
    struct Item
    {
        QLayoutItem *layoutItem = nullptr;
        RibbonControl *control = nullptr; ///< Null for a foreign widget.

        QWidget *widget() const { return layoutItem->widget(); }
        bool isVisible() const { return !control || control->controlVisible(); }

        /** The smallest size in a mode; that of a foreign widget is always the same. */
        QSize smallest(RibbonControl::SizeMode mode) const
        {
            return control ? control->sizeFromMode(mode, true) : widget()->minimumSize();
        }
    };

    RibbonItemList() = default;
    RibbonItemList(const RibbonItemList &) = delete;
    RibbonItemList &operator=(const RibbonItemList &) = delete;

    ~RibbonItemList()
    {
        while (!m_items.isEmpty())
            delete takeAt(m_items.count() - 1);
    }

    /** Takes an item over. A spacer or a layout has no place in the ribbon and is deleted; null is left out.
     */
    void add(QLayoutItem *layoutItem)
    {
        if (layoutItem && layoutItem->widget())
            m_items.append({layoutItem, dynamic_cast<RibbonControl *>(layoutItem->widget())});
        else
            delete layoutItem;
    }

    int count() const { return m_items.count(); }

    /** The item at a position; null out of range. */
    QLayoutItem *itemAt(int index) const { return m_items.value(index).layoutItem; }

    /** The item at a position, which is the caller's from now on; null out of range. */
    QLayoutItem *takeAt(int index)
    {
        return index >= 0 && index < m_items.count() ? m_items.takeAt(index).layoutItem : nullptr;
    }

    QList<QWidget *> visibleWidgets() const
    {
        QList<QWidget *> widgets;
        for (const Item &item : m_items) {
            if (item.isVisible())
                widgets.append(item.widget());
        }
        return widgets;
    }

    /** All items as a row, with \a spacing between them. */
    RibbonLayoutHelper row(int spacing) const
    {
        RibbonLayoutHelper helper;
        for (const Item &item : m_items)
            helper.append(RibbonLayoutItem(item.widget(), item.control));
        helper.setSpacing(spacing);
        return helper;
    }

    const Item &at(int index) const { return m_items[index]; }
    QVector<Item>::const_iterator begin() const { return m_items.begin(); }
    QVector<Item>::const_iterator end() const { return m_items.end(); }

private:
    QVector<Item> m_items;
};

} // namespace NVO
