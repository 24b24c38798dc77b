#pragma once

namespace NVO::AccessibleTabBar {

/**
 * Lets QAccessible describe the tab bars of the library as lists of tabs, each of which says whether it is
 * selected and reads its notification with its title. Every call after the first does nothing.
 */
void install();

} // namespace NVO::AccessibleTabBar
