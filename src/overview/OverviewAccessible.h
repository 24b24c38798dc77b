#pragma once

/** The tiles as assistive technology sees them. */
namespace NVO::OverviewAccessible {

/**
 * Lets QAccessible describe each tile as one button without children, called like its title and described by
 * its other texts. Every call after the first does nothing.
 */
void install();

} // namespace NVO::OverviewAccessible
