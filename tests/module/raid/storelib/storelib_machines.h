#pragma once

// Storelib controllers for the module's tests.

#include <memory>
#include <vector>

#include "module/raid/storelib/storelib_device.h"
#include "tests/module/raid/machines.h"

namespace orvik::testing {

inline simulation::StorelibLogicalDriveDescription Volume(std::uint8_t targetId, std::uint8_t primaryLevel = 5,
                                                          std::uint8_t secondaryLevel = 0) {
  return {.targetId = targetId,
          .sequenceNumber = static_cast<std::uint16_t>(0x0100 + targetId),
          .primaryLevel = primaryLevel,
          .secondaryLevel = secondaryLevel,
          .blocks = 1'953'525'168,
          .members = {8, 9}};
}

/// Controller 3 with a SAS drive (8), a SATA drive (9) and an enclosure (32).
inline simulation::StorelibControllerDescription LsiController(
    std::vector<simulation::StorelibLogicalDriveDescription> logicalDrives = {Volume(0)}) {
  const simulation::SasDriveDescription sas{
      .vendor = "ORVIK", .product = "OVS9000", .revision = "0001", .serial = "SAS-B", .sectors = 17'578'328'064};
  return {.controllerId = 3,
          .product = "ORVK RAID 8i",
          .serial = "OV C001",
          .drives = {{.deviceId = 8, .drive = sas},
                     {.deviceId = 9, .drive = SataDrive("WD-A")},
                     {.deviceId = 32, .drive = sas, .scsiDeviceType = simulation::kScsiEnclosure}},
          .logicalDrives = std::move(logicalDrives)};
}

inline std::shared_ptr<simulation::Machine> InstallLsi(
    const simulation::StorelibControllerDescription& controller = LsiController()) {
  return Install({.storelib = {.controllers = {controller}}});
}

/// Controller 3 of the current machine, with a library of its own.
inline std::shared_ptr<module::raid::LsiDevice> OpenLsiDevice() {
  return std::make_shared<module::raid::LsiDevice>(3, std::make_shared<module::raid::LsiSender>());
}

}  // namespace orvik::testing
