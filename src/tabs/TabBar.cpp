#include <nvo/TabBar.h>

#include "tabs/TabBarProxyStyle.h"
#include "tabs/TabBarSupport.h"

#include <QEvent>
#include <QVariant>

namespace NVO {

TabBar::TabBar(QWidget *p_parent)
    : QTabBar(p_parent)
{
    TabBarSupport::setUp(this, new TabBarProxyStyle(this));
    initStyleSheet();
    connect(this, &QTabBar::currentChanged, this, &TabBar::slotCurrentChanged);
}

void TabBar::setTabBarStyle(TabBarStyle p_style)
{
    if (m_tabBarStyle == p_style)
        return;
    m_tabBarStyle = p_style;
    initStyleSheet();
}

void TabBar::changeEvent(QEvent *event)
{
    QTabBar::changeEvent(event);
    if (event->type() == QEvent::LayoutDirectionChange)
        TabBarSupport::refreshRules(this);
}

void TabBar::initStyleSheet()
{
    const QString style = QStringLiteral("Mac");
    if (m_tabBarStyle == Mac && property("style") != style) {
        setProperty("style", style);
        TabBarSupport::refreshRules(this);
    }
    TabBarSupport::applySheet(this, ElementTabBar);
}

void TabBar::slotCurrentChanged()
{
    initStyleSheet();
}

} // namespace NVO
