#pragma once

#include <nvo/Flyout.h>

#include <QMargins>
#include <QPoint>
#include <QRect>
#include <QSize>

/**
 * Where a flyout lies, as pure geometry in device-independent pixels of the screen. The pointer itself is no
 * part of the box.
 */
namespace NVO::FlyoutPlacement {

using Position = Flyout::PointerPositions;

/** The length of the pointer, half the width of its base, and what the box leaves free for it all around. */
constexpr int pointerLength = 13;

/** The sizes that a box takes part in the search with. */
struct Box
{
    QSize size;      ///< At which it is placed.
    QSize preferred; ///< With margins; what it is larger than
    QSize smallest;  ///< this by is what it may shrink by.
};

/** What is found for one position. */
struct Placement
{
    Position position;
    QRect rect;    ///< Of the box, on the screen.
    QPoint offset; ///< How far the box was pushed to lie on the screen.
};

/** How far the pointer is from the start of an edge of \a length; 0 without a place on the edge. */
int pointerMargin(Position position, int length, int offset);

/**
 * A position to try instead of \a position. Steps over the edges are 0 for the same, 1 for the opposite and 2
 * and 3 for the two edges across; steps over the places on the edge are 0 for the same and 1 and 2 for the
 * others.
 */
Position alternative(Position position, int primaryStep, int subStep);

/** \a rect moved into \a screen; if it is too large for that, its left and top edge are inside. */
QRect pushedOnto(QRect rect, const QRect &screen);

/**
 * Whether a box of \a size still points at its target after a push by \a offset: the pointer may slide along
 * its edge to the far corner, but neither leave the target nor the edge.
 */
bool isValidPush(QPoint offset, Position position, QSize size);

/** Places \a box for one position, valid or not. \a available is the usable area of the target's screen. */
Placement placeAt(Position position, const QRect &target, const Box &box, const QRect &available);

/** The first valid placement in the order of alternatives to \a position; CenterCenter if there is none. */
Placement best(Position position, const QRect &target, const Box &box, const QRect &available);

/** The window around a box whose surroundings take \a margins, no longer than \a available allows. */
QRect windowAround(const QRect &box, const QMargins &margins, const QRect &available);

} // namespace NVO::FlyoutPlacement
