// The ribbon's arranging: controls in columns and groups of a page, of any sizes and at any width.

#include "FuzzSupport.h"
#include "ribbon/RibbonGeometry.h"

using namespace NVO;

namespace {

RibbonGeometry::Mode takeMode(FuzzedDataProvider &input)
{
    return RibbonGeometry::Mode(input.ConsumeIntegralInRange(0, 2));
}

QSize takeSize(FuzzedDataProvider &input)
{
    const int width = input.ConsumeIntegralInRange(-5, 300);
    return QSize(width, input.ConsumeIntegralInRange(-5, 100));
}

/** Every control stands in one column, in its place, and no column is too full. */
void check(const RibbonGeometry::Columns &columns, int controls)
{
    int next = 0;
    for (const RibbonGeometry::Column &column : columns) {
        if (column.controls.isEmpty() || column.controls.size() > RibbonGeometry::controlsPerColumn)
            std::abort();
        for (const int control : column.controls) {
            if (control != next++)
                std::abort();
        }
    }
    if (next != controls)
        std::abort();
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    FuzzedDataProvider input(data, size);
    QVector<RibbonGeometry::Control> controls(input.ConsumeIntegralInRange(0, 12));
    QVector<QSize> sizes;
    for (RibbonGeometry::Control &control : controls) {
        control = {takeMode(input), takeMode(input)};
        sizes << takeSize(input) << takeSize(input) << takeSize(input);
    }
    const auto sizeOf = [&](int control, RibbonGeometry::Mode mode) {
        return sizes.at(3 * control + int(mode));
    };
    check(RibbonGeometry::compactColumns(controls), controls.size());
    check(RibbonGeometry::columnsForWidth(controls, input.ConsumeIntegralInRange(-10, 2000),
                                          input.ConsumeIntegralInRange(-5, 20), sizeOf),
          controls.size());

    QVector<RibbonGeometry::Group> groups(input.ConsumeIntegralInRange(0, 8));
    for (RibbonGeometry::Group &group : groups)
        group = {input.ConsumeBool(), input.ConsumeBool(), input.ConsumeBool(), takeMode(input)};
    const RibbonGeometry::GroupSizes groupSizes{
        [&](int, RibbonGeometry::Mode) { return takeSize(input); }, [&](int) { return takeSize(input); },
        [&](int, RibbonGeometry::Mode, const QSize &) { return takeSize(input); }};
    const QVector<RibbonGeometry::Place> places = RibbonGeometry::arrangeGroups(
        groups, takeSize(input), input.ConsumeIntegralInRange(-5, 20), groupSizes);
    if (places.size() != groups.size())
        std::abort();
    return 0;
}
