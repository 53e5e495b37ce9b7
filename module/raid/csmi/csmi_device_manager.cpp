#include "module/raid/csmi/csmi_device_manager.h"

#include <algorithm>
#include <memory>
#include <utility>

#include "module/raid/csmi/csmi_adapter.h"
#include "module/raid/csmi/csmi_device.h"

namespace orvik::module::raid {

bool CsmiDeviceManager::HasControllers() {
  return std::ranges::any_of(EnumerateCsmiAdapters(), IsCsmiRaidController);
}

void CsmiDeviceManager::RefreshDevices() {
  devices_.clear();
  for (auto& adapter : EnumerateCsmiAdapters()) {
    if (!IsCsmiRaidController(adapter)) continue;
    auto device = std::make_shared<CsmiDevice>(std::move(adapter));
    if (device->BuildProperties() == storage::status::kSuccess) devices_.push_back(std::move(device));
  }
}

}  // namespace orvik::module::raid
