#pragma once

#include <QtGlobal>

#include <limits>
#include <vector>

namespace NVO {

/**
 * Where the items of a long list lie, as far as that is known, and what else is remembered of each.
 *
 * The height of an item is known once it was set; until then the average of the known heights stands for it.
 * Places are found out lazily, in the order of the items, and those once found stay as they are, although
 * the average changes: a view would jump otherwise. A change of a height makes the places behind it unknown
 * again.
 *
 * No place is stored. Tops that were computed with the same average make a run, of which the first top is
 * kept; the heights before an item come from sums over blocks. So no question walks over all items, as long
 * as the tops rise, that is as long as spacing and height of an item do not sum up to less than 0. Tops that
 * fall are walked over.
 */
class ItemPositions
{
public:
    static constexpr int outside = -1000; ///< The top of an item that there is not.
    static constexpr int many = 1000;     ///< From here on nothing may cost a widget for each item.

    int count() const { return int(m_items.size()); }
    bool isMany() const { return count() >= many; }

    /** New items have no height; of those that go all is forgotten. Negative counts are 0. */
    void resize(int count);

    int spacing() const { return m_spacing; }
    /** Pixels between two items, 10 at first; a change makes all places unknown. */
    void setSpacing(int spacing);

    int marginTopBottom() const { return m_marginTopBottom; }
    /** Pixels above the first and below the last item, 50 at first; a change makes all places unknown. */
    void setMarginTopBottom(int margin);

    /** Indexes that there are not are passed over. */
    void setHeight(int index, int height);

    /** The height of an item, or the average, if that of the item is unknown. */
    int height(int index) const;
    int averageHeight() const { return m_average; }

    /** The top of an item; finds out the places up to it. */
    qint64 top(int index);

    /** The first item with a top beyond \a pixel, or count(); finds out the places up to it. */
    int firstBelow(qint64 pixel);

    /**
     * The item before firstBelow(): that on which \a pixel lies. If there is none below, so for all pixels
     * from the top of the last item on, 0; if there are many items the last one, but for pixel 0, at which
     * all can lie as long as no height is known.
     */
    int firstVisible(qint64 pixel);

    /**
     * The height of all, margins included, as the present average puts it; if there are many items, with the
     * places that were found out before as they are.
     */
    qint64 totalHeight() const;

    /** \name A number that the list notes for each item; 0 at first */
    ///@{
    int kind(int index) const;
    void setKind(int index, int kind);
    ///@}

private:
    struct Item
    {
        int height = 0;
        quint32 hasHeight : 1;
        quint32 kind : 31;
    };

    /** Known heights. */
    struct Sums
    {
        qint64 height = 0;
        qint64 count = 0;

        Sums operator+(const Sums &other) const { return {height + other.height, count + other.count}; }
    };

    /** Tops that were computed with the same average, from this start to the next or to m_lastPlaced. */
    struct Run
    {
        int start;
        int average;
        qint64 top;
        Sums before; // of the items before the start
    };

    bool isInside(int index) const { return index >= 0 && index < count(); }
    void addKnown(int index, int height, int known);
    void updateAverage();
    Sums sumsBefore(int index) const;

    void forgetPlacesFrom(int index);
    void placeUpTo(int index);
    void startRun();
    const Run &runOf(int index) const;
    qint64 topIn(const Run &run, qint64 index, const Sums &before) const;
    qint64 placedTop(int index) const;

    bool isRising() const;
    int searchPlaced(qint64 pixel) const;
    int searchBelow(const Run &run, qint64 pixel) const;
    int walkPlaced(qint64 pixel) const;

    std::vector<Item> m_items;
    std::vector<Sums> m_blocks{Sums()}; // a Fenwick tree over blocks of items; the first entry is unused
    std::vector<Run> m_runs;
    Sums m_known;
    int m_average = 0;
    int m_lastPlaced = -1;
    int m_spacing = 10;
    int m_marginTopBottom = 50;
    int m_lowestHeight =
        std::numeric_limits<int>::max(); // of the known heights, perhaps of some that are gone
    int m_lowestAverage = std::numeric_limits<int>::max(); // of the runs, perhaps of some that are gone
};

} // namespace NVO
