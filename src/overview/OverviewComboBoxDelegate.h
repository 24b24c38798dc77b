#pragma once

#include <QItemDelegate>

namespace NVO {

class OverviewComboBox;

/** Lets the combo box paint the rows of its list. It belongs to the combo box. */
class OverviewComboBoxDelegate : public QItemDelegate
{
    Q_OBJECT

public:
    explicit OverviewComboBoxDelegate(OverviewComboBox *comboBox);

    void paint(QPainter *painter, const QStyleOptionViewItem &option,
               const QModelIndex &index) const override;
    QSize sizeHint(const QStyleOptionViewItem &option, const QModelIndex &index) const override;

private:
    OverviewComboBox *m_comboBox;
};

} // namespace NVO
