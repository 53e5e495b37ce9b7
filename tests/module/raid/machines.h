#pragma once

// Machines for the module's tests, and what a host would hold while it talks to them.

#include <memory>
#include <string>
#include <vector>

#include "core/device_scanner.h"
#include "module/raid/csmi/csmi_device_manager.h"
#include "simulation/machine/current_machine.h"

namespace orvik::testing {

/// A SATA drive of 1,000,204,886,016 bytes.
inline simulation::DriveDescription SataDrive(std::string serial) {
  return simulation::SataDriveDescription{
      .model = "WDC WD10ORVK-08M2NA0", .serial = std::move(serial), .firmware = "01.01A01", .sectors = 1953525168};
}

/// A controller of PCI device id 2822 with as many SATA drives as asked for and the given RAID sets.
inline simulation::AdapterDescription Controller(std::size_t drives,
                                                 std::vector<simulation::CsmiRaidSetDescription> sets,
                                                 std::string_view deviceId = "2822", unsigned unit = 23) {
  auto adapter = simulation::PciRaidAdapter(deviceId, unit);
  adapter.csmi.emplace();
  for (std::size_t i = 0; i < drives; ++i) adapter.csmi->drives.push_back(SataDrive("WD-ORVK" + std::to_string(i)));
  adapter.csmi->raidSets = std::move(sets);
  return adapter;
}

/// A set over the first `members` drives of its controller.
inline simulation::CsmiRaidSetDescription Set(simulation::CsmiRaidType type, simulation::CsmiRaidStatus status,
                                              std::size_t members = 2) {
  simulation::CsmiRaidSetDescription set{.type = type, .status = status, .capacityMiB = 953867};
  for (std::size_t i = 0; i < members; ++i) set.members.push_back({.drive = i});
  return set;
}

inline simulation::AdapterDescription Mirror() {
  return Controller(2, {Set(simulation::CsmiRaidType::Raid1, simulation::CsmiRaidStatus::Ok)});
}

inline std::shared_ptr<simulation::Machine> Install(const simulation::MachineDescription& description) {
  auto machine = std::make_shared<simulation::Machine>(description);
  simulation::InstallMachine(machine);
  return machine;
}

/// Records what a scan or a presence check reports.
class ScanRecorder final : public core::ScanListener {
 public:
  void OnDeviceFound(const core::DeviceDescription& description) override { found.push_back(description); }
  void OnScanFinished() override { ++finished; }
  void OnPresenceChecked(bool answer) override { present.push_back(answer); }

  std::vector<core::DeviceDescription> found;
  int finished = 0;
  std::vector<bool> present;
};

/// The first CSMI controller of the current machine, as its manager would make it before it builds its properties.
inline std::shared_ptr<module::raid::CsmiDevice> OpenDevice() {
  auto adapters = module::raid::EnumerateCsmiAdapters();
  return adapters.empty() ? nullptr : std::make_shared<module::raid::CsmiDevice>(std::move(adapters.front()));
}

}  // namespace orvik::testing
