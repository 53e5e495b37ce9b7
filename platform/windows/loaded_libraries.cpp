#include "platform/windows/loaded_libraries.h"

#include <map>
#include <mutex>
#include <string_view>
#include <utility>
#include <vector>

#include "platform/windows/system.h"
#include "platform/windows/wide_text.h"
#include "simulation/identifiers.h"
#include "simulation/machine/current_machine.h"

namespace orvik::platform::windows {

namespace {

// The references that callers hold, each with the machine that counts it.
struct References {
  std::mutex mutex;
  std::map<HMODULE, std::vector<std::shared_ptr<simulation::Machine>>> held;
};

References& TheReferences() {
  static References& references = *new References;
  return references;
}

bool IsVendorLibrary(std::string_view path) {
  const std::size_t separator = path.find_last_of("\\/");
  const auto name = separator == std::string_view::npos ? path : path.substr(separator + 1);
  return simulation::FoldCase(name) == "storelib.dll";
}

// On Windows `name` may also be the function's number.
bool IsEntryPoint(LPCSTR name) {
  constexpr ULONG_PTR kLargestNumber = 0xFFFF;
  return reinterpret_cast<ULONG_PTR>(name) > kLargestNumber && std::string_view(name) == "ProcessLibCommand";
}

}  // namespace

void KeepLibrary(HMODULE library) {
  auto machine = simulation::CurrentMachine();
  machine->Ledger().Take(simulation::Resource::Library);
  const std::scoped_lock lock(TheReferences().mutex);
  TheReferences().held[library].push_back(std::move(machine));
}

bool HoldsLibrary(HMODULE library) {
  const std::scoped_lock lock(TheReferences().mutex);
  return TheReferences().held.contains(library);
}

std::shared_ptr<simulation::Machine> ReleaseLibrary(HMODULE library) {
  const std::scoped_lock lock(TheReferences().mutex);
  auto& held = TheReferences().held;
  const auto found = held.find(library);
  if (found == held.end()) return nullptr;
  auto machine = std::move(found->second.back());
  found->second.pop_back();
  if (found->second.empty()) held.erase(found);
  return machine;
}

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
