#include "overview/TileShape.h"

namespace NVO::TileShape {

namespace {

/** \a flags with the states of \a one and \a other exchanged. */
template <typename Flags, typename Flag>
Flags exchanged(Flags flags, Flag one, Flag other)
{
    Flags result = flags;
    result.setFlag(one, flags.testFlag(other));
    result.setFlag(other, flags.testFlag(one));
    return result;
}

} // namespace

BorderStyles mirrored(BorderStyles borders)
{
    using Side = OverviewButtonBase::BorderStyle;
    return exchanged(borders, Side::Left, Side::Right);
}

RoundCornerStyles mirrored(RoundCornerStyles corners)
{
    using Corner = OverviewButtonBase::RoundCornerStyle;
    return exchanged(exchanged(corners, Corner::TopLeft, Corner::TopRight), Corner::BottomLeft,
                     Corner::BottomRight);
}

void apply(OverviewButtonBase *button, BorderStyles borders, RoundCornerStyles corners)
{
    const bool mirror = button->layoutDirection() == Qt::RightToLeft;
    button->setBorderStyle(mirror ? mirrored(borders) : borders);
    button->setRoundCornerStyle(mirror ? mirrored(corners) : corners);
}

} // namespace NVO::TileShape
