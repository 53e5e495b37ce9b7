#pragma once

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

}  // namespace orvik::platform::windows
