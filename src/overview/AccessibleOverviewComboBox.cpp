#include "overview/AccessibleOverviewComboBox.h"

#include "theme/StyleSupport.h"

#include <nvo/OverviewComboBox.h>

#include <QAbstractItemView>
#include <QAccessibleWidget>
#include <QLineEdit>

namespace NVO::AccessibleOverviewComboBox {

namespace {

class ComboBoxInterface : public QAccessibleWidget
{
public:
    explicit ComboBoxInterface(OverviewComboBox *comboBox)
        : QAccessibleWidget(comboBox, QAccessible::ComboBox)
    {}

    /** The list, whose rows tell their own names, and what is written in. */
    int childCount() const override { return comboBox()->isEditable() ? 2 : 1; }

    QAccessibleInterface *child(int index) const override
    {
        if (index == 0)
            return QAccessible::queryAccessibleInterface(comboBox()->view());
        const bool isLineEdit = index == 1 && comboBox()->isEditable();
        return isLineEdit ? QAccessible::queryAccessibleInterface(comboBox()->lineEdit()) : nullptr;
    }

    int indexOfChild(const QAccessibleInterface *child) const override
    {
        if (!child || !child->object())
            return -1;
        if (child->object() == comboBox()->view())
            return 0;
        return child->object() == comboBox()->lineEdit() ? 1 : -1;
    }

    QString text(QAccessible::Text type) const override
    {
        const QString own = QAccessibleWidget::text(type);
        if (type == QAccessible::Value || (type == QAccessible::Name && own.isEmpty()))
            return ofCurrent(Qt::AccessibleTextRole);
        const bool isDescribed = !comboBox()->accessibleDescription().isEmpty();
        return type == QAccessible::Description && !isDescribed ? ofCurrent(Qt::AccessibleDescriptionRole)
                                                                : own;
    }

    QAccessible::State state() const override
    {
        const bool isOpen = comboBox()->view()->isVisible();
        QAccessible::State state = QAccessibleWidget::state();
        state.hasPopup = true;
        state.expandable = true;
        state.expanded = isOpen;
        state.collapsed = !isOpen;
        return state;
    }

    QStringList actionNames() const override
    {
        return QAccessibleWidget::actionNames() << showMenuAction() << pressAction();
    }

    void doAction(const QString &name) override
    {
        if (name != showMenuAction() && name != pressAction())
            QAccessibleWidget::doAction(name);
        else if (comboBox()->view()->isVisible())
            comboBox()->hidePopup();
        else if (comboBox()->isEnabled())
            comboBox()->showPopup();
    }

private:
    OverviewComboBox *comboBox() const { return static_cast<OverviewComboBox *>(object()); }

    QString ofCurrent(int role) const { return comboBox()->currentData(role).toString(); }
};

QAccessibleInterface *createInterface(const QString &className, QObject *object)
{
    auto *comboBox = StyleSupport::exactly<OverviewComboBox>(className, object);
    return comboBox ? new ComboBoxInterface(comboBox) : nullptr;
}

} // namespace

void install()
{
    QAccessible::installFactory(createInterface);
}

} // namespace NVO::AccessibleOverviewComboBox
