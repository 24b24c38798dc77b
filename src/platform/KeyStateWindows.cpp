#include <nvo/KeyState.h>

#include <windows.h>

namespace NVO {

bool KeyState::isCapsLockActive()
{
    return GetKeyState(VK_CAPITAL) & 1;
}

} // namespace NVO
