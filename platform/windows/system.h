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

/// Counts a call of `function`, applies its delay, and returns the error with which it must fail, if any.
inline std::optional<DWORD> InjectedError(simulation::Machine& machine, std::string_view function) {
  return machine.OnCall({function}).error;
}

/// Closes a handle of the system beneath the machine. False without such a handle or such a system.
bool CloseSystemHandle(HANDLE handle);

/// Releases memory that the system beneath the machine allocated. False without such a system.
bool FreeSystemMemory(void* memory);

}  // namespace orvik::platform::windows
