#pragma once

class QTabWidget;
class QWidget;

/** Ribbons of one content, by who makes them. */
namespace RibbonPeers {

QTabWidget *ours(QWidget *parent);

/**
 * Our own controls in layouts that keep nothing: each look at a size computes it anew from text, icon and
 * font. A control does the same work for a size as ours when it has none, and it has the same sheet and the
 * same paint event. What Qt's own classes keep, such as the hint of a check box, is kept on both sides.
 */
QTabWidget *askedAnew(QWidget *parent);

/** Qt's own widgets with our sheets, in the same layouts, which keep the sizes. */
QTabWidget *plainKept(QWidget *parent);

/** What Qt itself has for the task: a tool bar for each group, which moves what has no room into a popup. */
QTabWidget *toolBars(QWidget *parent);

} // namespace RibbonPeers
