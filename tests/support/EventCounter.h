#pragma once

#include <QEvent>
#include <QHash>
#include <QPointer>
#include <QWidget>

/** Knows which events it was sent; has no meta-object of its own, like most subclasses in applications. */
template <typename Base>
struct EventCounter : public Base
{
    using Base::Base;

    bool event(QEvent *event) override
    {
        ++counts[event->type()];
        if (event->type() != deadly)
            return Base::event(event);
        delete victim; // perhaps this widget with it
        return true;
    }

    QHash<int, int> counts;
    QEvent::Type deadly = QEvent::None; // deletes the victim
    QPointer<QWidget> victim;
};
