#include "fuzz/host.h"

#include <hostkit.h>

#include <string>

#include "fuzz/input.h"
#include "module/raid/diagnostics/raid_tests.h"
#include "utils/dialogs/gui_dialog_input_interaction.h"

namespace orvik::fuzz {

namespace {

using namespace simulation;
using namespace module::raid;

// A drive that claims larger sectors is not read from.
constexpr std::uint32_t kLargestSector = 65536;
constexpr std::size_t kDrivesUsed = 4;

SataDriveDescription Sata() {
  return {.model = "WDC WD80ORVK",
          .serial = "WD-A",
          .firmware = "01.01A01",
          .sectors = 15'628'053'168,
          .label = "8SORVIK-LABEL-0001",
          .selfTest = {.log = {{.hours = 900, .failingLba = 123'456}}}};
}

SasDriveDescription Sas() {
  return {.vendor = "ORVIK",
          .product = "OVS9000",
          .revision = "0001",
          .serial = "SAS-B",
          .sectors = 17'578'328'064,
          .selfTest = {.log = {{.hours = 900, .failingLba = 123'456}}}};
}

/// Answers questions at once: the first one yes, the next no.
class Reporter final : public core::RunReporter {
 public:
  void SetProgress(std::uint8_t percent) override { Demand(percent <= 100); }
  void AddMessage(const core::TestMessage& message) override { Demand(!message.text.empty()); }
  void Ask(std::unique_ptr<core::InputInteraction>& question) override {
    dynamic_cast<utils::GuiDialogInputInteraction&>(*question).request->answer = ++asked_ % 2;
  }

 private:
  std::uint32_t asked_ = 0;
};

template <typename TestType>
void RunTest(const std::shared_ptr<RaidDevice>& device) {
  Reporter reporter;
  const core::AbortFlag abort = 0;
  core::RunArguments arguments{.device = device, .abortFlag = &abort, .reporter = &reporter, .systemEvents = nullptr};
  const auto result = static_cast<int>(TestType().Run(arguments));
  Demand(result >= 1 && result <= 5);
}

}  // namespace

MachineDescription WholeMachine() {
  auto adapter = PciRaidAdapter("a77f", 14);
  adapter.csmi.emplace();
  adapter.csmi->drives = {Sata(), Sas(), NvmeDriveDescription{.model = "NVMe ORVK", .serial = "N1", .sectors = 1000}};
  adapter.csmi->raidSets.push_back({.capacityMiB = 1000, .members = {{.drive = 2}}});
  StorelibControllerDescription controller{.controllerId = 3, .product = "ORVK RAID", .serial = "C1"};
  controller.drives = {{.deviceId = 8, .drive = Sas()}, {.deviceId = 9, .drive = Sata()}};
  for (const auto target : {std::uint8_t{0}, std::uint8_t{1}}) {
    controller.logicalDrives.push_back({.targetId = target, .blocks = 1000, .members = {8, 9}});
    controller.logicalDrives.back().check.seconds = 1;
  }
  controller.enclosures = {{.enclosureId = 1}};
  // Machine time is no time: nothing waits.
  return {.speed = 1e9,
          .adapters = {adapter},
          .physicalDrives = {{.drive = Sata()}, {.drive = Sas()}},
          .storelib = {.controllers = {controller}}};
}

void KeepVendorLibrary() {
  const std::string path = std::string(get_filesystem()->LibraryDirectory()) + "\\storelib.dll";
  Demand(get_module()->Load(path.c_str(), 1) != nullptr);
}

void UseDrive(module::storage::Protocol& drive) {
  using module::storage::Ignore;  // every answer is allowed here, only faults are looked for
  module::storage::ProtocolProperties properties;
  Ignore(drive.GetProperties(&properties));
  if (properties.logicalSectorSize <= kLargestSector) {
    // Of exactly the size that is asked for, so that no overrun stays hidden.
    const std::size_t size = std::size_t{2} * properties.logicalSectorSize;
    const std::unique_ptr<std::uint8_t[]> buffer(new std::uint8_t[size]());
    Ignore(drive.Read(7, 2, 30, buffer.get(), static_cast<std::uint32_t>(size)));
    Ignore(drive.Write(std::uint64_t{1} << 33, 2, 0, buffer.get()));
  }
  std::uint8_t byte = 0;
  std::uint32_t number = 0;
  std::uint64_t lba = 0;
  Ignore(drive.GetTemperature(byte));
  Ignore(drive.StartSelfTest(1, 0));
  Ignore(drive.GetSelfTestProgress(byte));
  Ignore(drive.GetSelfTestResult(byte));
  Ignore(drive.AbortSelfTest());
  Ignore(drive.GetSelfTestFailingLba(lba));
  Ignore(drive.GetHealthStatus(byte));
  Ignore(drive.SetSmartEnabled(1));
  Ignore(drive.SetSmartEnabled(0));
  Ignore(drive.WriteUncorrectable(9));
  Ignore(drive.GetLifeRemaining(number));
  Ignore(drive.GetPowerMode(number));
  Ignore(drive.Idle());
}

void UseDevice(const std::shared_ptr<RaidDevice>& device) {
  std::vector<StorageDeviceEntry> members;
  // A failing list may still hold drives.
  module::storage::Ignore(module::storage::Status{device->GetStorageDevices(members)});
  for (std::size_t i = 0; i < members.size() && i < kDrivesUsed; ++i) {
    UseDrive(*members[i].protocolObject);
    if (members[i].ataProtocolObject != nullptr) UseDrive(*members[i].ataProtocolObject);
  }
  RunTest<BatteryBackupUnitStatusTest>(device);
  RunTest<EnclosuresStatusTest>(device);
  RunTest<LogicalDrivesStatusTest>(device);
  RunTest<CheckConsistencyTest>(device);
  RunTest<RaidStatusTest>(device);
  RunTest<ControllerStatusTest>(device);
}

}  // namespace orvik::fuzz
