#include <nvo/KeyState.h>

#include <CoreGraphics/CoreGraphics.h>

namespace NVO {

bool KeyState::isCapsLockActive()
{
    return CGEventSourceFlagsState(kCGEventSourceStateCombinedSessionState) & kCGEventFlagMaskAlphaShift;
}

} // namespace NVO
