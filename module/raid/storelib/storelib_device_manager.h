#pragma once

#include <memory>

#include "module/raid/family/device.h"
#include "module/raid/storelib/storelib_transport.h"

namespace orvik::module::raid {

/// Finds the controllers behind the vendor's library and keeps that library loaded. Without it there are none.
class LsiDeviceManager final : public DeviceManager {
 public:
  LsiDeviceManager();

  bool HasControllers() override;
  void RefreshDevices() override;

 private:
  std::shared_ptr<LsiSender> sender_;
};

}  // namespace orvik::module::raid
