#pragma once

#include <nvo/Export.h>
#include <nvo/RibbonLayoutItem.h>

#include <QList>

class QLayoutItem;

namespace NVO {

/**
 * A list of controls in the ribbon, such as a column of a group: their size together, and the way of the
 * keyboard through them.
 */
class NVO_EXPORT RibbonLayoutHelper : public QList<RibbonLayoutItem>
{
public:
    RibbonLayoutHelper() = default;
    /** \name One item for each widget; null items and items without a widget are left out */
    ///@{
    explicit RibbonLayoutHelper(QWidget *p_widget);
    explicit RibbonLayoutHelper(const QList<QWidget *> &p_widgets);
    explicit RibbonLayoutHelper(const QList<QLayoutItem *> &p_items);
    ///@}

    /** Pixels between two controls; 0 at first. */
    int spacing() const { return m_spacing; }
    void setSpacing(int p_spacing) { m_spacing = p_spacing; }

    /**
     * The size of the visible items in a row or column, with spacing between them. It starts from the
     * invalid size, so that along the row or column it is one pixel short of the plain sum. Hides the number
     * of items, which is count().
     */
    QSize size(Qt::Orientation p_orientation, RibbonControl::SizeMode p_mode, bool p_minimum) const;

    /** The largest width of all items, visible or not; 0 for an empty list. */
    int maxWidth(RibbonControl::SizeMode p_mode, bool p_minimum) const;

    /** The largest height of all items, visible or not; 0 for an empty list. */
    int maxHeight(RibbonControl::SizeMode p_mode, bool p_minimum) const;

    /** The position of the widget that has the focus; -1 if none has it. */
    int focusIndex() const;

    /** The next enabled widget that Qt::Key_Up or Qt::Key_Down leads to; null at the end, for other keys and
     * without focus. */
    QWidget *nextInColumn(int p_key) const;

    /**
     * The widget that an arrow key leads to from the one that has the focus. Its row in the column is stored
     * in \a p_row, which may be null, and kept from column to column, as far as they are long enough. Null at
     * the edge and without focus.
     */
    static QWidget *nextInColumns(const QList<RibbonLayoutHelper> &p_columns, int p_key, int *p_row);

private:
    int m_spacing = 0;
};

} // namespace NVO
