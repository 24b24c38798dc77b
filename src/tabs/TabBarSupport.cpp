#include "tabs/TabBarSupport.h"

#include "tabs/AccessibleTabBar.h"
#include "theme/StyleSupport.h"

#include <nvo/Css.h>

#include <QCoreApplication>
#include <QEvent>
#include <QStyle>
#include <QTabBar>

namespace NVO::TabBarSupport {

void setUp(QTabBar *bar, QStyle *style)
{
    AccessibleTabBar::install();
    bar->setStyle(style);
    bar->setDocumentMode(true);
    bar->setExpanding(true);
    bar->setUsesScrollButtons(false);
    bar->setElideMode(Qt::ElideRight);
    bar->setCursor(Qt::PointingHandCursor);
    bar->setDrawBase(false);
}

void applySheet(QTabBar *bar, Element element)
{
    if (bar->styleSheet() != Css::instance().css(element))
        StyleSupport::applySheet(bar, element);
    else if (bar->styleSheet().contains(QLatin1String("[currentIndex")))
        refreshRules(bar);
}

void refreshRules(QTabBar *bar)
{
    if (bar->testAttribute(Qt::WA_WState_Polished)) // else it sees the properties when it is polished
        bar->style()->polish(bar);
    QEvent event(QEvent::StyleChange);
    QCoreApplication::sendEvent(bar, &event);
}

} // namespace NVO::TabBarSupport
