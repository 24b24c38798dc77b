#include "buttons/AccessibleToggle.h"

#include "buttons/RadioToggleRadioButton.h"
#include "theme/StyleSupport.h"

#include <nvo/RadioToggle.h>

#include <QRegularExpression>

namespace NVO {

namespace {

QString withoutMnemonic(QString text)
{
    return text.replace(QRegularExpression(QStringLiteral("&(.)")), QStringLiteral("\\1"));
}

QAccessibleInterface *createInterface(const QString &className, QObject *object)
{
    if (auto *toggle = StyleSupport::exactly<AbstractToggle>(className, object))
        return new AccessibleToggle(toggle);
    if (auto *radio = dynamic_cast<RadioToggleRadioButton *>(object))
        return new QAccessibleWidget(radio, QAccessible::NoRole);
    return nullptr;
}

} // namespace

void AccessibleToggle::install()
{
    QAccessible::installFactory(createInterface);
}

AccessibleToggle::AccessibleToggle(AbstractToggle *toggle)
    : AccessibleButton(toggle)
{}

QAccessible::State AccessibleToggle::state() const
{
    QAccessible::State state = AccessibleButton::state();
    state.checkStateMixed = static_cast<QCheckBox *>(button())->checkState() == Qt::PartiallyChecked;
    return state;
}

QString AccessibleToggle::text(QAccessible::Text type) const
{
    QString own = AccessibleButton::text(type);
    if (type != QAccessible::Description || !button()->accessibleDescription().isEmpty())
        return own;
    return own.isEmpty() ? labels() : labels() + QLatin1Char('\n') + own;
}

/** The label of the on side comes first. */
QString AccessibleToggle::labels() const
{
    QString on = QStringLiteral("Ja");
    QString off = QStringLiteral("Nein");
    if (const auto *toggle = qobject_cast<const RadioToggle *>(button())) {
        on = withoutMnemonic(toggle->onText());
        off = withoutMnemonic(toggle->offText());
    }
    return QStringLiteral("%1 / %2").arg(on, off);
}

} // namespace NVO
