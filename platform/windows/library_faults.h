#pragma once

#include <windows.h>

#include <optional>

namespace orvik::platform::windows {

/// Counts a call of LoadLibraryW and tells with which error the machine wants it to fail, if so: also because it is a
/// machine without the vendor's library.
std::optional<DWORD> LoadFailure(LPCWSTR path);

/// The same for a call of GetProcAddress. What is looked for in libraries that nobody has loaded through
/// LoadLibraryW, as run-time libraries do in the system's, is not the machine's business.
std::optional<DWORD> SearchFailure(HMODULE library, LPCSTR name);

}  // namespace orvik::platform::windows
