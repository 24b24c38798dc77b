#include "dialogs/SmartSize.h"

#include <private/qlayoutengine_p.h>

QSize smartMinimumSize(const QWidget *widget)
{
    return qSmartMinSize(widget);
}

QSize smartMaximumSize(const QWidget *widget)
{
    return qSmartMaxSize(widget);
}
