#pragma once

// Machines with many controllers and many drives.

#include <memory>
#include <string>

#include "simulation/machine/current_machine.h"

namespace orvik::benchmarks {

inline constexpr std::size_t kCsmiDrives = 32;
inline constexpr std::size_t kStorelibDrives = 240;

inline simulation::AdapterDescription CsmiAdapter(unsigned number) {
  auto adapter = simulation::PciRaidAdapter("2822", number);
  adapter.csmi.emplace();
  adapter.csmi->maxDrivesPerSet = kCsmiDrives;
  simulation::CsmiRaidSetDescription set{.type = simulation::CsmiRaidType::Raid5, .capacityMiB = 953'867};
  for (std::size_t i = 0; i < kCsmiDrives; ++i) {
    adapter.csmi->drives.emplace_back(simulation::SataDriveDescription{.model = "WDC WD10ORVK-08M2NA0",
                                                                       .serial = "WD-ORVK" + std::to_string(i),
                                                                       .firmware = "01.01A01",
                                                                       .sectors = 1'953'525'168});
    set.members.push_back({.drive = i});
  }
  adapter.csmi->raidSets.push_back(set);
  return adapter;
}

inline simulation::StorelibControllerDescription StorelibController(std::uint32_t id) {
  simulation::StorelibControllerDescription controller{
      .controllerId = id, .product = "ORVK RAID 8i", .serial = "OV C" + std::to_string(id)};
  simulation::StorelibLogicalDriveDescription volume{.targetId = 0, .blocks = 1'953'525'168};
  for (std::uint16_t i = 0; i < kStorelibDrives; ++i) {
    controller.drives.push_back({.deviceId = i,
                                 .drive = simulation::SasDriveDescription{.vendor = "ORVIK",
                                                                          .product = "OVS9000",
                                                                          .revision = "0001",
                                                                          .serial = "SAS-" + std::to_string(i),
                                                                          .sectors = 17'578'328'064}});
    volume.members.push_back(i);
  }
  volume.members.resize(16);
  controller.logicalDrives.push_back(volume);
  return controller;
}

/// As many controllers of each family as asked for, 32 and 240 drives behind each.
inline simulation::MachineDescription LargeMachine(unsigned csmi, unsigned storelib) {
  simulation::MachineDescription machine;
  for (unsigned i = 0; i < csmi; ++i) machine.adapters.push_back(CsmiAdapter(20 + i));
  for (unsigned i = 0; i < storelib; ++i) machine.storelib.controllers.push_back(StorelibController(i));
  return machine;
}

inline std::shared_ptr<simulation::Machine> Install(const simulation::MachineDescription& description) {
  auto machine = std::make_shared<simulation::Machine>(description);
  simulation::InstallMachine(machine);
  return machine;
}

}  // namespace orvik::benchmarks
