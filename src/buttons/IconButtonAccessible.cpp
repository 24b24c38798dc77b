#include "buttons/IconButtonAccessible.h"

#include <nvo/IconButton.h>

#include <QAccessibleWidget>
#include <QTextDocument>
#include <QTextDocumentFragment>

namespace NVO::IconButtonAccessible {

namespace {

QString plainText(const QString &text)
{
    return Qt::mightBeRichText(text) ? QTextDocumentFragment::fromHtml(text).toPlainText() : text;
}

/** Qt's own interface of a push button cannot be derived from. */
class AccessibleIconButton : public QAccessibleWidget
{
public:
    explicit AccessibleIconButton(IconButton *button)
        : QAccessibleWidget(button)
    {}

    QAccessible::Role role() const override
    {
        if (button()->menu())
            return QAccessible::ButtonMenu;
        if (button()->isCheckable())
            return button()->autoExclusive() ? QAccessible::RadioButton : QAccessible::CheckBox;
        return QAccessible::Button;
    }

    QAccessible::State state() const override
    {
        QAccessible::State state = QAccessibleWidget::state();
        state.checkable = button()->isCheckable();
        state.checked = button()->isChecked();
        state.pressed = button()->isDown();
        state.hasPopup = button()->menu() != nullptr;
        state.defaultButton = button()->isDefault();
        return state;
    }

    QString text(QAccessible::Text type) const override
    {
        const QString toolTip = plainText(button()->toolTip());
        switch (type) {
        case QAccessible::Name:
            if (!button()->accessibleName().isEmpty())
                return button()->accessibleName();
            return button()->text().isEmpty() ? toolTip : button()->text();
        case QAccessible::Description: // does not repeat the name
            if (!button()->accessibleDescription().isEmpty())
                return button()->accessibleDescription();
            return toolTip == text(QAccessible::Name) ? QString() : toolTip;
        case QAccessible::Accelerator:
            return button()->shortcut().toString(QKeySequence::NativeText);
        default:
            return QAccessibleWidget::text(type);
        }
    }

    QStringList actionNames() const override
    {
        const QStringList names = QAccessibleWidget::actionNames();
        return button()->isEnabled() ? QStringList(mainAction()) + names : names;
    }

    void doAction(const QString &name) override
    {
        if (name != mainAction())
            QAccessibleWidget::doAction(name);
        else if (button()->isEnabled())
            button()->menu() ? button()->showMenu() : button()->animateClick();
    }

    QStringList keyBindingsForAction(const QString &name) const override
    {
        const QString shortcut = text(QAccessible::Accelerator);
        return name == mainAction() && !shortcut.isEmpty() ? QStringList(shortcut) : QStringList();
    }

private:
    IconButton *button() const { return static_cast<IconButton *>(object()); }

    QString mainAction() const
    {
        if (button()->menu())
            return showMenuAction();
        return button()->isCheckable() ? toggleAction() : pressAction();
    }
};

QAccessibleInterface *createInterface(const QString &, QObject *object)
{
    auto *button = qobject_cast<IconButton *>(object);
    return button ? new AccessibleIconButton(button) : nullptr;
}

} // namespace

void install()
{
    QAccessible::installFactory(createInterface);
}

} // namespace NVO::IconButtonAccessible
