#pragma once

// What the functions of the Windows API share: how they fail, and the system beneath the machine, if any.

#include <windows.h>

#include <optional>
#include <string_view>

#include "simulation/machine/machine.h"

namespace orvik::platform::windows {

/// Sets the last error; the FALSE of a function that failed.
inline BOOL Fail(DWORD error) {
  SetLastError(error);
  return FALSE;
}

/// Counts a call of `function`, which may take its time, and tells with which error the machine wants it to fail, if
/// so.
inline std::optional<DWORD> InjectedError(simulation::Machine& machine, std::string_view function) {
  return machine.OnCall({function}).error;
}

/// Closes a handle that is not the machine's but the system's own. False where there is no such handle, or no such
/// system.
bool CloseSystemHandle(HANDLE handle);

/// Releases memory that the system itself handed out. False where there is no such system.
bool FreeSystemMemory(void* memory);

}  // namespace orvik::platform::windows
