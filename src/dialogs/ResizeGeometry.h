#pragma once

#include <QPoint>
#include <QRect>
#include <QSize>
#include <QWidget>

#include <functional>

/** A place of a window by which the mouse takes hold of it. */
enum class MousePosition {
    Nowhere = 0,
    TopLeft = 1,
    BottomRight = 2,
    BottomLeft = 3,
    TopRight = 4,
    Top = 5,
    Bottom = 6,
    Left = 7,
    Right = 8,
    Center = 9,
};

/**
 * Where the mouse takes hold of a frameless window and what a drag makes of it, as pure geometry. All sizes
 * are device-independent pixels.
 */
namespace ResizeGeometry {

/** The strips along the edges of a window, both counted from its own edge. */
struct Margins
{
    int outer = 0; ///< Belongs to the shadow and reacts to nothing.
    int range = 6; ///< To here reaches the band that resizes.
};

/** How large a window may become. */
struct SizeLimits
{
    QSize minimum = QSize(0, 0);
    QSize maximum = QSize(QWIDGETSIZE_MAX, QWIDGETSIZE_MAX);
    std::function<int(int width)> heightForWidth; ///< The least height at a width; empty if there is none.
};

/** What lies at \a pos of a window of \a size; corners come before edges. */
MousePosition positionAt(const QPoint &pos, const QSize &size, const Margins &margins);

/** The cursor that tells what a press at \a position would do; the arrow where it resizes nothing. */
Qt::CursorShape cursorShape(MousePosition position);

/** The edges that move with a drag at \a position. */
Qt::Edges edges(MousePosition position);

/**
 * The geometry of a window that was pressed at \a position when it had the geometry \a start, and whose
 * mouse has gone on by \a delta. The edges that are not dragged stay where they are in \a current.
 */
QRect resizedGeometry(MousePosition position, const QRect &start, const QRect &current, const QPoint &delta,
                      const SizeLimits &limits);

} // namespace ResizeGeometry
