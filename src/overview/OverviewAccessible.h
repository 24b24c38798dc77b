#pragma once

#include <QAccessible>

namespace NVO {
class Label;
}

/** The tiles as assistive technology sees them. */
namespace NVO::OverviewAccessible {

/**
 * Lets QAccessible describe each tile as one button without children, called like its title and described by
 * its other texts. Every call after the first does nothing.
 */
void install();

/** Tells assistive technology of a \a change of \a tile. */
void tell(QWidget *tile, QAccessible::Event change);

/** Gives \a label, a part of \a tile, \a text and tells assistive technology of \a change if it is one. */
void setText(QWidget *tile, Label *label, const QString &text, QAccessible::Event change);

} // namespace NVO::OverviewAccessible
