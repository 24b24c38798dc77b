#pragma once

#include <QObject>

/** Questions on the tree of objects that QWidget answers within one window only. */
namespace NVO::Ancestry {

/** Whether \a object is \a descendant or one of its ancestors, windows included. */
inline bool contains(const QObject *object, const QObject *descendant)
{
    while (descendant && descendant != object)
        descendant = descendant->parent();
    return descendant != nullptr;
}

} // namespace NVO::Ancestry
