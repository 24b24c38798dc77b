#include <nvo/AbstractToggle.h>

#include "buttons/AccessibleToggle.h"

#include <QEvent>
#include <QPointer>
#include <QSignalBlocker>

namespace NVO {

AbstractToggle::AbstractToggle(QWidget *parent)
    : QCheckBox(parent)
{
    AccessibleToggle::install();
    setFocusPolicy(Qt::StrongFocus);
    setCursor(Qt::PointingHandCursor);
    connect(this, &AbstractToggle::pressed, this, &AbstractToggle::updateState);
    connect(this, &AbstractToggle::released, this, &AbstractToggle::updateState);
}

void AbstractToggle::enterEvent(QEvent *event)
{
    QCheckBox::enterEvent(event);
    updateState();
}

void AbstractToggle::leaveEvent(QEvent *event)
{
    QCheckBox::leaveEvent(event);
    updateState();
}

void AbstractToggle::focusInEvent(QFocusEvent *event)
{
    QCheckBox::focusInEvent(event);
    updateState();
}

void AbstractToggle::focusOutEvent(QFocusEvent *event)
{
    const QPointer<AbstractToggle> alive(this);
    QCheckBox::focusOutEvent(event); // releases a button that is held down
    if (alive)
        updateState();
}

void AbstractToggle::changeEvent(QEvent *event)
{
    const QPointer<AbstractToggle> alive(this);
    QCheckBox::changeEvent(event); // releases a button that is held down and gets disabled
    const bool concerns =          // a disabled toggle does not hover, the raised half changes sides
        event->type() == QEvent::EnabledChange || event->type() == QEvent::LayoutDirectionChange;
    if (alive && concerns)
        updateState();
}

/** Emits toggled() last: QCheckBox goes on after it even if a slot has deleted the toggle. */
void AbstractToggle::nextCheckState()
{
    if (isTristate() || group()) {
        QCheckBox::nextCheckState();
        return;
    }
    const QPointer<AbstractToggle> alive(this);
    const bool before = isChecked();
    {
        const QSignalBlocker blocker(this);
        QAbstractButton::nextCheckState(); // NOLINT(bugprone-parent-virtual-call)
    }
    if (isChecked() != before)
        Q_EMIT toggled(!before);
    if (alive)
        checkStateSet();
}

void AbstractToggle::updateState()
{
    QString state;
    if (isDown())
        state = QStringLiteral("pressed");
    else if (underMouse() && isEnabled())
        state = hasFocus() ? QStringLiteral("hoverfocus") : QStringLiteral("hover");
    else if (hasFocus())
        state = QStringLiteral("focus");
    applyState(state);
}

} // namespace NVO
