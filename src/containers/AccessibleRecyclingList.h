#pragma once

namespace NVO::AccessibleRecyclingList {

/**
 * Lets QAccessible describe a RecyclingList as a list: a table of one column with a row for each item of the
 * adapter, of which those on screen have a cell. Every call after the first does nothing.
 */
void install();

} // namespace NVO::AccessibleRecyclingList
