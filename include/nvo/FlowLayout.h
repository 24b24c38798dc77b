#pragma once

#include <nvo/Export.h>

#include <QLayout>
#include <QList>
#include <QStyle>

namespace NVO {

/**
 * Places its items from left to right, each as large as its size hint, and begins a new row where one does
 * not fit, as text flows; in a right-to-left widget from right to left. An item that is wider than the layout
 * has a row of its own.
 *
 * Its height follows from its width. It wants to be no larger than its largest item.
 */
class NVO_EXPORT FlowLayout : public QLayout
{
    Q_OBJECT

public:
    /**
     * Pixels around all items (-1: as the style has it), and between them. A negative spacing is that of the
     * widget or layout around it, or, if there is none or that leaves it open, what the style of each item's
     * widget has between push buttons.
     */
    explicit FlowLayout(int margin = -1, int horizontalSpacing = -1, int verticalSpacing = -1);
    /** The same as the layout of \a parent, which may be null. */
    FlowLayout(QWidget *parent, int margin, int horizontalSpacing, int verticalSpacing);
    /** Deletes its items, but not their widgets. */
    ~FlowLayout() override;

    /** Pixels between two items of a row; -1 if the items decide. */
    int horizontalSpacing() const;
    /** Pixels between two rows; -1 if the items decide. */
    int verticalSpacing() const;

    /** Takes ownership; null is passed over. */
    void addItem(QLayoutItem *item) override;
    int count() const override;
    QLayoutItem *itemAt(int index) const override;
    QLayoutItem *takeAt(int index) override;

    Qt::Orientations expandingDirections() const override;
    bool hasHeightForWidth() const override;
    int heightForWidth(int width) const override;
    QSize minimumSize() const override;
    QSize sizeHint() const override;
    void setGeometry(const QRect &rect) override;

private:
    int doLayout(const QRect &rect, bool testOnly) const;
    int smartSpacing(QStyle::PixelMetric metric) const;

    QList<QLayoutItem *> m_items;
    int m_horizontalSpace;
    int m_verticalSpace;
};

} // namespace NVO
