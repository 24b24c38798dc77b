#include "buttons/AccessibleButton.h"

#include "theme/StyleSupport.h"

#include <nvo/AbstractButton.h>

#include <QShortcut>
#include <QTextDocument>
#include <QTextDocumentFragment>

namespace NVO {

namespace {

QAccessibleInterface *createInterface(const QString &className, QObject *object)
{
    auto *button = StyleSupport::exactly<AbstractButton>(className, object);
    return button ? new AccessibleButton(button) : nullptr;
}

} // namespace

void AccessibleButton::install()
{
    QAccessible::installFactory(createInterface);
}

AccessibleButton::AccessibleButton(QAbstractButton *button)
    : QAccessibleWidget(button)
{}

QAbstractButton *AccessibleButton::button() const
{
    return static_cast<QAbstractButton *>(object());
}

QAccessible::Role AccessibleButton::role() const
{
    if (menu())
        return QAccessible::ButtonMenu;
    if (button()->isCheckable())
        return button()->autoExclusive() ? QAccessible::RadioButton : QAccessible::CheckBox;
    return QAccessible::Button;
}

QAccessible::State AccessibleButton::state() const
{
    QAccessible::State state = QAccessibleWidget::state();
    state.checkable = button()->isCheckable();
    state.checked = button()->isChecked();
    state.pressed = button()->isDown();
    state.hasPopup = menu() != nullptr;
    if (const auto *pushButton = qobject_cast<const QPushButton *>(button()))
        state.defaultButton = pushButton->isDefault();
    return state;
}

QString AccessibleButton::text(QAccessible::Text type) const
{
    const QString own = QAccessibleWidget::text(type);
    switch (type) {
    case QAccessible::Name:
        return !own.isEmpty() ? own : !button()->text().isEmpty() ? button()->text() : toolTip();
    case QAccessible::Description: // by the tool tip, which does not repeat the name
        if (!button()->accessibleDescription().isEmpty())
            return own;
        return toolTip() == text(QAccessible::Name) ? QString() : toolTip();
    case QAccessible::Accelerator: {
        const auto *shortcut = button()->findChild<QShortcut *>(QString(), Qt::FindDirectChildrenOnly);
        return (shortcut ? shortcut->key() : button()->shortcut()).toString(QKeySequence::NativeText);
    }
    default:
        return own;
    }
}

/** The tool tip without markup. */
QString AccessibleButton::toolTip() const
{
    const QString text = button()->toolTip();
    return Qt::mightBeRichText(text) ? QTextDocumentFragment::fromHtml(text).toPlainText() : text;
}

QMenu *AccessibleButton::menu() const
{
    const auto *pushButton = qobject_cast<const QPushButton *>(button());
    return pushButton ? pushButton->menu() : nullptr;
}

QStringList AccessibleButton::actionNames() const
{
    const QStringList names = QAccessibleWidget::actionNames();
    return button()->isEnabled() ? QStringList(clickAction()) + names : names;
}

void AccessibleButton::doAction(const QString &name)
{
    if (name != clickAction())
        QAccessibleWidget::doAction(name);
    else if (button()->isEnabled() && menu())
        static_cast<QPushButton *>(button())->showMenu();
    else if (button()->isEnabled())
        button()->animateClick();
}

QStringList AccessibleButton::keyBindingsForAction(const QString &name) const
{
    const QString keys = text(QAccessible::Accelerator);
    return name == clickAction() && !keys.isEmpty() ? QStringList(keys) : QStringList();
}

QString AccessibleButton::clickAction() const
{
    switch (role()) {
    case QAccessible::ButtonMenu:
        return showMenuAction();
    case QAccessible::CheckBox:
    case QAccessible::RadioButton:
        return toggleAction();
    default:
        return pressAction();
    }
}

} // namespace NVO
