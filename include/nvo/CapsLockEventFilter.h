#pragma once

#include <nvo/Export.h>

#include <QObject>

namespace NVO {

/**
 * An event filter that turns presses of the caps-lock key into a signal and keeps them from the widgets on
 * which the application installs it. All other events reach those. The filter has no owner at first.
 */
class NVO_EXPORT CapsLockEventFilter : public QObject
{
    Q_OBJECT

public:
    CapsLockEventFilter() = default;

    bool eventFilter(QObject *object, QEvent *event) override;

Q_SIGNALS:
    /** Whether the lock is on is known to KeyState, by some systems only after the press. */
    void capsLockPressed();
};

} // namespace NVO
