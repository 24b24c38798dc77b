#pragma once

#include <QLayout>
#include <QPointer>
#include <QWidget>

namespace NVO {

/**
 * Two widgets side by side, each of which gets half of the width, whatever it wants; in a right-to-left
 * widget the left one stands at the right. One alone, or beside a hidden one, gets all of it.
 *
 * Both halves count as wide as the wider widget. The place of the layout is counted from the origin of its
 * widget: it is the only layout there.
 */
class HalvedLayout : public QLayout
{
    Q_OBJECT

public:
    explicit HalvedLayout(QWidget *parent);
    /** Deletes its items, but not their widgets. */
    ~HalvedLayout() override;

    /**
     * Takes its widgets, of which either may be null, and makes them children of its own widget. Once they
     * are there others are refused with a warning.
     */
    void setWidgets(QWidget *left, QWidget *right);

    /** Pixels between the two, if both are visible; 0 at first. */
    int spacing() const { return m_spacing; }
    void setSpacing(int spacing);

    /** Refuses the item with a warning; it stays the caller's. */
    void addItem(QLayoutItem *item) override;
    /** The left item is 0, the right one 1, also if it is alone. */
    QLayoutItem *itemAt(int index) const override;
    QLayoutItem *takeAt(int index) override;
    int count() const override;

    QSize sizeHint() const override;
    QSize minimumSize() const override;
    QSize maximumSize() const override;
    Qt::Orientations expandingDirections() const override;
    void setGeometry(const QRect &rect) override;
    bool hasHeightForWidth() const override;
    int heightForWidth(int width) const override;
    int minimumHeightForWidth(int width) const override;
    void invalidate() override;

private:
    QLayoutItem *makeItem(QWidget *widget);
    int gap() const;
    void fillCache() const;

    int m_spacing = 0;
    QPointer<QWidget> m_leftWidget;
    QPointer<QWidget> m_rightWidget;
    QLayoutItem *m_leftItem = nullptr;
    QLayoutItem *m_rightItem = nullptr;
    mutable bool m_dirty = true;
    mutable QSize m_cachedSizeHint;
    mutable QSize m_cachedMinimumSize;
    mutable QSize m_cachedMaximumSize;
    mutable Qt::Orientations m_cachedExpandingDirections;
};

} // namespace NVO
