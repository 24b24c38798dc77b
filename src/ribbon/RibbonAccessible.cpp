#include "ribbon/RibbonAccessible.h"

#include "ribbon/RibbonGroupButton.h"
#include "ribbon/RibbonSupport.h"

#include <nvo/Action.h>
#include <nvo/RibbonButton.h>
#include <nvo/RibbonCheckBox.h>
#include <nvo/RibbonGroup.h>

#include <QAccessibleWidget>

namespace NVO::RibbonAccessible {

namespace {

/** A push button, a check box or, with \a opensPopup, the button of a group; none of them has children. */
class AccessibleButton : public QAccessibleWidget
{
public:
    explicit AccessibleButton(QAbstractButton *button, bool opensPopup = false)
        : QAccessibleWidget(button)
        , m_opensPopup(opensPopup)
    {}

    QAccessible::Role role() const override
    {
        if (m_opensPopup)
            return QAccessible::ButtonMenu;
        return button()->isCheckable() ? QAccessible::CheckBox : QAccessible::Button;
    }

    QAccessible::State state() const override
    {
        QAccessible::State state = QAccessibleWidget::state();
        state.checkable = button()->isCheckable();
        state.checked = button()->isChecked();
        state.pressed = button()->isDown();
        if (m_opensPopup) {
            const bool open = static_cast<RibbonGroupButton *>(widget())->isOpen();
            state.hasPopup = true;
            state.expandable = true;
            state.expanded = open;
            state.collapsed = !open;
        }
        return state;
    }

    QString text(QAccessible::Text type) const override
    {
        const Action *action = ownAction();
        if (action && type == QAccessible::Accelerator)
            return action->shortcut().toString(QKeySequence::NativeText);
        // The tool tip of the widget is a table of name and help.
        if (action && type == QAccessible::Description && widget()->accessibleDescription().isEmpty())
            return action->toolTip();
        return QAccessibleWidget::text(type);
    }

    QStringList actionNames() const override
    {
        const QStringList names = QAccessibleWidget::actionNames();
        return widget()->isEnabled() ? QStringList(clickAction()) + names : names;
    }

    void doAction(const QString &name) override
    {
        if (name != clickAction())
            QAccessibleWidget::doAction(name);
        else if (widget()->isEnabled())
            button()->animateClick();
    }

    QStringList keyBindingsForAction(const QString &name) const override
    {
        const QString shortcut = text(QAccessible::Accelerator);
        return name == clickAction() && !shortcut.isEmpty() ? QStringList(shortcut) : QStringList();
    }

    int childCount() const override { return 0; }
    QAccessibleInterface *child(int) const override { return nullptr; }

private:
    QAbstractButton *button() const { return static_cast<QAbstractButton *>(object()); }

    /** Asked anew each time: a group goes before its button does. */
    const Action *ownAction() const
    {
        const QWidget *owner = m_opensPopup ? widget()->parentWidget() : widget();
        const auto *control = dynamic_cast<const RibbonControl *>(owner);
        return control ? control->action() : nullptr;
    }

    QString clickAction() const
    {
        switch (role()) {
        case QAccessible::ButtonMenu:
            return showMenuAction();
        case QAccessible::CheckBox:
            return toggleAction();
        default:
            return pressAction();
        }
    }

    const bool m_opensPopup;
};

/** Keytips repeat for the eye what the accelerators say. */
class AccessibleKeytip : public QAccessibleWidget
{
public:
    explicit AccessibleKeytip(QWidget *keytip)
        : QAccessibleWidget(keytip, QAccessible::NoRole)
    {}

    QString text(QAccessible::Text) const override { return QString(); }

    QAccessible::State state() const override
    {
        QAccessible::State state = QAccessibleWidget::state();
        state.invisible = true;
        return state;
    }
};

QAccessibleInterface *createInterface(const QString &, QObject *object)
{
    if (auto *button = qobject_cast<RibbonButton *>(object))
        return new AccessibleButton(button);
    if (auto *checkBox = qobject_cast<RibbonCheckBox *>(object))
        return new AccessibleButton(checkBox);
    if (auto *group = qobject_cast<RibbonGroup *>(object))
        return new QAccessibleWidget(group, QAccessible::Grouping);
    if (auto *groupButton = qobject_cast<RibbonGroupButton *>(object))
        return new AccessibleButton(groupButton, true);
    if (RibbonSupport::isKeytip(object))
        return new AccessibleKeytip(static_cast<QWidget *>(object));
    return nullptr;
}

} // namespace

void install()
{
    QAccessible::installFactory(createInterface);
}

} // namespace NVO::RibbonAccessible
