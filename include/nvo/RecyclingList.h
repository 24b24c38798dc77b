#pragma once

#include <nvo/Export.h>

#include <QByteArray>
#include <QFrame>
#include <QHash>
#include <QPair>
#include <QPointer>
#include <QVector>

#include <memory>

class QStackedWidget;
class RecyclingListAdapter;

namespace NVO {
class ItemPositions;
}

/**
 * A list of arbitrarily many items of different heights, which are widgets, of which it holds only those on
 * screen and up to ten hidden spares.
 *
 * The widgets come from a RecyclingListAdapter, which gets back those that went off the screen. The height of
 * an item is known once it was shown; until then the average of the known heights stands for it. So the range
 * of the scroll bar, in pixels, is an estimate that gets better while the user scrolls. Places once found out
 * do not follow the average, and while much is unknown the last items of a short list can lie beyond the end
 * of the range, or end above it. Where the scroll bar stands at or below the top of the last item, a short
 * list is laid out from its first item on, with a widget for each.
 *
 * From 1000 items on no place of the scroll bar costs a widget for each item: the range follows the places,
 * so that the last item always ends where the range does; from the top of the last item on that one is shown
 * alone; an item that turns out to end above the list leaves its widget to the next; and at most 1000 items
 * are laid out at once, which is less than all only if they have no height or no widget.
 *
 * The range is at most 2147483647 (2^31 - 1) pixels: what would lie below cannot be scrolled to.
 *
 * The list has no sheet of its own. Sheets find it by the object names "RecyclingList",
 * "RecyclingListSuperContainer" (what clips the items), "RecyclingListContainer" (their parent) and
 * "RecyclingListBarPlaceholder" (what is there in place of the scroll bar if there are no items).
 *
 * If the application gives the list a focus policy, Page Up, Page Down, Home and End scroll it.
 */
class NVO_EXPORT RecyclingList : public QFrame
{
    Q_OBJECT

public:
    explicit RecyclingList(QWidget *parent = nullptr);
    ~RecyclingList() override;

    /**
     * Shows the items of \a adapter, which stays the caller's. With null, or once the adapter is gone, what
     * is on screen stays there. Heights and widgets of another adapter before stay, too: call slotResetAll()
     * to have the items of the new one.
     */
    void setAdapter(RecyclingListAdapter *adapter);
    RecyclingListAdapter *adapter() const;

    /** Pixels between two items; 10 at first. */
    void setSpacing(int spacing);
    /** Pixels above the first and below the last item; 50 at first. */
    void setMarginTopBottom(int margin);
    /** Pixels kept free to the right of the items; 0 at first. */
    void setMarginRight(int margin);

    /** The visible widget that shows item \a position; null if there is none. It belongs to the list. */
    QWidget *visibleWidget(int position);

    /**
     * The first item that begins at or below the upper edge of the list, and the last one from there that
     * ends above its lower edge, each -1 if there is none.
     */
    QPair<int, int> fullyVisiblePositions();

public Q_SLOTS:
    /**
     * Lays out the items on screen and asks the adapter for those that are new there. Called while the list
     * is just doing that, as from RecyclingListAdapter::widget(), it is done again soon after.
     */
    virtual void slotUpdateAll();

    /** Like slotUpdateAll(). */
    void slotUpdateOne(int p_position);

    /** Like slotUpdateAll(), but asks the adapter for all items on screen. */
    void slotUpdateOrder();

    /** Like slotUpdateAll(). */
    void slotScrollBarChanged(int p_value);

    /**
     * Scrolls as far as is needed to see item \a p_position wholly, with a margin. Without an adapter and for
     * a position that there is not nothing happens.
     */
    void slotEnsureVisible(int p_position);

    /** Lays out the place of the scroll bar in a list without items. A second layout is refused by Qt. */
    void setNothingWidgetLayout(QLayout *p_layout);

    /** Deletes all widgets of items soon and asks the adapter for new ones. */
    void slotResetAll();

protected:
    /**
     * A hook for subclasses, which does nothing here. It is called with false and the parent of the items
     * before each layout of the list, with false and the area that clips them if they overflow that area, and
     * with true and that area if there are no items.
     */
    virtual void nullWidget(bool empty, QWidget *widget);

    bool eventFilter(QObject *watched, QEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void wheelEvent(QWheelEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;

private:
    class RecyclingListScrollBar;
    struct Pass;

    /** A place in the pool: a widget that shows an item, or a hidden spare. */
    struct UsedWidgetData
    {
        int propertyValue = 0; ///< The number of the widget's property "style"; 0 for none.
        int position = -1;     ///< The item; -1 for a spare.
        QPointer<QWidget> widget;
    };

    /** What waits for the event loop. */
    enum class Later { Nothing, CheckSize, Update, Reset };

    void later(Later what);
    void pass(Pass &pass);
    bool layOutItems(Pass &pass);
    void bind(const Pass &pass, int slot, int position);
    void place(Pass &pass, int slot, int position);
    bool hideSpares(const Pass &pass, int slot);
    void deleteSurplus(const Pass &pass, int slot);
    QWidget *accepted(QWidget *widget) const;
    bool isPooled(const QWidget *widget, int slots) const;
    void ensureUsingProperty(int slot, int value);
    void updatePropertyValue(UsedWidgetData &used);
    void updateScrollBar(Pass &pass);
    void showBarOrPlaceholder(const Pass &pass, bool overflows);
    void showInStack(QWidget *widget);

    QWidget *m_superContainer;
    QWidget *m_container;
    RecyclingListScrollBar *m_scrollBar;
    QStackedWidget *m_barStack;
    QFrame *m_barPlaceholder;
    QPointer<RecyclingListAdapter> m_adapter;
    QVector<UsedWidgetData> m_usedWidgets; // the visible items from top to bottom, then the spares
    QVector<int> m_boundPositions;         // by slot: the item it was last asked for, and 1; 0 if none
    QByteArray m_propertyName = QByteArrayLiteral("style");
    QHash<QString, int> m_propertyValues;
    std::unique_ptr<NVO::ItemPositions> m_items;
    int m_marginRight = 0;
    bool m_passing = false;
    int m_passDepth = 0;
    QSize m_passSize; // of the area in the last pass
    Later m_later = Later::Nothing;
};
