#pragma once

#include <nvo/Element.h>

class QStyle;
class QTabBar;

/** What the tab bars of the library have in common. */
namespace NVO::TabBarSupport {

/** Makes \a bar one with \a style whose tabs fill it and are cut where there is no room. */
void setUp(QTabBar *bar, QStyle *style);

/**
 * Gives \a bar the sheet of \a element. One that it has is not parsed again, but asked again what it says
 * about the current tab.
 */
void applySheet(QTabBar *bar, Element element);

/**
 * Lets the sheet look at the properties of \a bar again. Unlike a new sheet and a repolish this does not
 * parse.
 */
void refreshRules(QTabBar *bar);

} // namespace NVO::TabBarSupport
