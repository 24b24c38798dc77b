#pragma once

/** The ribbon as assistive technology sees it. */
namespace NVO::RibbonAccessible {

/**
 * Lets QAccessible describe the ribbon's widgets by interfaces of our own: buttons and check boxes report
 * the shortcut of their action and are pressed by a click, which is what reaches the action; the button of a
 * collapsed group opens and reports its popup; keytips are passed over. Every call after the first does
 * nothing.
 */
void install();

} // namespace NVO::RibbonAccessible
