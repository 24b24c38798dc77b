#include "overview/OverviewComboBoxDelegate.h"

#include <nvo/OverviewComboBox.h>

#include <QAbstractItemView>

namespace NVO {

OverviewComboBoxDelegate::OverviewComboBoxDelegate(OverviewComboBox *comboBox)
    : QItemDelegate(comboBox)
    , m_comboBox(comboBox)
{}

void OverviewComboBoxDelegate::paint(QPainter *painter, const QStyleOptionViewItem &option,
                                     const QModelIndex &index) const
{
    drawBackground(painter, option, index);
    QStyleOptionFrame frame;
    frame.rect = option.rect;
    const bool selected = option.state & QStyle::State_Selected;
    m_comboBox->paint(painter, option.rect, index.row(),
                      option.palette.color(selected ? QPalette::HighlightedText : QPalette::Text));
    m_comboBox->style()->drawPrimitive(QStyle::PE_Frame, &frame, painter, m_comboBox->view());
}

/** All entries are as large as the largest. */
QSize OverviewComboBoxDelegate::sizeHint(const QStyleOptionViewItem &, const QModelIndex &index) const
{
    return index.data(OverviewComboBox::IsActionRole).toBool() ? m_comboBox->sizeHintForItem(index.row())
                                                               : m_comboBox->sizeHint();
}

} // namespace NVO
