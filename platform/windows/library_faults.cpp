#include "platform/windows/library_faults.h"

#include <string_view>

#include "platform/windows/failure.h"
#include "platform/windows/library_references.h"
#include "platform/windows/wide_text.h"
#include "simulation/machine/current_machine.h"
#include "simulation/text/fold_case.h"

namespace orvik::platform::windows {

namespace {

bool IsVendorLibrary(std::string_view path) {
  const std::size_t separator = path.find_last_of("\\/");
  const auto name = separator == std::string_view::npos ? path : path.substr(separator + 1);
  return simulation::FoldCase(name) == "storelib.dll";
}

// On Windows a function may also be looked for by its number, in place of the address of its name.
bool IsEntryPoint(LPCSTR name) {
  constexpr ULONG_PTR kLargestNumber = 0xFFFF;
  return reinterpret_cast<ULONG_PTR>(name) > kLargestNumber && std::string_view(name) == "ProcessLibCommand";
}

}  // namespace

std::optional<DWORD> LoadFailure(LPCWSTR path) {
  const auto machine = simulation::CurrentMachine();
  if (const auto error = InjectedError(*machine, "LoadLibraryW")) return error;
  const bool missing = machine->Storelib().Installation() == simulation::StorelibInstallation::Missing;
  if (missing && path != nullptr && IsVendorLibrary(ToUtf8(path))) return ERROR_MOD_NOT_FOUND;
  return std::nullopt;
}

std::optional<DWORD> SearchFailure(HMODULE library, LPCSTR name) {
  if (!HoldsLibrary(library)) return std::nullopt;
  const auto machine = simulation::CurrentMachine();
  if (const auto error = InjectedError(*machine, "GetProcAddress")) return error;
  const bool without = machine->Storelib().Installation() == simulation::StorelibInstallation::WithoutEntryPoint;
  if (without && IsEntryPoint(name)) return ERROR_PROC_NOT_FOUND;
  return std::nullopt;
}

}  // namespace orvik::platform::windows
