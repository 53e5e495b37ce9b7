#pragma once

#include <windows.h>

#include <memory>

#include "simulation/machine/machine.h"

namespace orvik::platform::windows {

/// Notes a reference to a loaded library that a caller got, with the current machine as the one that counts it.
void KeepLibrary(HMODULE library);

/// Whether a caller holds a reference to the library.
bool HoldsLibrary(HMODULE library);

/// The machine that counted a reference which is given back now; null when the caller holds none.
std::shared_ptr<simulation::Machine> ReleaseLibrary(HMODULE library);

}  // namespace orvik::platform::windows
