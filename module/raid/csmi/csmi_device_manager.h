#pragma once

#include <string>
#include <vector>

#include "module/raid/csmi/csmi_device.h"
#include "module/raid/family/device.h"

namespace orvik::module::raid {

/// Every storage-port interface that can be described and opened, and whose path is long enough for the PCI ids.
std::vector<CsmiAdapter> EnumerateCsmiAdapters();

/// The adapter has a supported PCI id and reports RAID in its controller configuration.
bool IsCsmiRaidController(const CsmiAdapter& adapter);

/// Finds the RAID controllers that speak CSMI.
class CsmiDeviceManager final : public DeviceManager {
 public:
  bool HasControllers() override;
  void RefreshDevices() override;
};

}  // namespace orvik::module::raid
