#pragma once

#include <nvo/Export.h>

#include <QObject>

class QWidget;

/**
 * What a RecyclingList shows: the application derives its adapter from this class, and emits a signal when
 * its data has changed.
 *
 * An adapter may die at any time; the list then keeps what it shows and does nothing any more.
 */
class NVO_EXPORT RecyclingListAdapter : public QObject
{
    Q_OBJECT

public:
    RecyclingListAdapter();
    ~RecyclingListAdapter() override;

    /**
     * The widget to show for item \a position. A new one is made as a child of \a parent (one with another
     * parent is moved there); its height() is that of the item when it is returned, and its width is given by
     * the list. Null shows nothing for this item.
     *
     * \a recycled is null or a widget that was returned before, for any item, and is not needed for that any
     * more: fill it anew and return it. If another one is returned, the recycled one is hidden and from then
     * on the adapter's, to be returned another time or deleted. Widgets of several kinds carry a dynamic
     * property "style", a text: then the recycled widget is of the kind that the item had when it was last
     * shown, as far as the list has one to spare.
     *
     * The returned widget belongs to the list as long as the list needs it: what it can spare it deletes,
     * and so the adapter keeps only guarded pointers to its widgets, if any.
     */
    virtual QWidget *widget(int position, QWidget *recycled, QWidget *parent) = 0;

    /** The number of items; less than 0 counts as 0. It may change at any time, if a signal follows. */
    virtual int count() = 0;

Q_SIGNALS:
    /** Everything may have changed: all items on screen are asked for again. */
    void signalUpdateRecyclingListOrder();

    /** The number of items or the height of widgets has changed; items on screen are not asked for again. */
    void signalUpdateRecyclingListAll();

    /** The height of item \a p_position has changed. */
    void signalUpdateRecyclingListOne(int p_position);
};
