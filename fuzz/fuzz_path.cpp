// Eliding of paths: any elements in any room.

#include "FuzzSupport.h"
#include "overview/PathText.h"

#include <algorithm>
#include <numeric>

using namespace NVO;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    FuzzedDataProvider input(data, size);
    const int arrow = input.ConsumeIntegralInRange(0, 30);
    const int dots = input.ConsumeIntegralInRange(0, 30);
    const auto mode = Qt::TextElideMode(input.ConsumeIntegralInRange(0, 3));
    const int room = input.ConsumeIntegralInRange(-10, 1000);
    QVector<PathText::Segment> segments(input.ConsumeIntegralInRange(0, 30));
    for (int i = 0; i < segments.size(); ++i) {
        const int text = input.ConsumeIntegralInRange(0, 200);
        segments[i] = {QString::number(i), i > 0, text + (i > 0 ? arrow : 0)};
    }
    const auto widthOf = [](const QVector<PathText::Segment> &list) {
        return std::accumulate(list.begin(), list.end(), 0,
                               [](int sum, const PathText::Segment &segment) { return sum + segment.width; });
    };
    const QVector<PathText::Segment> result = PathText::fitted(segments, room, mode, dots, arrow);
    const auto isEllipsis = [](const PathText::Segment &segment) {
        return segment.text == PathText::ellipsis();
    };
    const auto ellipses = std::count_if(result.begin(), result.end(), isEllipsis);
    const bool fits = widthOf(segments) <= room;
    if (fits ? result.size() != segments.size() || ellipses : !segments.isEmpty() && ellipses != 1)
        std::abort();
    if (!fits && result.size() > 1 && widthOf(result) > room)
        std::abort();
    return 0;
}
