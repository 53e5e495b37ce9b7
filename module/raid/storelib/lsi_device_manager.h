#pragma once

#include "module/raid/device_manager.h"

namespace orvik::module::raid {

/// The controllers behind the vendor's library. Without that library there are none.
class LsiDeviceManager final : public DeviceManager {
 public:
  bool HasControllers() override { return false; }
  void RefreshDevices() override { devices_.clear(); }
};

}  // namespace orvik::module::raid
