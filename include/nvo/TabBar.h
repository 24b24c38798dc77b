#pragma once

#include <nvo/Export.h>

#include <QTabBar>

namespace NVO {

/** The look of a TabBar. */
enum TabBarStyle : int {
    Mac = 0 ///< The sheet sees "Mac" as the dynamic property "style".
};

/**
 * A tab bar whose tabs share its whole width. It is used on its own, with the signals of QTabBar. Its look
 * comes from the sheet of ElementTabBar, its font from its parent.
 *
 * Tabs are cut on the right where there is no room; nothing scrolls.
 */
class NVO_EXPORT TabBar : public QTabBar
{
    Q_OBJECT

public:
    explicit TabBar(QWidget *p_parent = nullptr);

    TabBarStyle tabBarStyle() const { return m_tabBarStyle; }
    /** A value that is no key of TabBarStyle is kept and leaves the look as it was. */
    void setTabBarStyle(TabBarStyle p_style);

protected:
    void changeEvent(QEvent *event) override;

private:
    void initStyleSheet();
    void slotCurrentChanged();

    TabBarStyle m_tabBarStyle = Mac;
};

} // namespace NVO
