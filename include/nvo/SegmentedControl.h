#pragma once

#include <nvo/Export.h>

#include <QList>
#include <QMap>
#include <QString>
#include <QTabBar>

namespace NVO {

/**
 * A tab bar that looks like a row of joined segments, each of which can show a short notification, such as a
 * number, beside its title. It is used on its own, with the signals of QTabBar. Its look comes from the sheet
 * of ElementSegmentedControl.
 *
 * Notifications belong to positions, not to tabs: they do not follow a tab that gets another index. Where
 * tabs are inserted, moved or removed, clear the notifications from there on before and set them after.
 *
 * While a tab shows a notification, its title stands in a Label in the button on its right side, and
 * tabText() is empty. The button goes with the notification. Both labels have the dynamic property "state",
 * which is "active" on the current tab.
 */
class NVO_EXPORT SegmentedControl : public QTabBar
{
    Q_OBJECT

public:
    explicit SegmentedControl(QWidget *p_parent = nullptr);

    /** The notification at \a p_index; empty if there is none. */
    QString notification(int p_index) const;

    /**
     * Shows \a p_text beside the title of the tab at \a p_index. An empty text takes the notification away
     * and gives the tab its title back; so set it only where there is a notification, as any other tab loses
     * its title. A text for a tab that is not there is kept and shown when there is one.
     */
    void setNotification(int p_index, const QString &p_text);

    /**
     * Removes the tab and its notification. Hides QTabBar::removeTab(): callers through a QTabBar bypass it,
     * and the notification then goes to the tab that comes to this place.
     */
    void removeTab(int p_index);

protected:
    bool event(QEvent *event) override;
    void changeEvent(QEvent *event) override;
    void leaveEvent(QEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
    QSize tabSizeHint(int p_index) const override;
    void tabLayoutChange() override;

private:
    void initStyleSheet();
    void applyNotificationFonts();
    void createOrUpdateNotification(int p_index);
    void removeNotification(int p_index);
    void createNotification(int p_index, const QString &p_text);
    void updateNotification(int p_index, const QString &p_text);
    void centerNotification(int p_index);
    void layoutTabs();
    void layoutSoon();
    void slotCurrentChanged();

    QMap<int, QString> m_notifications; // by the index of the tab, like what follows
    QMap<int, QString> m_tabTexts;      // titles that stand in a label
    QList<int> m_notificationTabs;      // those that have a notification widget
    bool m_updating = false;
};

} // namespace NVO
