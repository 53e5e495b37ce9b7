#include "module/raid/entry/device_scanner.h"

#include <algorithm>
#include <iterator>

namespace orvik::module::raid {

namespace {

core::DeviceDescription Describe(const core::Device& device) {
  // The managers make RAID devices only.
  const auto& raidDevice = static_cast<const Device&>(device);
  return {.id = device.GetId(),
          .udi = device.GetUdi(),
          .name = device.GetName(),
          .extraProperties = device.GetExtraProperties(),
          .properties = raidDevice.GetProperties(),
          .resources = raidDevice.GetResources(),
          .tags = device.GetTags(),
          .testable = device.IsTestable()};
}

}  // namespace

void DeviceScanner::Scan(std::shared_ptr<core::ScanListener> listener) {
  devices_.clear();
  csmiManager_->RefreshDevices();
  storelibManager_->RefreshDevices();
  devices_ = csmiManager_->GetDeviceList();
  std::ranges::move(storelibManager_->GetDeviceList(), std::back_inserter(devices_));

  for (const auto& device : devices_) listener->OnDeviceFound(Describe(*device));
  listener->OnScanFinished();
}

void DeviceScanner::CheckPresence(std::shared_ptr<core::ScanListener> listener) {
  listener->OnPresenceChecked(csmiManager_->HasControllers() || storelibManager_->HasControllers());
}

std::weak_ptr<core::Device> DeviceScanner::FindDevice(std::string id) const {
  const auto found = std::ranges::find_if(devices_, [&id](const auto& device) { return device->GetId() == id; });
  return found == devices_.end() ? std::weak_ptr<core::Device>() : *found;
}

std::vector<std::weak_ptr<core::Device>> DeviceScanner::GetDevices() const {
  return {devices_.begin(), devices_.end()};
}

}  // namespace orvik::module::raid
