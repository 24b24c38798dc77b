#include "tabs/AccessibleTabBar.h"

#include "tabs/NotificationButton.h"
#include "theme/StyleSupport.h"

#include <nvo/SegmentedControl.h>
#include <nvo/TabBar.h>

#include <QAccessibleWidget>
#include <QKeySequence>
#include <QMap>
#include <QPointer>
#include <QRegularExpression>
#include <QTextDocumentFragment>

namespace NVO::AccessibleTabBar {

namespace {

QString plain(const QString &html)
{
    return QTextDocumentFragment::fromHtml(html).toPlainText().simplified();
}

QString withoutMnemonic(QString text)
{
    return text.replace(QRegularExpression(QStringLiteral("&(.)")), QStringLiteral("\\1"));
}

/** Of a tab, whether it stands in the tab itself or beside a notification. */
QString titleOf(const QTabBar &bar, int index)
{
    const NotificationButton *button = NotificationButton::of(&bar, index);
    return button ? button->title() : bar.tabText(index);
}

QString nameOf(const QTabBar &bar, int index)
{
    QString given = bar.accessibleTabName(index);
    if (!given.isEmpty())
        return given;
    const NotificationButton *button = NotificationButton::of(&bar, index);
    if (!button)
        return withoutMnemonic(bar.tabText(index));
    QStringList texts{withoutMnemonic(plain(button->title())), plain(button->notification())};
    texts.removeAll(QString());
    return texts.join(QStringLiteral(", "));
}

class TabInterface : public QAccessibleInterface, public QAccessibleActionInterface
{
public:
    TabInterface(QTabBar *bar, int index)
        : m_bar(bar)
        , m_index(index)
    {}

    void *interface_cast(QAccessible::InterfaceType type) override
    {
        return type == QAccessible::ActionInterface ? static_cast<QAccessibleActionInterface *>(this)
                                                    : nullptr;
    }

    bool isValid() const override { return m_bar && m_index < m_bar->count(); }
    QObject *object() const override { return nullptr; }
    QWindow *window() const override { return isValid() ? parent()->window() : nullptr; }
    QAccessible::Role role() const override { return QAccessible::PageTab; }

    QAccessible::State state() const override
    {
        QAccessible::State state;
        if (!isValid()) {
            state.invalid = true;
            return state;
        }
        state = parent()->state();
        const bool isCurrent = m_bar->currentIndex() == m_index;
        state.selectable = true;
        state.selected = isCurrent;
        state.focused = isCurrent && m_bar->hasFocus();
        state.disabled = !m_bar->isEnabled() || !m_bar->isTabEnabled(m_index);
        state.invisible = !m_bar->isVisible() || !m_bar->isTabVisible(m_index);
        return state;
    }

    QString text(QAccessible::Text type) const override
    {
        if (!isValid())
            return QString();
        switch (type) {
        case QAccessible::Name:
            return nameOf(*m_bar, m_index);
        case QAccessible::Description:
            return m_bar->tabToolTip(m_index);
        case QAccessible::Help:
            return m_bar->tabWhatsThis(m_index);
        case QAccessible::Accelerator:
            return QKeySequence::mnemonic(titleOf(*m_bar, m_index)).toString(QKeySequence::NativeText);
        default:
            return QString();
        }
    }
    void setText(QAccessible::Text, const QString &) override {}

    QRect rect() const override
    {
        if (!isValid())
            return {};
        const QRect tab = m_bar->tabRect(m_index);
        return {m_bar->mapToGlobal(tab.topLeft()), tab.size()};
    }

    QAccessibleInterface *parent() const override { return QAccessible::queryAccessibleInterface(m_bar); }
    QAccessibleInterface *child(int) const override { return nullptr; }
    QAccessibleInterface *childAt(int, int) const override { return nullptr; }
    int childCount() const override { return 0; }
    int indexOfChild(const QAccessibleInterface *) const override { return -1; }

    QStringList actionNames() const override
    {
        return isValid() && !state().disabled ? QStringList(pressAction()) : QStringList();
    }
    void doAction(const QString &name) override
    {
        if (actionNames().contains(name))
            m_bar->setCurrentIndex(m_index);
    }
    QStringList keyBindingsForAction(const QString &) const override { return {}; }

    int index() const { return m_index; }

private:
    QPointer<QTabBar> m_bar;
    int m_index;
};

class BarInterface : public QAccessibleWidget
{
public:
    explicit BarInterface(QTabBar *bar)
        : QAccessibleWidget(bar, QAccessible::PageTabList)
    {}
    ~BarInterface() override
    {
        for (const QAccessible::Id id : qAsConst(m_tabs))
            QAccessible::deleteAccessibleInterface(id);
    }
    Q_DISABLE_COPY_MOVE(BarInterface)

    /** A bar without a name of its own is called by what is chosen in it. */
    QString text(QAccessible::Text type) const override
    {
        const QString own = QAccessibleWidget::text(type);
        return own.isEmpty() && type == QAccessible::Name ? nameOf(*bar(), bar()->currentIndex()) : own;
    }

    int childCount() const override { return bar()->count(); }

    QAccessibleInterface *child(int index) const override
    {
        if (index < 0 || index >= childCount())
            return nullptr;
        if (!m_tabs.contains(index))
            m_tabs.insert(index, QAccessible::registerAccessibleInterface(new TabInterface(bar(), index)));
        return QAccessible::accessibleInterface(m_tabs.value(index));
    }

    QAccessibleInterface *childAt(int x, int y) const override
    {
        return child(bar()->tabAt(bar()->mapFromGlobal(QPoint(x, y))));
    }

    int indexOfChild(const QAccessibleInterface *child) const override
    {
        const auto *tab = dynamic_cast<const TabInterface *>(child);
        return tab && tab->parent() == this ? tab->index() : -1;
    }

private:
    QTabBar *bar() const { return static_cast<QTabBar *>(object()); }

    mutable QMap<int, QAccessible::Id> m_tabs;
};

QAccessibleInterface *createInterface(const QString &className, QObject *object)
{
    using StyleSupport::exactly;
    if (auto *control = exactly<SegmentedControl>(className, object))
        return new BarInterface(control);
    if (auto *bar = exactly<TabBar>(className, object))
        return new BarInterface(bar);
    return nullptr;
}

} // namespace

void install()
{
    QAccessible::installFactory(createInterface);
}

} // namespace NVO::AccessibleTabBar
