#pragma once

#include <QtGlobal>

#include <vector>

/** The places of the items of a list as plain loops over all of them find them out: what ItemPositions must
 * agree with. */
struct SlowPositions
{
    struct Entry
    {
        int height = 0;
        qint64 y = 0;
        int kind = 0;
        bool known = false;
    };

    int count() const { return int(entries.size()); }

    void resize(int size)
    {
        for (int i = size; i < count(); ++i) {
            if (at(i).known) {
                sum -= at(i).height;
                --known;
            }
        }
        const bool shrinks = size < count();
        entries.resize(std::size_t(size));
        if (shrinks) {
            last = qMin(last, size - 1);
            computeAverage();
        }
    }

    void setHeight(int index, int height)
    {
        if (index < 0 || index >= count() || (at(index).known && at(index).height == height))
            return;
        sum += at(index).known ? height - at(index).height : height;
        known += at(index).known ? 0 : 1;
        at(index).known = true;
        at(index).height = height;
        computeAverage();
        if (index <= last)
            last = index - 1;
    }

    int height(int index) { return at(index).known ? at(index).height : average; }

    qint64 top(int index)
    {
        if (index < 0 || index >= count())
            return -1000;
        if (last < 0) {
            last = 0;
            at(0).y = margin;
        }
        for (; last < index; ++last)
            at(last + 1).y = at(last).y + spacing + height(last);
        return at(index).y;
    }

    int firstBelow(qint64 value)
    {
        int i = 0;
        while (i < count() && value >= top(i))
            ++i;
        return i;
    }

    bool isMany() const { return count() >= 1000; }

    int firstVisible(qint64 value)
    {
        const int i = firstBelow(value);
        if (i == count())
            return isMany() && value > 0 ? i - 1 : 0;
        return qMax(i - 1, 0);
    }

    qint64 total() const
    {
        if (isMany() && last > 0) {
            SlowPositions copy = *this; // so that nothing is found out by the question
            return copy.top(count() - 1) + copy.height(count() - 1) + margin;
        }
        return (qint64(count()) - 1) * spacing + qint64(average) * (count() - known) + 2 * margin + sum;
    }

    void forget() { last = -1; }
    void computeAverage() { average = int(known > 0 ? sum / known : sum); }
    Entry &at(int index) { return entries[std::size_t(index)]; }

    std::vector<Entry> entries;
    qint64 sum = 0;
    int known = 0;
    int average = 0;
    int last = -1;
    int spacing = 10;
    int margin = 50;
};
