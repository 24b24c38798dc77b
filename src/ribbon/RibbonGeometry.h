#pragma once

#include <nvo/RibbonControl.h>

#include <QSize>
#include <QVector>

#include <functional>

/**
 * How the ribbon fits itself to a width, as pure geometry: which controls of a group share a column, and
 * which groups of a page are open. All sizes are device-independent pixels.
 */
namespace NVO::RibbonGeometry {

using Mode = RibbonControl::SizeMode;

constexpr int controlsPerColumn = 3;
constexpr int columnGap = 5;
constexpr int controlGap = 2; ///< Between the controls of a stacked column.

/** A visible control of a group. */
struct Control
{
    Mode mode = RibbonControl::Small;
    Mode fixMode = RibbonControl::Auto;
};

/** Controls of a group that stand one below the other, by their index. */
struct Column
{
    QVector<int> controls;
    int spacing = controlGap;
};

using Columns = QVector<Column>;

/** Tells the smallest size of a control, by its index, in a mode. It is asked each time a size matters. */
using SizeOf = std::function<QSize(int control, Mode mode)>;

/** The mode in which a column shows its controls; its first one decides. */
Mode columnMode(const QVector<Control> &controls, const Column &column, bool isOnlyColumn);

/** The size of columns side by side; invalid for no columns. */
QSize sizeOfColumns(const QVector<Control> &controls, const Columns &columns, const SizeOf &sizeOf);

/** The most compact arrangement. */
Columns compactColumns(const QVector<Control> &controls);

/** The arrangement for a width: as few controls stacked as it takes, from the left. */
Columns columnsForWidth(const QVector<Control> &controls, int available, int spacing, const SizeOf &sizeOf);

/** A group of a page, or what else stands on it. */
struct Group
{
    bool shown = true;     ///< Its widget shows: it gets a place.
    bool counted = true;   ///< Its width counts.
    bool isControl = true; ///< It has modes; something else only has a size.
    Mode fixMode = RibbonControl::Auto;
};

/** What a group of a page becomes. */
struct Place
{
    Mode mode = RibbonControl::Small;
    QSize size;
};

/** The sizes of the groups of a page by their index. */
struct GroupSizes
{
    std::function<QSize(int group, Mode mode)> smallest;
    std::function<QSize(int group)> preferred; ///< Of a group without modes.
    std::function<QSize(int group, Mode mode, const QSize &available)> open;
};

/** Opens groups from the left as long as they fit into \a area, and tells what becomes of each. */
QVector<Place> arrangeGroups(const QVector<Group> &groups, const QSize &area, int spacing,
                             const GroupSizes &sizes);

} // namespace NVO::RibbonGeometry
