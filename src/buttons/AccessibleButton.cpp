#include "buttons/AccessibleButton.h"

#include <QPushButton>
#include <QShortcut>

namespace NVO {

AccessibleButton::AccessibleButton(QAbstractButton *button)
    : QAccessibleWidget(button)
{}

QAbstractButton *AccessibleButton::button() const
{
    return static_cast<QAbstractButton *>(object());
}

QAccessible::Role AccessibleButton::role() const
{
    return button()->isCheckable() ? QAccessible::CheckBox : QAccessible::Button;
}

QAccessible::State AccessibleButton::state() const
{
    QAccessible::State state = QAccessibleWidget::state();
    state.checkable = button()->isCheckable();
    state.checked = button()->isChecked();
    state.pressed = button()->isDown();
    if (const auto *pushButton = qobject_cast<const QPushButton *>(button()))
        state.defaultButton = pushButton->isDefault();
    return state;
}

QString AccessibleButton::text(QAccessible::Text type) const
{
    const QString own = QAccessibleWidget::text(type);
    if (!own.isEmpty())
        return own;
    if (type == QAccessible::Name)
        return button()->text();
    if (type == QAccessible::Accelerator) {
        if (const auto *shortcut = button()->findChild<QShortcut *>())
            return shortcut->key().toString(QKeySequence::NativeText);
    }
    return QString();
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
        return toggleAction();
    default:
        return pressAction();
    }
}

} // namespace NVO
