#pragma once

#include <nvo/Export.h>

#include <QObject>

#include <initializer_list>

namespace NVO {

/**
 * An event filter that turns some keys into signals, whatever modifiers are held with them.
 *
 * The application installs it on widgets of its own, as many as it likes, with QObject::installEventFilter().
 * The presses of these keys, repeated ones too, do not reach those widgets; all other events do. The filter
 * has no owner at first. It may be deleted in answer to one of its signals; those that would follow then stay
 * away.
 */
class NVO_EXPORT KeyEventFilter : public QObject
{
    Q_OBJECT

public:
    KeyEventFilter() = default;

    bool eventFilter(QObject *object, QEvent *event) override;

Q_SIGNALS:
    void function3Pressed();
    /** F3, Return or Enter; comes last. */
    void searchKeyPressed();
    /** The key of the main block. */
    void returnPressed();
    /** The key of the number block. */
    void enterPressed();
    /** Comes after the signal of the one that it was. */
    void returnOrEnterPressed();
    void escapePressed();
    /** Whether the lock is on is known to KeyState, by some systems only after the press. */
    void capsLockPressed();

private:
    bool emitAll(std::initializer_list<void (KeyEventFilter::*)()> signalList);
};

} // namespace NVO
