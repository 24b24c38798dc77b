#include "flyout/FlyoutPlacement.h"

#include <algorithm>

namespace NVO::FlyoutPlacement {

namespace {

constexpr int cornerMargin = 43; // from a pointer at a corner to the end of its edge
constexpr int cornerEdge = 2 * cornerMargin;
constexpr int screenInset = 15;
constexpr int alwaysFullHeight = 500;
constexpr int surplus = 20; // of the window over the box and its margins

bool isOn(Position position, Position edges)
{
    return position & edges;
}

bool isUpright(Position position)
{
    return isOn(position, Position(Flyout::LeftMask) | Flyout::RightMask);
}

bool isLevel(Position position)
{
    return isOn(position, Position(Flyout::TopMask) | Flyout::BottomMask);
}

/** The place on the edge after \a step, as bits of the sub mask. */
Position alternativePlace(Position position, int step)
{
    const Position place = position & Flyout::SubPositionMask;
    const bool middle = place == Flyout::SubPositionMiddle;
    if (step == 1)
        return middle ? Flyout::SubPositionTopOrLeft : Flyout::SubPositionMiddle;
    if (step == 2 && middle)
        return Flyout::SubPositionBottomOrRight;
    if (step == 2)
        return place ^ (Position(Flyout::SubPositionTopOrLeft) | Flyout::SubPositionBottomOrRight);
    return place;
}

/** The edge after \a step, as bits of the primary mask. */
Position alternativeEdge(Position position, int step)
{
    const Position edge = position & Flyout::PrimaryMask;
    if (!edge || step == 0)
        return edge;
    const bool level = isLevel(edge);
    if (step == 1)
        return edge
               ^ (level ? Position(Flyout::TopMask) | Flyout::BottomMask
                        : Position(Flyout::LeftMask) | Flyout::RightMask);
    if (step == 2)
        return level ? Flyout::LeftMask : Flyout::TopMask;
    return level ? Flyout::RightMask : Flyout::BottomMask;
}

/** The box beside \a target with the tip of its pointer on the target, wherever the screen ends. */
QRect besideTarget(Position position, const QRect &target, const QSize &size)
{
    QRect rect(QPoint(0, 0), size);
    const int left = target.center().x() - pointerMargin(position, size.width(), 0);
    const int top = target.center().y() - pointerMargin(position, size.height(), 0);
    if (isOn(position, Flyout::TopMask))
        rect.moveTopLeft({left, target.bottom() + pointerLength});
    else if (isOn(position, Flyout::BottomMask))
        rect.moveTopLeft({left, target.top() - pointerLength - size.height()});
    else if (isOn(position, Flyout::LeftMask))
        rect.moveTopLeft({target.right() + pointerLength, top});
    else if (isOn(position, Flyout::RightMask))
        rect.moveTopLeft({target.left() - pointerLength - size.width(), top});
    else if (!position)
        rect.moveCenter(target.center());
    return rect;
}

/** What the box may lose. */
QSize shrinkingRoom(const Box &box)
{
    return box.preferred.height() > alwaysFullHeight ? box.preferred - box.smallest : QSize(0, 0);
}

/** Draws in the edge away from the pointer if that is enough to bring it onto the screen. */
QRect shrunkAtFarEdge(QRect rect, Position position, const QSize &room, const QRect &screen)
{
    const auto enough = [](int over, int there) { return over > 0 && over < there; };
    if (isOn(position, Flyout::TopMask)) {
        if (enough(rect.bottom() - screen.bottom(), room.height()))
            rect.setBottom(screen.bottom());
    } else if (isOn(position, Flyout::BottomMask)) {
        if (enough(screen.top() - rect.top(), room.height()))
            rect.setTop(screen.top());
    } else if (isOn(position, Flyout::LeftMask)) {
        if (enough(rect.right() - screen.right(), room.width()))
            rect.setRight(screen.right());
    } else if (isOn(position, Flyout::RightMask)) {
        if (enough(screen.left() - rect.left(), room.width()))
            rect.setLeft(screen.left());
    }
    return rect;
}

/** Makes a box that is larger than the screen smaller, as far as it goes. */
QRect shrunkToScreen(QRect rect, const QSize &room, const QRect &screen)
{
    const int tooHigh = rect.height() - screen.height();
    if (tooHigh > 0 && room.height() > 0)
        rect.setBottom(rect.bottom() - std::min(room.height(), tooHigh));
    const int tooWide = rect.width() - screen.width();
    if (tooWide > 0 && room.width() != 0)
        rect.setRight(rect.right() - std::min(room.width(), tooWide));
    return rect;
}

/** Whether the edge of the pointer is long enough for the place that the pointer has on it. */
bool hasPlaceForPointer(Position position, const QSize &size)
{
    if (isOn(position, Flyout::SubPositionMiddle))
        return true;
    return !(isLevel(position) && size.width() < cornerEdge)
           && !(isUpright(position) && size.height() < cornerEdge);
}

} // namespace

int pointerMargin(Position position, int length, int offset)
{
    if (position & Flyout::SubPositionTopOrLeft)
        return offset + cornerMargin;
    if (position & Flyout::SubPositionMiddle)
        return length / 2 + offset;
    if (position & Flyout::SubPositionBottomOrRight)
        return length + offset - cornerMargin;
    return 0;
}

Position alternative(Position position, int primaryStep, int subStep)
{
    if (!position)
        return position;
    return alternativeEdge(position, primaryStep) | alternativePlace(position, subStep);
}

QRect pushedOnto(QRect rect, const QRect &screen)
{
    if (rect.right() > screen.right())
        rect.moveRight(screen.right());
    if (rect.left() < screen.left())
        rect.moveLeft(screen.left());
    if (rect.bottom() > screen.bottom())
        rect.moveBottom(screen.bottom());
    if (rect.top() < screen.top())
        rect.moveTop(screen.top());
    return rect;
}

bool isValidPush(QPoint offset, Position position, QSize size)
{
    if (!position)
        return true;
    if (isUpright(position)) {
        offset = QPoint(offset.y(), offset.x());
        size.transpose();
    }
    if (offset.y() != 0)
        return false;
    if (position & Flyout::SubPositionMiddle)
        return offset.x() == 0;
    const int slide = position & Flyout::SubPositionTopOrLeft ? -offset.x() : offset.x();
    return slide >= 0 && slide < size.width() - cornerEdge;
}

Placement placeAt(Position position, const QRect &target, const Box &box, const QRect &available)
{
    const QRect screen = available.adjusted(screenInset, screenInset, -screenInset, -screenInset);
    const QSize room = shrinkingRoom(box);
    QRect rect = besideTarget(position, target, box.size);
    rect = shrunkAtFarEdge(rect, position, room, screen);
    rect = shrunkToScreen(rect, room, screen);
    const QRect moved = pushedOnto(rect, screen);
    return {position, moved, moved.topLeft() - rect.topLeft()};
}

Placement best(Position position, const QRect &target, const Box &box, const QRect &available)
{
    for (int primaryStep = 0; primaryStep < 4; ++primaryStep) {
        for (int subStep = 0; subStep < 3; ++subStep) {
            const Position candidate = alternative(position, primaryStep, subStep);
            if (!hasPlaceForPointer(candidate, box.size))
                continue;
            const Placement placement = placeAt(candidate, target, box, available);
            if (isValidPush(placement.offset, candidate, placement.rect.size()))
                return placement;
        }
    }
    return placeAt(Flyout::CenterCenter, target, box, available);
}

QRect windowAround(const QRect &box, const QMargins &margins, const QRect &available)
{
    const QSize around(margins.left() + margins.right() + surplus,
                       margins.top() + margins.bottom() + surplus);
    const int longest = available.top() + available.height() + pointerLength - box.top();
    QRect window(box.topLeft() - QPoint(pointerLength, pointerLength), box.size() + around);
    window.setHeight(std::min(window.height(), longest));
    return window;
}

} // namespace NVO::FlyoutPlacement
