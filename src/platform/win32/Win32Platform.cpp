#include "platform/win32/Win32Platform.h"

namespace platform::win32 {

// Members are built in order, so the platform is complete before it is installed, and the
// installation ends before any part goes away.
Win32Platform::Win32Platform() = default;

Win32Platform::~Win32Platform() = default;

}  // namespace platform::win32
