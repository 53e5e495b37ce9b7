#include "simulation/machine/current_machine.h"

#include <cstdio>
#include <cstdlib>
#include <mutex>
#include <string>
#include <utility>
#include <variant>

#include "simulation/machine/load_machine.h"

namespace orvik::simulation {

namespace {

struct Installed {
  std::mutex mutex;
  std::shared_ptr<Machine> machine;
};

// Never destroyed: threads and static objects may still use it while the process ends.
Installed& TheInstalled() {
  static Installed& installed = *new Installed;
  return installed;
}

std::shared_ptr<Machine> DefaultMachine() {
  // Nothing in this process changes the environment while threads run.
  const char* path = std::getenv("ORVIK_MACHINE");  // NOLINT(concurrency-mt-unsafe)
  if (path == nullptr || *path == '\0') return std::make_shared<Machine>();
  auto loaded = LoadMachine(path);
  if (auto* machine = std::get_if<std::shared_ptr<Machine>>(&loaded)) return *machine;
  static_cast<void>(std::fprintf(stderr, "%s\n", std::get<std::string>(loaded).c_str()));
  return std::make_shared<Machine>();
}

}  // namespace

std::shared_ptr<Machine> CurrentMachine() {
  Installed& installed = TheInstalled();
  const std::scoped_lock lock(installed.mutex);
  if (installed.machine == nullptr) installed.machine = DefaultMachine();
  return installed.machine;
}

void InstallMachine(std::shared_ptr<Machine> machine) {
  Installed& installed = TheInstalled();
  const std::scoped_lock lock(installed.mutex);
  installed.machine.swap(machine);
}

}  // namespace orvik::simulation

const char* OrvikSimulationOpen(const char* path) {
  static thread_local std::string error;
  auto loaded = orvik::simulation::LoadMachine(path == nullptr ? "" : path);
  if (auto* machine = std::get_if<std::shared_ptr<orvik::simulation::Machine>>(&loaded)) {
    orvik::simulation::InstallMachine(std::move(*machine));
    return nullptr;
  }
  error = std::get<std::string>(loaded);
  return error.c_str();
}

int OrvikSimulationHasVendorLibrary() {
  using orvik::simulation::StorelibInstallation;
  return orvik::simulation::CurrentMachine()->Storelib().Installation() != StorelibInstallation::Missing ? 1 : 0;
}
