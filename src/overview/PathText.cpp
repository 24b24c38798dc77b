#include "overview/PathText.h"

#include <numeric>

namespace NVO::PathText {

namespace {

int ellipsisPlace(Qt::TextElideMode mode, int count)
{
    switch (mode) {
    case Qt::ElideLeft:
        return 0;
    case Qt::ElideRight:
        return count - 1;
    default:
        return (count - 1) / 2;
    }
}

} // namespace

QVector<Segment> fitted(const QVector<Segment> &segments, int room, Qt::TextElideMode mode, int ellipsisWidth,
                        int arrowWidth)
{
    qint64 width = std::accumulate(segments.begin(), segments.end(), qint64(0),
                                   [](qint64 sum, const Segment &segment) { return sum + segment.width; });
    if (width <= room || segments.isEmpty())
        return segments;

    const int place = ellipsisPlace(mode, segments.size());
    const bool hasArrow = segments.at(place).hasArrow;
    const Segment middle{ellipsis(), hasArrow, ellipsisWidth + (hasArrow ? arrowWidth : 0)};
    width += middle.width - segments.at(place).width;

    int left = place;                          // segments that stay before the ellipsis
    int right = segments.size() - (place + 1); // and behind it
    bool eatRight = true;
    for (; width > room && left + right > 0; eatRight = !eatRight) {
        if (right > 0 && (eatRight || left == 0))
            width -= segments.at(segments.size() - right--).width;
        else
            width -= segments.at(--left).width;
    }
    return segments.mid(0, left) << middle << segments.mid(segments.size() - right);
}

} // namespace NVO::PathText
