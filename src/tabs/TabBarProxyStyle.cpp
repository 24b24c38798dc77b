#include "tabs/TabBarProxyStyle.h"

#include <QWidget>

namespace NVO {

TabBarProxyStyle::TabBarProxyStyle(QWidget *bar)
    : QProxyStyle(static_cast<QStyle *>(nullptr))
{
    setParent(bar);
}

int TabBarProxyStyle::styleHint(StyleHint hint, const QStyleOption *option, const QWidget *widget,
                                QStyleHintReturn *returnData) const
{
    return hint == SH_TabBar_Alignment ? int(Qt::AlignJustify)
                                       : QProxyStyle::styleHint(hint, option, widget, returnData);
}

} // namespace NVO
