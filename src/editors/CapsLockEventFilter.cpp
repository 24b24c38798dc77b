#include <nvo/CapsLockEventFilter.h>

#include <QKeyEvent>

namespace NVO {

bool CapsLockEventFilter::eventFilter(QObject *object, QEvent *event)
{
    if (event->type() != QEvent::KeyPress)
        return QObject::eventFilter(object, event);
    if (static_cast<const QKeyEvent *>(event)->key() != Qt::Key_CapsLock)
        return false;
    Q_EMIT capsLockPressed();
    return true;
}

} // namespace NVO
