#include "platform/windows/library_references.h"

#include <map>
#include <mutex>
#include <utility>
#include <vector>

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

}  // namespace orvik::platform::windows
