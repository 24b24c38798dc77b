#include <nvo/SegmentedControl.h>

#include "tabs/NotificationButton.h"
#include "tabs/TabBarProxyStyle.h"
#include "tabs/TabBarSupport.h"
#include "theme/StyleSupport.h"

#include <nvo/Label.h>

#include <QAccessible>
#include <QCoreApplication>
#include <QEvent>
#include <QLayout>
#include <QResizeEvent>
#include <QScopedValueRollback>
#include <QStyle>
#include <QStyleOptionTab>
#include <QVector>

namespace NVO {

SegmentedControl::SegmentedControl(QWidget *p_parent)
    : QTabBar(p_parent)
{
    TabBarSupport::setUp(this, new SegmentedControlProxyStyle(this));
    StyleSupport::applyFontSize(this, ElementSegmentedControl);
    initStyleSheet();
}

QString SegmentedControl::notification(int p_index) const
{
    return m_notifications.value(p_index);
}

void SegmentedControl::setNotification(int p_index, const QString &p_text)
{
    const bool isNew = notification(p_index) != p_text;
    if (isNew)
        m_notifications.insert(p_index, p_text);
    createOrUpdateNotification(p_index);
    if (isNew && p_index >= 0 && p_index < count() && QAccessible::isActive()) {
        QAccessibleEvent event(this, QAccessible::NameChanged);
        event.setChild(p_index);
        QAccessible::updateAccessibility(&event);
    }
}

void SegmentedControl::removeTab(int p_index)
{
    m_notifications.insert(p_index, QString());
    m_tabTexts.remove(p_index);
    m_notificationTabs.removeAll(p_index);
    QTabBar::removeTab(p_index);
}

bool SegmentedControl::event(QEvent *event)
{
    switch (event->type()) {
    case QEvent::ApplicationFontChange:
        StyleSupport::applyFontSize(this, ElementSegmentedControl);
        applyNotificationFonts();
        initStyleSheet();
        layoutSoon();
        return true;
    case QEvent::LayoutRequest:
        tabLayoutChange();
        break;
    default:
        break;
    }
    return QTabBar::event(event);
}

void SegmentedControl::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::FontChange)
        applyNotificationFonts();
    QTabBar::changeEvent(event);
    if (event->type() == QEvent::LayoutDirectionChange)
        TabBarSupport::refreshRules(this);
}

void SegmentedControl::leaveEvent(QEvent *event)
{
    update();
    QWidget::leaveEvent(event);
}

void SegmentedControl::paintEvent(QPaintEvent *event)
{
    for (int i = 0; i < count(); ++i) { // nothing else tells of a tab that is disabled
        if (auto *button = NotificationButton::of(this, i))
            button->setEnabled(isTabEnabled(i));
    }
    QTabBar::paintEvent(event);
}

QSize SegmentedControl::tabSizeHint(int p_index) const
{
    QSize hint = QTabBar::tabSizeHint(p_index);
    const NotificationButton *button = NotificationButton::of(this, p_index);
    if (!button || button->fillerWidth() == 0)
        return hint;
    QStyleOptionTab option;
    initStyleOption(&option, p_index);
    const QSize smallest = style()->sizeFromContents(QStyle::CT_TabBarTab, &option, QSize(0, 0), this);
    hint.setWidth(qMax(hint.width() - button->fillerWidth(), smallest.width()));
    return hint;
}

void SegmentedControl::tabLayoutChange()
{
    if (m_updating)
        return;
    disconnect(this, &QTabBar::currentChanged, this, &SegmentedControl::slotCurrentChanged);
    const QList<int> tabs = m_notificationTabs;
    for (const int index : tabs)
        createOrUpdateNotification(index);
    connect(this, &QTabBar::currentChanged, this, &SegmentedControl::slotCurrentChanged);
}

void SegmentedControl::initStyleSheet()
{
    TabBarSupport::applySheet(this, ElementSegmentedControl);
}

