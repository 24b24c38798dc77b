#pragma once

#include <nvo/Export.h>

namespace NVO {

/** What the window system knows of the keyboard. */
class NVO_EXPORT KeyState
{
public:
    /**
     * Whether caps lock is on, which is not whether its key is held down. Needs no focus. False where the
     * window system does not tell: on Wayland, without a window system, and in a build without X11.
     */
    static bool isCapsLockActive();
};

} // namespace NVO
