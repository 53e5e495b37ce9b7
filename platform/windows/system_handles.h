#pragma once

#include <windows.h>

namespace orvik::platform::windows {

/// Closes a handle that is not the machine's but the system's own. False where there is no such handle, or no such
/// system.
bool CloseSystemHandle(HANDLE handle);

/// Releases memory that the system itself handed out. False where there is no such system.
bool FreeSystemMemory(void* memory);

}  // namespace orvik::platform::windows
