#pragma once

#include <memory>
#include <vector>

#include "module/raid/family/device.h"

namespace orvik::module::raid {

/// Finds the controllers of one family and owns their devices. Used on the scanner's thread only.
class DeviceManager {
 public:
  DeviceManager() = default;
  DeviceManager(const DeviceManager&) = delete;
  DeviceManager& operator=(const DeviceManager&) = delete;

  virtual ~DeviceManager() = default;  // slot 0

  /// Slot 1: a quick check for at least one controller of the family; builds no device.
  virtual bool HasControllers() = 0;

  /// Slot 2: empties the device list and rebuilds it from the hardware.
  virtual void RefreshDevices() = 0;

  /// A further owner of every device, in the order in which they were found.
  std::vector<std::shared_ptr<core::Device>> GetDeviceList() const { return {devices_.begin(), devices_.end()}; }

 protected:
  std::vector<std::shared_ptr<Device>> devices_;
};

}  // namespace orvik::module::raid
