#include "containers/ItemPositions.h"

#include <algorithm>

namespace NVO {

namespace {

constexpr int blockSize = 64;

constexpr std::size_t lowestBit(std::size_t number)
{
    return number & (~number + 1);
}

std::size_t blockOf(int index)
{
    return std::size_t(index) / blockSize + 1;
}

} // namespace

void ItemPositions::resize(int newCount)
{
    newCount = std::max(newCount, 0);
    if (newCount == count())
        return;
    for (int index = newCount; index < count(); ++index) {
        if (m_items[std::size_t(index)].hasHeight)
            addKnown(index, -m_items[std::size_t(index)].height, -1);
    }
    forgetPlacesFrom(newCount);
    m_items.resize(std::size_t(newCount), Item{0, false, 0});
    updateAverage();

    const std::size_t blocks = (std::size_t(newCount) + blockSize - 1) / blockSize;
    m_blocks.resize(std::min(m_blocks.size(), blocks + 1));
    while (m_blocks.size() <= blocks) {
        const std::size_t block = m_blocks.size();
        Sums sums;
        for (std::size_t part = block - 1; part > block - lowestBit(block); part -= lowestBit(part))
            sums = sums + m_blocks[part];
        m_blocks.push_back(sums);
    }
}

void ItemPositions::setSpacing(int spacing)
{
    m_spacing = spacing;
    forgetPlacesFrom(0);
}

void ItemPositions::setMarginTopBottom(int margin)
{
    m_marginTopBottom = margin;
    forgetPlacesFrom(0);
}

void ItemPositions::setHeight(int index, int height)
{
    if (!isInside(index))
        return;
    Item &item = m_items[std::size_t(index)];
    if (item.hasHeight && item.height == height)
        return;
    addKnown(index, item.hasHeight ? height - item.height : height, item.hasHeight ? 0 : 1);
    item.hasHeight = true;
    item.height = height;
    m_lowestHeight = std::min(m_lowestHeight, height);
    updateAverage();
    forgetPlacesFrom(index);
}

int ItemPositions::height(int index) const
{
    if (!isInside(index))
        return 0;
    const Item &item = m_items[std::size_t(index)];
    return item.hasHeight ? item.height : m_average;
}

int ItemPositions::kind(int index) const
{
    return isInside(index) ? int(m_items[std::size_t(index)].kind) : 0;
}

void ItemPositions::setKind(int index, int kind)
{
    if (isInside(index))
        m_items[std::size_t(index)].kind = quint32(kind) & 0x7fffffffU;
}

qint64 ItemPositions::top(int index)
{
    if (!isInside(index))
        return outside;
    placeUpTo(index);
    return placedTop(index);
}

int ItemPositions::firstBelow(qint64 pixel)
{
    if (m_items.empty())
        return 0;
    placeUpTo(0);
    const int placed = m_lastPlaced;
    int found = searchPlaced(pixel);
    if (found > placed && found < count()) {
        placeUpTo(count() - 1);
        found = searchPlaced(pixel);
        m_lastPlaced = std::min(found, count() - 1);
    }
    return found;
}

int ItemPositions::firstVisible(qint64 pixel)
{
    const int below = firstBelow(pixel);
    if (below < count())
        return std::max(below - 1, 0);
    return isMany() && pixel > 0 ? count() - 1 : 0;
}

qint64 ItemPositions::totalHeight() const
{
    const int placed = isMany() ? std::max(m_lastPlaced, 0) : 0;
    const Sums before = sumsBefore(placed);
    const qint64 open = count() - placed;
    const qint64 top = placed > 0 ? topIn(m_runs.back(), placed, before) : m_marginTopBottom;
    return top + (open - 1) * m_spacing + m_known.height - before.height
           + m_average * (open - (m_known.count - before.count)) + m_marginTopBottom;
}

void ItemPositions::addKnown(int index, int height, int known)
{
    const Sums change{height, known};
    m_known = m_known + change;
    for (std::size_t block = blockOf(index); block < m_blocks.size(); block += lowestBit(block))
        m_blocks[block] = m_blocks[block] + change;
}

void ItemPositions::updateAverage()
{
    m_average = int(m_known.count > 0 ? m_known.height / m_known.count : m_known.height);
    if (m_known.count == 0)
        m_lowestHeight = std::numeric_limits<int>::max();
}

ItemPositions::Sums ItemPositions::sumsBefore(int index) const
{
    Sums sums;
    for (std::size_t block = blockOf(index) - 1; block > 0; block -= lowestBit(block))
        sums = sums + m_blocks[block];
    for (int other = index / blockSize * blockSize; other < index; ++other) {
        const Item &item = m_items[std::size_t(other)];
        if (item.hasHeight)
            sums = sums + Sums{item.height, 1};
    }
    return sums;
}

void ItemPositions::forgetPlacesFrom(int index)
{
    m_lastPlaced = std::min(m_lastPlaced, index - 1);
    while (!m_runs.empty() && m_runs.back().start > m_lastPlaced)
        m_runs.pop_back();
    if (m_runs.empty())
        m_lowestAverage = std::numeric_limits<int>::max();
}

void ItemPositions::placeUpTo(int index)
{
    if (index <= m_lastPlaced)
        return;
    if (m_lastPlaced < 0) {
        m_runs.push_back({0, m_average, m_marginTopBottom, Sums()});
        m_lastPlaced = 0;
    }
    if (m_runs.back().average != m_average)
        startRun();
    m_lowestAverage = std::min(m_lowestAverage, m_average);
    m_lastPlaced = index;
}

/** At the last place. A run in which nothing was estimated yet goes on with the new average. */
void ItemPositions::startRun()
{
    Run &run = m_runs.back();
    const Sums before = sumsBefore(m_lastPlaced);
    if (before.count - run.before.count == m_lastPlaced - run.start)
        run.average = m_average;
    else
        m_runs.push_back({m_lastPlaced, m_average, topIn(run, m_lastPlaced, before), before});
}

const ItemPositions::Run &ItemPositions::runOf(int index) const
{
    const auto behind = std::upper_bound(m_runs.begin(), m_runs.end(), index,
                                         [](int value, const Run &run) { return value < run.start; });
    return *(behind - 1);
}

qint64 ItemPositions::topIn(const Run &run, qint64 index, const Sums &before) const
{
    const qint64 items = index - run.start;
    const qint64 known = before.count - run.before.count;
    return run.top + items * m_spacing + (before.height - run.before.height) + (items - known) * run.average;
}

qint64 ItemPositions::placedTop(int index) const
{
    return topIn(runOf(index), index, sumsBefore(index));
}

bool ItemPositions::isRising() const
{
    return qint64(m_spacing) + std::min(m_lowestHeight, m_lowestAverage) >= 0;
}

/** The first of the items with a place that lies below \a pixel, or the one behind them. */
int ItemPositions::searchPlaced(qint64 pixel) const
{
    if (!isRising())
        return walkPlaced(pixel);
    const auto behind = std::upper_bound(m_runs.begin(), m_runs.end(), pixel,
                                         [](qint64 value, const Run &run) { return value < run.top; });
    if (behind == m_runs.begin())
        return 0;
    return std::min(searchBelow(*(behind - 1), pixel), m_lastPlaced + 1);
}

/** As if all tops were in \a run, which makes no difference to those that are, since all are rising. */
int ItemPositions::searchBelow(const Run &run, qint64 pixel) const
{
    std::size_t step = 1;
    while (step * 2 < m_blocks.size())
        step *= 2;
    std::size_t block = 0;
    Sums before;
    for (; step > 0; step /= 2) {
        if (block + step >= m_blocks.size())
            continue;
        const Sums sums = before + m_blocks[block + step];
        if (topIn(run, qint64(block + step) * blockSize, sums) <= pixel) {
            block += step;
            before = sums;
        }
    }
    int index = int(block) * blockSize;
    for (; index < count() && topIn(run, index, before) <= pixel; ++index) {
        const Item &item = m_items[std::size_t(index)];
        if (item.hasHeight)
            before = before + Sums{item.height, 1};
    }
    return std::min(index, count());
}

int ItemPositions::walkPlaced(qint64 pixel) const
{
    for (auto run = m_runs.begin(); run != m_runs.end(); ++run) {
        const int end = run + 1 == m_runs.end() ? m_lastPlaced + 1 : (run + 1)->start;
        qint64 top = run->top;
        for (int index = run->start; index < end; ++index) {
            if (top > pixel)
                return index;
            const Item &item = m_items[std::size_t(index)];
            top += m_spacing + (item.hasHeight ? item.height : run->average);
        }
    }
    return m_lastPlaced + 1;
}

} // namespace NVO
