#pragma once

#include <QItemDelegate>

namespace NVO {

class ComboBox;

/** Gives the rows of a combo box's list their height and margins. It belongs to the combo box. */
class ComboBoxDelegate : public QItemDelegate
{
    Q_OBJECT

public:
    explicit ComboBoxDelegate(ComboBox *comboBox);

    void paint(QPainter *painter, const QStyleOptionViewItem &option,
               const QModelIndex &index) const override;
    QSize sizeHint(const QStyleOptionViewItem &option, const QModelIndex &index) const override;

protected:
    void drawDisplay(QPainter *painter, const QStyleOptionViewItem &option, const QRect &rect,
                     const QString &text) const override;
    void drawDecoration(QPainter *painter, const QStyleOptionViewItem &option, const QRect &rect,
                        const QPixmap &pixmap) const override;
    void drawFocus(QPainter *painter, const QStyleOptionViewItem &option, const QRect &rect) const override;

private:
    ComboBox *m_comboBox;
};

} // namespace NVO
