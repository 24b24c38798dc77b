#include "toolbars/AccessibleToolBarButton.h"

#include "theme/StyleSupport.h"

#include <nvo/ToolBarButton.h>

#include <QRegularExpression>

namespace NVO {

namespace {

/** On one line and without the marks of mnemonics; an "&" between words is none. */
QString spoken(QString text)
{
    text.replace(QLatin1String("<br>"), QLatin1String(" "));
    text.replace(QLatin1Char('\n'), QLatin1Char(' '));
    return text.replace(QRegularExpression(QStringLiteral("&(\\S)")), QStringLiteral("\\1"));
}

QAccessibleInterface *createInterface(const QString &className, QObject *object)
{
    auto *button = StyleSupport::exactly<ToolBarButton>(className, object);
    return button ? new AccessibleToolBarButton(button) : nullptr;
}

} // namespace

void AccessibleToolBarButton::install()
{
    QAccessible::installFactory(createInterface);
}

AccessibleToolBarButton::AccessibleToolBarButton(ToolBarButton *button)
    : AccessibleButton(button)
{}

ToolBarButton *AccessibleToolBarButton::toolButton() const
{
    return static_cast<ToolBarButton *>(object());
}

/** As Qt counts it: actions of its own beside the default one make a menu, too. */
bool AccessibleToolBarButton::hasMenu() const
{
    const ToolBarButton *button = toolButton();
    return button->menu() || button->actions().size() > (button->defaultAction() ? 1 : 0);
}

bool AccessibleToolBarButton::isMenuOnly() const
{
    return hasMenu() && toolButton()->popupMode() == QToolButton::InstantPopup;
}

QAccessible::Role AccessibleToolBarButton::role() const
{
    if (isMenuOnly())
        return QAccessible::ButtonMenu;
    return hasMenu() ? QAccessible::ButtonDropDown : AccessibleButton::role();
}

QAccessible::State AccessibleToolBarButton::state() const
{
    QAccessible::State state = AccessibleButton::state();
    state.hasPopup = hasMenu();
    return state;
}

QString AccessibleToolBarButton::text(QAccessible::Text type) const
{
    const ToolBarButton *button = toolButton();
    if (type == QAccessible::Name && button->accessibleName().isEmpty() && !button->text().isEmpty())
        return spoken(button->text());
    if (type != QAccessible::Description)
        return AccessibleButton::text(type);
    QStringList parts{button->badge(), AccessibleButton::text(type)};
    parts.removeAll(QString());
    return parts.join(QLatin1String(", "));
}

QStringList AccessibleToolBarButton::actionNames() const
{
    QStringList names = AccessibleButton::actionNames();
    if (hasMenu() && toolButton()->isEnabled() && !names.contains(showMenuAction()))
        names.insert(1, showMenuAction());
    return names;
}

void AccessibleToolBarButton::doAction(const QString &name)
{
    if (name != showMenuAction())
        AccessibleButton::doAction(name);
    else if (hasMenu() && toolButton()->isEnabled()) // a menu runs a loop of its own
        QMetaObject::invokeMethod(toolButton(), &QToolButton::showMenu, Qt::QueuedConnection);
}

} // namespace NVO
