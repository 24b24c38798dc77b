#include "KeytipDriver.h"

#include <nvo/Ribbon.h>

#include <QApplication>
#include <QKeyEvent>

KeytipDriver::KeytipDriver(NVO::Ribbon *ribbon)
    : QObject(ribbon)
    , m_ribbon(ribbon)
{
    qApp->installEventFilter(this);
}

/**
 * An event passes here once for the window and once for each widget on its way up. That does no harm: what is
 * not taken only sets or clears the mark for Alt.
 */
bool KeytipDriver::eventFilter(QObject *, QEvent *event)
{
    switch (event->type()) {
    case QEvent::ShortcutOverride: // all that is seen of a key that is a shortcut
        watchAlt(*static_cast<QKeyEvent *>(event));
        return false;
    case QEvent::KeyPress:
        watchAlt(*static_cast<QKeyEvent *>(event));
        return keyPressed(*static_cast<QKeyEvent *>(event));
    case QEvent::KeyRelease: {
        const auto *key = static_cast<QKeyEvent *>(event);
        if (key->key() == Qt::Key_Alt && !key->isAutoRepeat())
            altReleased();
        return false;
    }
    case QEvent::MouseButtonPress:
        m_altAlone = false;
        if (isShowing() && isInFront())
            leave();
        return false;
    case QEvent::Wheel:
    case QEvent::WindowDeactivate:
        m_altAlone = false;
        return false;
    default:
        return false;
    }
}

void KeytipDriver::watchAlt(const QKeyEvent &event)
{
    if (event.key() != Qt::Key_Alt)
        m_altAlone = false;
    else if (!event.isAutoRepeat())
        m_altAlone = (event.modifiers() & ~Qt::AltModifier) == 0;
}

void KeytipDriver::altReleased()
{
    if (!m_altAlone || !isInFront())
        return;
    m_altAlone = false;
    if (isShowing())
        leave();
    else
        m_ribbon->toggleKeyfocus();
}

bool KeytipDriver::keyPressed(const QKeyEvent &event)
{
    constexpr Qt::KeyboardModifiers combining = Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier;
    if (!isInFront() || (event.modifiers() & combining))
        return false;
    if (event.key() == Qt::Key_Escape && (isShowing() || hasFocus())) {
        leave();
        return true;
    }
    const QString text = event.text();
    if (!isShowing() || text.isEmpty() || !text.at(0).isLetterOrNumber())
        return false;
    if (!event.isAutoRepeat()) // a key held down chooses once
        choose(text);
    return true;
}

void KeytipDriver::choose(const QString &key)
{
    if (m_ribbon->areKeytipsVisible()) {
        // The file tab is a command: there is nothing more to choose.
        if (m_ribbon->selectTabByKey(key) && !m_ribbon->areControlKeytipsVisible())
            leave();
        return;
    }
    m_ribbon->selectControlByKey(key, true, false);
    // The popup of a collapsed group goes on by itself.
    if (!QApplication::activePopupWidget())
        m_ribbon->setOutsideFocusWidget();
}

void KeytipDriver::leave()
{
    m_ribbon->hideKeytips();
    m_ribbon->setOutsideFocusWidget();
}

bool KeytipDriver::isShowing() const
{
    return m_ribbon->areKeytipsVisible() || m_ribbon->areControlKeytipsVisible();
}

bool KeytipDriver::hasFocus() const
{
    const QWidget *focused = QApplication::focusWidget();
    return focused && NVO::Ribbon::findRibbon(focused) == m_ribbon;
}

bool KeytipDriver::isInFront() const
{
    return m_ribbon->window()->isActiveWindow() && !QApplication::activePopupWidget()
           && !QApplication::activeModalWidget();
}
