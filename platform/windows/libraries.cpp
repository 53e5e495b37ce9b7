// Dynamic libraries, over the platform's own loader. A module handle is the loader's record of the library.

#include <windows.h>
#include <dlfcn.h>
#include <link.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <bit>
#include <string>

#include "platform/windows/loaded_libraries.h"
#include "platform/windows/system.h"
#include "platform/windows/wide_text.h"
#include "simulation/machine/current_machine.h"

namespace windows = orvik::platform::windows;
namespace simulation = orvik::simulation;

namespace {

HMODULE Keep(void* loaded) {
  const auto library = std::bit_cast<HMODULE>(loaded);
  windows::KeepLibrary(library);
  return library;
}

// The loader's record of the library that holds `address`.
link_map* LibraryAt(const void* address) {
  Dl_info info{};
  link_map* library = nullptr;
  // The loader's interface hands its record out through a pointer to void.
  void** extra = reinterpret_cast<void**>(&library);
  return dladdr1(address, &info, extra, RTLD_DL_LINKMAP) == 0 ? nullptr : library;
}

std::string ProgramPath() {
  std::array<char, 4096> path{};
  const ssize_t length = readlink("/proc/self/exe", path.data(), path.size());
  return {path.data(), length > 0 ? static_cast<std::size_t>(length) : 0};
}

// The program itself has no name in the loader's records.
std::string PathOf(HMODULE library) {
  const std::string path = library == nullptr ? "" : std::bit_cast<const link_map*>(library)->l_name;
  return path.empty() ? ProgramPath() : path;
}

// Empty when the machine's system does not have the library.
std::string DpiLibraryPath(simulation::Machine& machine) {
  static const char kInThisLibrary = 0;
  if (!machine.Desktop().State().dpiLibrary) return {};
  const std::string self = PathOf(std::bit_cast<HMODULE>(LibraryAt(&kInThisLibrary)));
  return self.substr(0, self.rfind('/') + 1) + "shcore.dll";
}

}  // namespace

HMODULE WINAPI LoadLibraryW(LPCWSTR path) {
  const auto fail = [](DWORD error) -> HMODULE {
    SetLastError(error);
    return nullptr;
  };
  if (path == nullptr) return fail(ERROR_INVALID_PARAMETER);
  if (const auto error = windows::LoadFailure(path)) return fail(*error);
  std::string name = windows::ToUtf8(path);
  std::ranges::replace(name, '\\', '/');
  if (windows::IsDpiLibrary(name)) name = DpiLibraryPath(*simulation::CurrentMachine());
  void* loaded = name.empty() ? nullptr : dlopen(name.c_str(), RTLD_NOW | RTLD_LOCAL);
  return loaded == nullptr ? fail(ERROR_MOD_NOT_FOUND) : Keep(loaded);
}

FARPROC WINAPI GetProcAddress(HMODULE library, LPCSTR name) {
  if (const auto error = windows::SearchFailure(library, name)) {
    SetLastError(*error);
    return nullptr;
  }
  void* address = library == nullptr || name == nullptr ? nullptr : dlsym(std::bit_cast<void*>(library), name);
  if (address == nullptr) SetLastError(ERROR_PROC_NOT_FOUND);
  return std::bit_cast<FARPROC>(address);
}

BOOL WINAPI FreeLibrary(HMODULE library) {
  const auto machine = windows::ReleaseLibrary(library);
  if (machine == nullptr) {
    simulation::CurrentMachine()->Ledger().InvalidRelease(simulation::Resource::Library);
    return windows::Fail(ERROR_MOD_NOT_FOUND);
  }
  machine->Ledger().Return(simulation::Resource::Library);
  return dlclose(std::bit_cast<void*>(library)) == 0 ? TRUE : windows::Fail(ERROR_MOD_NOT_FOUND);
}

BOOL WINAPI GetModuleHandleExW(DWORD flags, LPCWSTR nameOrAddress, HMODULE* library) {
  if (library == nullptr) return windows::Fail(ERROR_INVALID_PARAMETER);
  *library = nullptr;
  if ((flags & GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS) == 0) return windows::Fail(ERROR_MOD_NOT_FOUND);
  const link_map* found = LibraryAt(nameOrAddress);
  if (found == nullptr) return windows::Fail(ERROR_MOD_NOT_FOUND);
  *library = std::bit_cast<HMODULE>(found);
  if ((flags & GET_MODULE_HANDLE_EX_FLAG_UNCHANGED_REFCOUNT) != 0) return TRUE;
  void* loaded = dlopen(found->l_name, RTLD_NOW | RTLD_NOLOAD);
  if (loaded == nullptr) return windows::Fail(ERROR_MOD_NOT_FOUND);
  *library = Keep(loaded);
  return TRUE;
}

DWORD WINAPI GetModuleFileNameW(HMODULE library, LPWSTR path, DWORD size) {
  const windows::WideString name = windows::ToWide(PathOf(library));
  if (path == nullptr || size == 0) {
    SetLastError(ERROR_INSUFFICIENT_BUFFER);
    return 0;
  }
  const std::size_t length = std::min<std::size_t>(name.size(), size - 1);
  std::copy_n(name.begin(), length, path);
  path[length] = 0;
  if (length == name.size()) return static_cast<DWORD>(length);
  SetLastError(ERROR_INSUFFICIENT_BUFFER);
  return size;
}
