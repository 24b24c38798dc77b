#pragma once

#include <QLayout>
#include <QPointer>
#include <QWidget>

#include <utility>

/** The place in a widget for one widget from outside. */
namespace NVO::AccordionSlot {

/**
 * Puts \a widget, which may be null, into the layout of \a holder and deletes what \a place held before, if
 * it is still there. The widget that is in the place and widgets that \a holder is a part of are ignored.
 */
inline void exchange(QPointer<QWidget> &place, QWidget *widget, QWidget *holder)
{
    if (widget && (widget == place || widget->isAncestorOf(holder)))
        return;
    const QPointer<QWidget> before = std::exchange(place, QPointer<QWidget>(widget));
    if (widget) // first, for it may have been a part of the one before
        holder->layout()->addWidget(widget);
    if (before && before->parentWidget() == holder)
        delete before;
}

} // namespace NVO::AccordionSlot
