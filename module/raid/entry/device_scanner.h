#pragma once

#include <memory>
#include <string>
#include <vector>

#include "core/device_scanner.h"
#include "module/raid/csmi/csmi_device_manager.h"
#include "module/raid/storelib/storelib_device_manager.h"

namespace orvik::module::raid {

/// Merges the controllers of both families, CSMI first, into the one list that the host sees. Takes no lock: a scan
/// must not overlap with any other call.
class DeviceScanner final : public core::DeviceScanner {
 public:
  void Scan(std::shared_ptr<core::ScanListener> listener) override;
  void CheckPresence(std::shared_ptr<core::ScanListener> listener) override;
  std::weak_ptr<core::Device> FindDevice(std::string id) const override;
  std::vector<std::weak_ptr<core::Device>> GetDevices() const override;

 private:
  std::vector<std::shared_ptr<core::Device>> devices_;
  std::unique_ptr<CsmiDeviceManager> csmiManager_ = std::make_unique<CsmiDeviceManager>();
  std::unique_ptr<LsiDeviceManager> storelibManager_ = std::make_unique<LsiDeviceManager>();
};

}  // namespace orvik::module::raid
