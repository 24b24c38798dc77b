#include "ribbon/RibbonAccessible.h"

#include "ribbon/RibbonGroupButton.h"
#include "ribbon/RibbonSupport.h"

#include <nvo/Action.h>
#include <nvo/RibbonButton.h>
#include <nvo/RibbonCheckBox.h>
#include <nvo/RibbonGroup.h>
#include <nvo/RibbonLabel.h>

#include <QAccessibleWidget>
#include <QRegularExpression>
#include <QTextDocument>
#include <QTextDocumentFragment>

namespace NVO::RibbonAccessible {

namespace {

/** The text as it is read: on one line, without markup and without the mark of a mnemonic. */
QString spoken(const QString &text, bool hasMnemonic)
{
    QString line = text;
    if (Qt::mightBeRichText(line))
        line = QTextDocumentFragment::fromHtml(line).toPlainText();
    line = RibbonSupport::singleLine(line);
    return hasMnemonic ? line.replace(QRegularExpression(QStringLiteral("&(.)")), QStringLiteral("\\1"))
                       : line;
}

/** What is described by its action, its own or that of the group around it. */
class AccessibleControl : public QAccessibleWidget
{
public:
    using QAccessibleWidget::QAccessibleWidget;

    QString text(QAccessible::Text type) const override
    {
        const QString own = QAccessibleWidget::text(type);
        const Action *action = ownAction();
        if (!action)
            return own;
        const bool hasMnemonic = qobject_cast<RibbonCheckBox *>(object());
        const QString name = spoken(action->text(), hasMnemonic);
        const QString help = spoken(action->toolTip(), false);
        switch (type) {
        case QAccessible::Name:
            return !own.isEmpty() ? own : name.isEmpty() ? help : name;
        case QAccessible::Description: // the tool tip of a control is a table of name and help
            if (!widget()->accessibleDescription().isEmpty())
                return own;
            return help == name || help == spoken(action->text(), true) ? QString() : help;
        case QAccessible::Accelerator:
            return action->shortcut().toString(QKeySequence::NativeText);
        default:
            return own;
        }
    }

private:
    /** Asked anew each time: a group goes before its button does. */
    const Action *ownAction() const
    {
        const QObject *owner = object();
        if (qobject_cast<const RibbonGroupButton *>(owner))
            owner = owner->parent();
        const auto *control = dynamic_cast<const RibbonControl *>(owner);
        return control ? control->action() : nullptr;
    }
};

/** A push button, a check box or the button of a group; none of them has children. */
class AccessibleButton : public AccessibleControl
{
public:
    explicit AccessibleButton(QAbstractButton *button)
        : AccessibleControl(button)
        , m_groupButton(qobject_cast<RibbonGroupButton *>(button))
    {}

    QAccessible::Role role() const override
    {
        if (m_groupButton)
            return QAccessible::ButtonMenu;
        return button()->isCheckable() ? QAccessible::CheckBox : QAccessible::Button;
    }

    QAccessible::State state() const override
    {
        QAccessible::State state = AccessibleControl::state();
        state.checkable = button()->isCheckable();
        state.checked = button()->isChecked();
        state.pressed = button()->isDown();
        if (m_groupButton) {
            state.hasPopup = true;
            state.expandable = true;
            state.expanded = m_groupButton->isOpen();
            state.collapsed = !m_groupButton->isOpen();
        }
        return state;
    }

    QStringList actionNames() const override
    {
        const QStringList names = AccessibleControl::actionNames();
        return widget()->isEnabled() ? QStringList(clickAction()) + names : names;
    }

    void doAction(const QString &name) override
    {
        if (name != clickAction())
            AccessibleControl::doAction(name);
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

    const RibbonGroupButton *m_groupButton; ///< Null for a control.
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
    if (qobject_cast<RibbonButton *>(object) || qobject_cast<RibbonCheckBox *>(object)
        || qobject_cast<RibbonGroupButton *>(object))
        return new AccessibleButton(static_cast<QAbstractButton *>(object));
    if (auto *label = qobject_cast<RibbonLabel *>(object))
        return new AccessibleControl(label, QAccessible::StaticText);
    if (auto *group = qobject_cast<RibbonGroup *>(object))
        return new AccessibleControl(group, QAccessible::Grouping);
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
