#include <nvo/KeyState.h>

namespace NVO {

bool KeyState::isCapsLockActive()
{
    return false;
}

} // namespace NVO