void SegmentedControl::applyNotificationFonts()
{
    for (int i = 0; i < count(); ++i) {
        if (auto *button = NotificationButton::of(this, i))
            button->applyFonts();
    }
}

void SegmentedControl::createOrUpdateNotification(int p_index)
{
    const QString text = notification(p_index);
    if (text.isEmpty())
        removeNotification(p_index);
    else if (!tabButton(p_index, RightSide))
        createNotification(p_index, text);
    else if (NotificationButton::of(this, p_index)) // and not a button of the application
        updateNotification(p_index, text);
}

void SegmentedControl::removeNotification(int p_index)
{
    const QScopedValueRollback<bool> guard(m_updating, true);
    NotificationButton *button = NotificationButton::of(this, p_index);
    setTabButton(p_index, RightSide, nullptr);
    if (button)
        button->deleteLater();
    setTabText(p_index, m_tabTexts.value(p_index));
    m_tabTexts.remove(p_index);
    m_notificationTabs.removeAll(p_index);
    layoutSoon();
}

void SegmentedControl::createNotification(int p_index, const QString &p_text)
{
    const QScopedValueRollback<bool> guard(m_updating, true);
    if (!m_notificationTabs.contains(p_index))
        m_notificationTabs.append(p_index);
    if (p_index < 0 || p_index >= count())
        return; // until there is such a tab
    if (!tabText(p_index).isEmpty())
        m_tabTexts.insert(p_index, tabText(p_index));
    setTabText(p_index, QString());
    auto *button = new NotificationButton(this);
    button->setTexts(m_tabTexts.value(p_index), p_text, p_index == currentIndex());
    setTabButton(p_index, RightSide, button);
    button->setVisible(isTabVisible(p_index));
    layoutSoon();
}

void SegmentedControl::updateNotification(int p_index, const QString &p_text)
{
    tabRect(p_index); // a layout that is due comes first, because the next one is not heard of
    const QScopedValueRollback<bool> guard(m_updating, true);
    NotificationButton *button = NotificationButton::of(this, p_index);
    const QSize sizeBefore = button->contentSize();
    button->setTexts(m_tabTexts.value(p_index), p_text, p_index == currentIndex());
    if (button->contentSize() != sizeBefore)
        layoutTabs();
    centerNotification(p_index);
}

/** Brings title and notification to the middle of the tab. */
void SegmentedControl::centerNotification(int p_index)
{
    NotificationButton *button = NotificationButton::of(this, p_index);
    if (!button)
        return;
    button->centerIn(tabRect(p_index).width());
    QStyleOptionTab option;
    initStyleOption(&option, p_index);
    button->move(style()->subElementRect(QStyle::SE_TabBarTabRightButton, &option, this).topLeft());
}

/** Lays out the tabs for new sizes. Unlike QTabBar, this repaints only those that get another place. */
void SegmentedControl::layoutTabs()
{
    QVector<QRect> before;
    for (int i = 0; i < count(); ++i)
        before.append(tabRect(i));
    QResizeEvent event(size(), size());
    QTabBar::resizeEvent(&event);
    for (int i = 0; i < count(); ++i) {
        if (tabRect(i) == before[i])
            continue;
        update(before[i] | tabRect(i));
        centerNotification(i);
    }
    updateGeometry();
}

/** Has the notifications fitted into their tabs once the tabs have come to rest. */
void SegmentedControl::layoutSoon()
{
    QCoreApplication::postEvent(this, new QEvent(QEvent::LayoutRequest));
}

void SegmentedControl::slotCurrentChanged()
{
    for (int i = 0; i < count(); ++i) {
        const QWidget *button = tabButton(i, RightSide);
        const QLayout *row = button ? button->layout() : nullptr;
        for (int item = 0; row && item < row->count(); ++item) {
            auto *label = qobject_cast<Label *>(row->itemAt(item)->widget());
            if (label && setNotificationState(label, i == currentIndex()))
                StyleSupport::repolish(label);
        }
    }
    initStyleSheet();
    tabLayoutChange(); // the titles have other widths
}

} // namespace NVO
