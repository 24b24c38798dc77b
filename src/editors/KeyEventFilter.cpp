#include <nvo/KeyEventFilter.h>

#include <QKeyEvent>
#include <QPointer>

namespace NVO {

bool KeyEventFilter::eventFilter(QObject *object, QEvent *event)
{
    if (event->type() != QEvent::KeyPress)
        return QObject::eventFilter(object, event);
    switch (static_cast<const QKeyEvent *>(event)->key()) {
    case Qt::Key_Escape:
        return emitAll({&KeyEventFilter::escapePressed});
    case Qt::Key_Return:
        return emitAll({&KeyEventFilter::returnPressed, &KeyEventFilter::returnOrEnterPressed,
                        &KeyEventFilter::searchKeyPressed});
    case Qt::Key_Enter:
        return emitAll({&KeyEventFilter::enterPressed, &KeyEventFilter::returnOrEnterPressed,
                        &KeyEventFilter::searchKeyPressed});
    case Qt::Key_CapsLock:
        return emitAll({&KeyEventFilter::capsLockPressed});
    case Qt::Key_F3:
        return emitAll({&KeyEventFilter::function3Pressed, &KeyEventFilter::searchKeyPressed});
    default:
        return false;
    }
}

/** Emits the signals in their order. Returns true: the key has been consumed. */
bool KeyEventFilter::emitAll(std::initializer_list<void (KeyEventFilter::*)()> signalList)
{
    const QPointer<KeyEventFilter> alive(this);
    for (const auto signal : signalList) {
        if (alive)
            Q_EMIT(this->*signal)();
    }
    return true;
}

} // namespace NVO
