#pragma once

namespace NVO::AccessibleOverviewComboBox {

/**
 * Lets QAccessible describe an OverviewComboBox by its current entry. Every call after the first does
 * nothing.
 */
void install();

} // namespace NVO::AccessibleOverviewComboBox
