#pragma once

#include "ribbon/RibbonItemList.h"

#include <QLayout>
#include <QList>

namespace NVO {

/**
 * The layout of a ribbon page: groups side by side, opened from the left as far as the width allows. Its
 * items may be widgets that are no controls. Spare width stays empty at the right.
 */
class RibbonLayout : public QLayout
{
    Q_OBJECT

public:
    explicit RibbonLayout(QWidget *p_parent);

    void addItem(QLayoutItem *p_item) override;
    int count() const override { return m_items.count(); }
    QLayoutItem *itemAt(int p_index) const override;
    QLayoutItem *takeAt(int p_index) override;

    QSize sizeHint() const override;
    QSize minimumSize() const override;
    QSize maximumSize() const override;
    void invalidate() override;
    void setGeometry(const QRect &p_rect) override;

    /** The widgets whose controls are visible, and those that are no controls, in order. */
    QList<QWidget *> visibleWidgets() const;

private:
    void doLayout();

    RibbonItemList m_items;
    mutable QSize m_minimum; ///< Kept until the layout is invalidated.
};

} // namespace NVO
