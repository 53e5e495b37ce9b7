#pragma once

#include <string>
#include <vector>

#include "simulation/adapters/adapter_description.h"
#include "simulation/desktop/desktop_description.h"
#include "simulation/drives/drive_descriptions.h"
#include "simulation/faults/fault.h"
#include "simulation/registry/registry.h"
#include "simulation/storelib/storelib_description.h"

namespace orvik::simulation {

/// Everything that a machine is made from; the adapters' registry values need not be repeated in `registry`.
struct MachineDescription {
  std::string name{};
  /// Machine time per real time.
  double speed = 1;
  std::vector<AdapterDescription> adapters{};
  /// `\\.\PhysicalDrive0` and those that follow it.
  std::vector<PhysicalDriveDescription> physicalDrives{};
  /// The controllers behind the vendor's library.
  StorelibDescription storelib{};
  DesktopDescription desktop{};
  std::vector<RegistryValue> registry{};
  std::vector<FaultRule> faults{};
};

}  // namespace orvik::simulation
