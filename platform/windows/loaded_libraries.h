#pragma once

// The libraries that programs load through the machine: who holds them, and which calls fail.

#include <windows.h>

#include <memory>
#include <optional>
#include <string_view>

#include "simulation/identifiers.h"
#include "simulation/machine/machine.h"

namespace orvik::platform::windows {

/// Notes a reference to a loaded library that a caller got, with the current machine as the one that counts it.
void KeepLibrary(HMODULE library);

/// Whether a caller holds a reference to the library.
bool HoldsLibrary(HMODULE library);

/// The machine that counted a reference which is given back now; null when the caller holds none.
std::shared_ptr<simulation::Machine> ReleaseLibrary(HMODULE library);

/// Counts a call of LoadLibraryW and tells with which error the machine wants it to fail, if so: also because it is a
/// machine without the vendor's library.
std::optional<DWORD> LoadFailure(LPCWSTR path);

/// The same for a call of GetProcAddress. What is looked for in libraries that nobody has loaded through
/// LoadLibraryW, as run-time libraries do in the system's, is not the machine's business.
std::optional<DWORD> SearchFailure(HMODULE library, LPCSTR name);

/// True for the name by which programs load the system's library for monitor DPI, letters of either case. Its
/// stand-in lies beside this library; a machine may be without.
inline bool IsDpiLibrary(std::string_view name) {
  return simulation::FoldCase(name) == "shcore.dll";
}

}  // namespace orvik::platform::windows
