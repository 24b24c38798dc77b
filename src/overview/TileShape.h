#pragma once

#include <nvo/OverviewButtonBase.h>

/** The shape of a section of a tile of several buttons. */
namespace NVO::TileShape {

using BorderStyles = OverviewButtonBase::BorderStyles;
using RoundCornerStyles = OverviewButtonBase::RoundCornerStyles;

/** \a borders with left and right exchanged. */
BorderStyles mirrored(BorderStyles borders);
RoundCornerStyles mirrored(RoundCornerStyles corners);

/** Gives \a button the shape that is meant for left-to-right, mirrored if it is laid out right-to-left. */
void apply(OverviewButtonBase *button, BorderStyles borders, RoundCornerStyles corners);

} // namespace NVO::TileShape
