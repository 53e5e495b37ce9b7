#include "module/raid/entry/module.h"

#include <mutex>
#include <set>

#include "module/raid/diagnostics/raid_tests.h"

namespace orvik::module::raid {

namespace {

const core::ModuleVersion kVersion = {.major = 5, .minor = 2, .patch = 0, .suffix = {}};

// The host's process-wide set: the module only empties it.
std::set<std::string> stringSet;
std::mutex stringSetMutex;

}  // namespace

Module::Module()
    : scanner_(std::make_shared<DeviceScanner>()),
      dispatcher_(std::make_shared<utils::GeneralDiagnosticDispatcher>()) {
  testIds_ = {5, 2, 6, 4, 3, 1};
}

Module::~Module() = default;

std::unique_ptr<core::Test> Module::CreateTest(core::TestId id) const {
  switch (id) {
    case 1: return std::make_unique<BatteryBackupUnitStatusTest>();
    case 2: return std::make_unique<EnclosuresStatusTest>();
    case 3: return std::make_unique<LogicalDrivesStatusTest>();
    case 4: return std::make_unique<CheckConsistencyTest>();
    case 5: return std::make_unique<RaidStatusTest>();
    case 6: return std::make_unique<ControllerStatusTest>();
    default: return nullptr;
  }
}

std::int32_t Module::GetTestCount() const {
  return 6;
}

std::string Module::GetShortName() const {
  return "RD";
}

std::string Module::GetName() const {
  return "RAID";
}

core::ModuleVersion Module::GetVersion() const {
  return kVersion;
}

std::shared_ptr<core::DeviceScanner> Module::GetDeviceScanner() const {
  return scanner_;
}

std::shared_ptr<core::DiagnosticDispatcher> Module::GetDispatcher() const {
  return dispatcher_;
}

void Module::ClearStringSet() {
  const std::lock_guard lock(stringSetMutex);
  stringSet.clear();
}

std::vector<core::TestId> Module::GetTestIds() const {
  return testIds_;
}

std::vector<std::string> Module::GetAuxiliaryList() const {
  return {};
}

std::string Module::GetAuxiliaryText() const {
  return {};
}

}  // namespace orvik::module::raid
