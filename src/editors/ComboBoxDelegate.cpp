#include "editors/ComboBoxDelegate.h"

#include <nvo/ComboBox.h>

#include <utility>

namespace NVO {

ComboBoxDelegate::ComboBoxDelegate(ComboBox *comboBox)
    : QItemDelegate(comboBox)
    , m_comboBox(comboBox)
{}

/** A text always has the width of its row: in the width of its letters the margins would cut it. */
void ComboBoxDelegate::paint(QPainter *painter, const QStyleOptionViewItem &option,
                             const QModelIndex &index) const
{
    QStyleOptionViewItem wide = option;
    wide.showDecorationSelected = true;
    QItemDelegate::paint(painter, wide, index);
}

/** The list that a combo box has from the start makes its rows as wide as itself: measuring them all would be
 *  in vain, with each change of font or style, and takes seconds in a long list. */
QSize ComboBoxDelegate::sizeHint(const QStyleOptionViewItem &option, const QModelIndex &index) const
{
    const bool isOwnList = option.widget && option.widget->inherits("QComboBoxListView");
    return {isOwnList ? 0 : QItemDelegate::sizeHint(option, index).width(), m_comboBox->itemHeight()};
}

void ComboBoxDelegate::drawDisplay(QPainter *painter, const QStyleOptionViewItem &option, const QRect &rect,
                                   const QString &text) const
{
    int left = m_comboBox->leftTextMargin();
    int right = m_comboBox->rightTextMargin();
    if (option.direction == Qt::RightToLeft)
        std::swap(left, right);
    QItemDelegate::drawDisplay(painter, option, rect.adjusted(left, 0, -right, 0), text);
}

void ComboBoxDelegate::drawDecoration(QPainter *painter, const QStyleOptionViewItem &option,
                                      const QRect &rect, const QPixmap &pixmap) const
{
    QRect place = rect;
    if (option.direction == Qt::RightToLeft)
        place.moveRight(option.rect.right() - m_comboBox->leftIconMargin());
    else
        place.moveLeft(m_comboBox->leftIconMargin());
    QItemDelegate::drawDecoration(painter, option, place, pixmap);
}

/** The selected row is shown by its ground; a frame would be one mark too many. */
void ComboBoxDelegate::drawFocus(QPainter *, const QStyleOptionViewItem &, const QRect &) const {}

} // namespace NVO
