#include "ribbon/RibbonGeometry.h"

#include <algorithm>

namespace NVO::RibbonGeometry {

namespace {

constexpr int stackedPerStep = 2; // controls that one step of shrinking adds to a column

bool isFixed(const QVector<Control> &controls, const Column &column, Mode mode)
{
    return controls[column.controls.first()].fixMode == mode;
}

QSize sizeOfColumn(const Column &column, Mode mode, const SizeOf &sizeOf)
{
    QSize size;
    for (const int control : column.controls) {
        const QSize own = sizeOf(control, mode);
        size = QSize(std::max(size.width(), own.width()), size.height() + own.height());
    }
    return size + QSize(0, (column.controls.size() - 1) * column.spacing);
}

/**
 * Moves the first control of the column behind column \a i into that, and the others of it as long as there
 * is room. What has no room stays a column in its place.
 */
void stackNext(Columns &columns, int i)
{
    QVector<int> &next = columns[i + 1].controls;
    do
        columns[i].controls.append(next.takeFirst());
    while (!next.isEmpty() && columns[i].controls.size() < controlsPerColumn);
    if (next.isEmpty())
        columns.remove(i + 1);
}

/** Stacks neighbours that are fixed to Small, whatever the width. */
void stackFixedSmall(const QVector<Control> &controls, Columns &columns)
{
    for (int i = 0; i < columns.size() - 1;) {
        const bool stack = columns[i].controls.size() < controlsPerColumn
                           && isFixed(controls, columns[i], RibbonControl::Small)
                           && isFixed(controls, columns[i + 1], RibbonControl::Small);
        if (!stack) {
            ++i;
            continue;
        }
        columns[i].controls.append(columns[i + 1].controls.first());
        columns[i].spacing = controlGap;
        columns.remove(i + 1);
    }
}

/** Whether a column takes no more controls when the group shrinks. */
bool isFull(const QVector<Control> &controls, const Column &column)
{
    return column.controls.size() == controlsPerColumn
           || (column.controls.size() == 1 && isFixed(controls, column, RibbonControl::Large));
}

/** The sum of the sizes of the groups that count, without that at \a left out; invalid for no groups. */
QSize sumOf(const QVector<Group> &groups, const QVector<Place> &places, int spacing, int leftOut = -1)
{
    const int others = groups.size() - (leftOut >= 0 ? 1 : 0);
    if (others == 0)
        return QSize();
    QSize sum(0, 0);
    int counted = 0;
    for (int i = 0; i < groups.size(); ++i) {
        if (i == leftOut || !groups[i].counted)
            continue;
        sum = QSize(sum.width() + places[i].size.width(), std::max(sum.height(), places[i].size.height()));
        ++counted;
    }
    return sum + QSize(std::max(counted - 1, 0) * spacing, 0);
}

QVector<Place> smallestPlaces(const QVector<Group> &groups, const GroupSizes &sizes)
{
    QVector<Place> places(groups.size());
    for (int i = 0; i < groups.size(); ++i) {
        if (!groups[i].shown)
            continue;
        if (groups[i].fixMode != RibbonControl::Auto)
            places[i].mode = groups[i].fixMode;
        places[i].size = sizes.smallest(i, places[i].mode);
    }
    return places;
}

} // namespace

Mode columnMode(const QVector<Control> &controls, const Column &column, bool isOnlyColumn)
{
    const Control &first = controls[column.controls.first()];
    const bool single = column.controls.size() == 1;
    const bool large = (first.fixMode == RibbonControl::Auto && first.mode == RibbonControl::Large)
                       || (single && first.fixMode == RibbonControl::Large)
                       || (single && first.fixMode == RibbonControl::Small && isOnlyColumn);
    return large ? RibbonControl::Large : RibbonControl::Small;
}

QSize sizeOfColumns(const QVector<Control> &controls, const Columns &columns, const SizeOf &sizeOf)
{
    if (columns.isEmpty())
        return QSize();
    QSize size((columns.size() - 1) * columnGap, -1);
    for (const Column &column : columns) {
        const QSize own = sizeOfColumn(column, columnMode(controls, column, columns.size() == 1), sizeOf);
        size = QSize(size.width() + own.width(), std::max(size.height(), own.height()));
    }
    return size;
}

Columns compactColumns(const QVector<Control> &controls)
{
    Columns columns;
    Column pending;
    for (int i = 0; i < controls.size(); ++i) {
        pending.controls.append(i);
        if (pending.controls.size() == controlsPerColumn || controls[i].fixMode == RibbonControl::Large) {
            columns.append(pending);
            pending = Column();
        }
    }
    if (!pending.controls.isEmpty())
        columns.append(pending);
    return columns;
}

Columns columnsForWidth(const QVector<Control> &controls, int available, int spacing, const SizeOf &sizeOf)
{
    Columns columns;
    for (int i = 0; i < controls.size(); ++i)
        columns.append({{i}, spacing});
    // What the fixed ones save is not seen until the first step of shrinking.
    QSize needed = sizeOfColumns(controls, columns, sizeOf);
    if (!needed.isValid())
        return columns;
    stackFixedSmall(controls, columns);

    int i = 0;
    while (needed.width() > available) {
        for (int step = 0; step < stackedPerStep; ++step) {
            if (i >= columns.size() - 1)
                return columns;
            if (isFull(controls, columns[i]))
                break;
            stackNext(columns, i);
        }
        ++i;
        needed = sizeOfColumns(controls, columns, sizeOf);
    }

    const bool tidy = i < columns.size() - 1 && columns[i].controls.size() == 1
                      && controls[columns[i].controls.first()].mode == RibbonControl::Small;
    if (tidy)
        stackNext(columns, i);
    return columns;
}

QVector<Place> arrangeGroups(const QVector<Group> &groups, const QSize &area, int spacing,
                             const GroupSizes &sizes)
{
    QVector<Place> places = smallestPlaces(groups, sizes);
    QSize total = sumOf(groups, places, spacing);
    for (int i = 0; i < groups.size() && total.width() < area.width(); ++i) {
        if (!groups[i].counted)
            continue;
        if (!groups[i].isControl) {
            places[i].size = sizes.preferred(i);
            continue;
        }
        const Place before = places[i];
        if (groups[i].fixMode == RibbonControl::Auto)
            places[i].mode = RibbonControl::Large;
        const int rest = sumOf(groups, places, spacing, i).width();
        places[i].size = sizes.open(i, places[i].mode, QSize(area.width() - rest, area.height()));
        total = sumOf(groups, places, spacing);
        if (total.width() > area.width()) {
            places[i] = before;
            break;
        }
    }
    return places;
}

} // namespace NVO::RibbonGeometry
