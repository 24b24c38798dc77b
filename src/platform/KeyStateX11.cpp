#include <nvo/KeyState.h>

#include <QGuiApplication>

#include <qpa/qplatformnativeinterface.h>

// The last one, because it defines common words as macros.
#include <X11/XKBlib.h>

namespace NVO {

namespace {

/** The connection of Qt to the X server; null on other platforms, which must not be asked for it. */
Display *xDisplay()
{
    if (QGuiApplication::platformName() != QLatin1String("xcb"))
        return nullptr;
    return static_cast<Display *>(
        QGuiApplication::platformNativeInterface()->nativeResourceForIntegration("display"));
}

} // namespace

bool KeyState::isCapsLockActive()
{
    Display *display = xDisplay();
    XkbStateRec state;
    return display && XkbGetState(display, XkbUseCoreKbd, &state) == Success && state.locked_mods & LockMask;
}

} // namespace NVO
