#pragma once

#include <memory>

#include "module/raid/family/device_manager.h"
#include "module/raid/storelib/storelib_sender.h"

namespace orvik::module::raid {

/// The controllers behind the vendor's library, which it keeps loaded. Without that library there are none.
class LsiDeviceManager final : public DeviceManager {
 public:
  LsiDeviceManager();

  bool HasControllers() override;
  void RefreshDevices() override;

 private:
  std::shared_ptr<LsiSender> sender;
};

}  // namespace orvik::module::raid
