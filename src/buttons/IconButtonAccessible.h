#pragma once

/** Icon buttons as assistive technology sees them. */
namespace NVO::IconButtonAccessible {

/**
 * Lets QAccessible describe icon buttons by an interface of our own: that of a push button, which calls a
 * button without a text by its tool tip. Every call after the first does nothing.
 */
void install();

} // namespace NVO::IconButtonAccessible
