#pragma once

// The libraries that programs load through the machine: who holds them, and which calls fail.

#include <windows.h>

#include <memory>
#include <optional>
#include <string_view>

#include "simulation/identifiers.h"
#include "simulation/machine/machine.h"

namespace orvik::platform::windows {

/// Records a reference that a caller got to a loaded library, and counts it in the current machine.
void KeepLibrary(HMODULE library);

/// Whether a caller holds a reference to the library.
bool HoldsLibrary(HMODULE library);

/// Drops a reference and returns the machine that counted it; null when the caller holds none.
std::shared_ptr<simulation::Machine> ReleaseLibrary(HMODULE library);

/// Counts a call of LoadLibraryW. Returns the error with which it must fail, by a fault or because the machine lacks
/// the vendor's library.
std::optional<DWORD> LoadFailure(LPCWSTR path);

/// The same for a call of GetProcAddress. Searches in libraries that were not loaded through LoadLibraryW, such as
/// those of the run-time library in the system's, are not counted.
std::optional<DWORD> SearchFailure(HMODULE library, LPCSTR name);

/// True for the name by which programs load the system's library for monitor DPI, in any case. Its stand-in
/// lies beside this library; a machine may lack it.
inline bool IsDpiLibrary(std::string_view name) {
  return simulation::FoldCase(name) == "shcore.dll";
}

}  // namespace orvik::platform::windows
