#pragma once

#include "module/raid/family/device_manager.h"

namespace orvik::module::raid {

/// The RAID controllers that speak CSMI.
class CsmiDeviceManager final : public DeviceManager {
 public:
  bool HasControllers() override;
  void RefreshDevices() override;
};

}  // namespace orvik::module::raid
