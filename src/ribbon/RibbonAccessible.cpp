#include "ribbon/RibbonAccessible.h"

#include "buttons/AccessibleButton.h"
#include "ribbon/RibbonGroupButton.h"
#include "ribbon/RibbonSupport.h"
#include "theme/StyleSupport.h"

#include <nvo/Action.h>
#include <nvo/RibbonButton.h>
#include <nvo/RibbonCheckBox.h>
#include <nvo/RibbonGroup.h>
#include <nvo/RibbonLabel.h>

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
template <typename Base>
class ByAction : public Base
{
public:
    using Base::Base;

    QString text(QAccessible::Text type) const override
    {
        const QString own = QAccessibleWidget::text(type);
        const Action *action = ownAction();
        if (!action)
            return own;
        const bool hasMnemonic = qobject_cast<RibbonCheckBox *>(this->object());
        const QString name = spoken(action->text(), hasMnemonic);
        const QString help = spoken(action->toolTip(), false);
        switch (type) {
        case QAccessible::Name:
            return !own.isEmpty() ? own : name.isEmpty() ? help : name;
        case QAccessible::Description: // the tool tip of a control is a table of name and help
            if (!this->widget()->accessibleDescription().isEmpty())
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
        const QObject *owner = this->object();
        if (qobject_cast<const RibbonGroupButton *>(owner))
            owner = owner->parent();
        const auto *control = dynamic_cast<const RibbonControl *>(owner);
        return control ? control->action() : nullptr;
    }
};

/** The button of a group opens its popup. */
class AccessibleGroupButton : public ByAction<AccessibleButton>
{
public:
    using ByAction::ByAction;

    QAccessible::Role role() const override { return QAccessible::ButtonMenu; }

    QAccessible::State state() const override
    {
        const bool isOpen = static_cast<RibbonGroupButton *>(button())->isOpen();
        QAccessible::State state = ByAction::state();
        state.hasPopup = true;
        state.expandable = true;
        state.expanded = isOpen;
        state.collapsed = !isOpen;
        return state;
    }
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

QAccessibleInterface *createInterface(const QString &className, QObject *object)
{
    using StyleSupport::exactly;
    if (auto *button = exactly<RibbonButton>(className, object))
        return new ByAction<AccessibleButton>(button);
    if (auto *checkBox = exactly<RibbonCheckBox>(className, object))
        return new ByAction<AccessibleButton>(checkBox);
    if (auto *groupButton = exactly<RibbonGroupButton>(className, object))
        return new AccessibleGroupButton(groupButton);
    if (auto *label = exactly<RibbonLabel>(className, object))
        return new ByAction<QAccessibleWidget>(label, QAccessible::StaticText);
    if (auto *group = exactly<RibbonGroup>(className, object))
        return new ByAction<QAccessibleWidget>(group, QAccessible::Grouping);
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
