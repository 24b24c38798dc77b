#include "dialogs/ResizeGeometry.h"

#include <algorithm>

namespace ResizeGeometry {

namespace {

/** How much wider and higher the drag makes the window. */
QPoint growth(MousePosition position, const QPoint &delta)
{
    QPoint growth = delta;
    if (position == MousePosition::Top || position == MousePosition::Bottom)
        growth.setX(0);
    if (position == MousePosition::Left || position == MousePosition::Right)
        growth.setY(0);
    if (edges(position) & Qt::TopEdge)
        growth.setY(-growth.y());
    if (edges(position) & Qt::LeftEdge)
        growth.setX(-growth.x());
    return growth;
}

QSize limited(const QSize &size, const SizeLimits &limits)
{
    QSize result = size.expandedTo(limits.minimum).boundedTo(limits.maximum);
    if (limits.heightForWidth)
        result.setHeight(std::max(result.height(), limits.heightForWidth(result.width())));
    return result;
}

/** Puts the edges of \a rect that the drag leaves alone to where \a current has them. */
void anchor(QRect &rect, MousePosition position, const QRect &current)
{
    switch (position) {
    case MousePosition::Top:
    case MousePosition::Left:
    case MousePosition::TopLeft:
        rect.moveBottomRight(current.bottomRight());
        break;
    case MousePosition::BottomLeft:
        rect.moveTopRight(current.topRight());
        break;
    case MousePosition::TopRight:
        rect.moveBottomLeft(current.bottomLeft());
        break;
    default:
        break;
    }
}

} // namespace

MousePosition positionAt(const QPoint &pos, const QSize &size, const Margins &margins)
{
    const auto [outer, range] = margins;
    if (pos.x() < outer || pos.y() < outer || pos.x() > size.width() - outer
        || pos.y() > size.height() - outer)
        return MousePosition::Nowhere;

    const bool left = pos.x() <= range;
    const bool top = pos.y() <= range;
    const bool right = pos.x() >= size.width() - range;
    const bool bottom = pos.y() >= size.height() - range;
    if (top && left)
        return MousePosition::TopLeft;
    if (bottom && right)
        return MousePosition::BottomRight;
    if (bottom && left)
        return MousePosition::BottomLeft;
    if (top && right)
        return MousePosition::TopRight;
    if (top)
        return MousePosition::Top;
    if (bottom)
        return MousePosition::Bottom;
    if (left)
        return MousePosition::Left;
    if (right)
        return MousePosition::Right;
    return QRect(QPoint(), size).contains(pos) ? MousePosition::Center : MousePosition::Nowhere;
}

Qt::CursorShape cursorShape(MousePosition position)
{
    switch (position) {
    case MousePosition::TopLeft:
    case MousePosition::BottomRight:
        return Qt::SizeFDiagCursor;
    case MousePosition::BottomLeft:
    case MousePosition::TopRight:
        return Qt::SizeBDiagCursor;
    case MousePosition::Top:
    case MousePosition::Bottom:
        return Qt::SizeVerCursor;
    case MousePosition::Left:
    case MousePosition::Right:
        return Qt::SizeHorCursor;
    default:
        return Qt::ArrowCursor;
    }
}

Qt::Edges edges(MousePosition position)
{
    switch (position) {
    case MousePosition::TopLeft:
        return Qt::TopEdge | Qt::LeftEdge;
    case MousePosition::BottomRight:
        return Qt::BottomEdge | Qt::RightEdge;
    case MousePosition::BottomLeft:
        return Qt::BottomEdge | Qt::LeftEdge;
    case MousePosition::TopRight:
        return Qt::TopEdge | Qt::RightEdge;
    case MousePosition::Top:
        return Qt::TopEdge;
    case MousePosition::Bottom:
        return Qt::BottomEdge;
    case MousePosition::Left:
        return Qt::LeftEdge;
    case MousePosition::Right:
        return Qt::RightEdge;
    default:
        return {};
    }
}

QRect resizedGeometry(MousePosition position, const QRect &start, const QRect &current, const QPoint &delta,
                      const SizeLimits &limits)
{
    const QPoint grown = growth(position, delta);
    QRect rect(start.topLeft(), limited(start.size() + QSize(grown.x(), grown.y()), limits));
    anchor(rect, position, current);
    return rect;
}

} // namespace ResizeGeometry
