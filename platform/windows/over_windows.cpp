// On Windows itself: calls pass through to the system after the machine has counted them.

#include <windows.h>
#include <winternl.h>

#include <shlobj.h>

#include <array>
#include <bit>

#include "platform/windows/loaded_libraries.h"
#include "platform/windows/system.h"
#include "platform/windows/wide_text.h"
#include "simulation/machine/current_machine.h"

namespace windows = orvik::platform::windows;
namespace simulation = orvik::simulation;

extern "C" NTSTATUS NTAPI LdrGetProcedureAddress(PVOID library, PANSI_STRING name, ULONG number, PVOID* address);

namespace {

// The system's own GetProcAddress, from the loader: the name itself resolves to the function below.
decltype(&GetProcAddress) SystemSearch() {
  static const auto search = [] {
    ANSI_STRING name{};
    RtlInitAnsiString(&name, "GetProcAddress");
    PVOID address = nullptr;
    LdrGetProcedureAddress(GetModuleHandleW(L"kernel32.dll"), &name, 0, &address);
    return std::bit_cast<decltype(&GetProcAddress)>(address);
  }();
  return search;
}

/// The system's own function behind one of those below.
template <typename Function>
Function* SystemFunction(const char* name, Function* /*type*/, const wchar_t* library = L"kernel32.dll") {
  return std::bit_cast<Function*>(SystemSearch()(GetModuleHandleW(library), name));
}

// The stand-in has another name here, so that other programs cannot load it in place of the system's.
windows::WideString DpiLibraryPath() {
  static const char kInThisLibrary = 0;
  HMODULE self = nullptr;
  std::array<WCHAR, 4096> path{};
  constexpr DWORD kFlags = GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS | GET_MODULE_HANDLE_EX_FLAG_UNCHANGED_REFCOUNT;
  GetModuleHandleExW(kFlags, reinterpret_cast<LPCWSTR>(&kInThisLibrary), &self);
  const DWORD length = GetModuleFileNameW(self, path.data(), static_cast<DWORD>(path.size()));
  const windows::WideView name(path.data(), length);
  return windows::WideString(name.substr(0, name.rfind(L'\\') + 1)) + L"shcore_simulated.dll";
}

}  // namespace

// Programs that link this library before the system's close all of their handles here.
bool windows::CloseSystemHandle(HANDLE handle) {
  static auto* const system = SystemFunction("CloseHandle", &CloseHandle);
  return system(handle) != FALSE;
}

bool windows::FreeSystemMemory(void* memory) {
  static auto* const system = SystemFunction("CoTaskMemFree", &CoTaskMemFree, L"ole32.dll");
  if (system != nullptr) system(memory);
  return system != nullptr;
}

DWORD_PTR WINAPI SetThreadAffinityMask(HANDLE thread, DWORD_PTR mask) {
  const auto machine = simulation::CurrentMachine();
  machine->Ledger().RecordAffinityRequest(mask);
  if (const auto error = windows::InjectedError(*machine, "SetThreadAffinityMask")) {
    SetLastError(*error);
    return 0;
  }
  static auto* const system = SystemFunction("SetThreadAffinityMask", &SetThreadAffinityMask);
  return system(thread, mask);
}

HMODULE WINAPI LoadLibraryW(LPCWSTR path) {
  const auto machine = simulation::CurrentMachine();
  const auto fail = [](DWORD error) -> HMODULE {
    SetLastError(error);
    return nullptr;
  };
  if (const auto error = windows::LoadFailure(path)) return fail(*error);
  windows::WideString standIn;
  if (path != nullptr && windows::IsDpiLibrary(windows::ToUtf8(path))) {
    if (!machine->Desktop().State().dpiLibrary) return fail(ERROR_MOD_NOT_FOUND);
    standIn = DpiLibraryPath();
    path = standIn.c_str();
  }
  static auto* const system = SystemFunction("LoadLibraryW", &LoadLibraryW);
  const HMODULE library = system(path);
  if (library != nullptr) windows::KeepLibrary(library);
  return library;
}

FARPROC WINAPI GetProcAddress(HMODULE library, LPCSTR name) {
  if (const auto error = windows::SearchFailure(library, name)) {
    SetLastError(*error);
    return nullptr;
  }
  return SystemSearch()(library, name);
}

BOOL WINAPI FreeLibrary(HMODULE library) {
  const auto machine = windows::ReleaseLibrary(library);
  if (machine == nullptr) {
    simulation::CurrentMachine()->Ledger().InvalidRelease(simulation::Resource::Library);
    return windows::Fail(ERROR_MOD_NOT_FOUND);
  }
  machine->Ledger().Return(simulation::Resource::Library);
  static auto* const system = SystemFunction("FreeLibrary", &FreeLibrary);
  return system(library);
}
