#pragma once

#include <string_view>

#include "simulation/machine/machine.h"
#include "simulation/text/fold_case.h"

namespace orvik::platform::windows {

/// True for the name by which programs load the system's library for monitor DPI, letters of either case. Its
/// stand-in lies beside this library; a machine may be without.
inline bool IsDpiLibrary(std::string_view name) {
  return simulation::FoldCase(name) == "shcore.dll";
}

}  // namespace orvik::platform::windows
