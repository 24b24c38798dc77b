#pragma once

class QString;

namespace NVO::AccessibleOverviewComboBox {

/**
 * Lets QAccessible describe an OverviewComboBox by its current entry. Every call after the first does
 * nothing.
 */
void install();

/** Rich text as it is read, on one line. */
QString spoken(const QString &html);

} // namespace NVO::AccessibleOverviewComboBox
