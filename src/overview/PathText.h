#pragma once

#include <QString>
#include <QVector>

/** What a path shows in the room that it has. */
namespace NVO::PathText {

/** An element of a path, or the ellipsis that stands for several. */
struct Segment
{
    QString text;
    bool hasArrow = false; // in front of the text
    int width = 0;         // of both
};

/** Stands for the elements that have no room. */
inline QString ellipsis()
{
    return QStringLiteral("...");
}

/**
 * \a segments as they fit into \a room. If they do not, an ellipsis takes the place of the first, the middle
 * or the last one, as \a mode says (Qt::ElideNone is the middle), and then eats its neighbours alternately at
 * its right and at its left. It keeps the arrow in front of it and stays even where it has no room.
 *
 * \a ellipsisWidth is that of the text alone, \a arrowWidth that of an arrow with its gaps.
 */
QVector<Segment> fitted(const QVector<Segment> &segments, int room, Qt::TextElideMode mode, int ellipsisWidth,
                        int arrowWidth);

} // namespace NVO::PathText
