#include "module/raid/storelib/storelib_device_manager.h"

#include <stdexcept>
#include <utility>

#include "module/raid/storelib/storelib_device.h"

namespace orvik::module::raid {

LsiDeviceManager::LsiDeviceManager() {
  try {
    sender_ = std::make_shared<LsiSender>();
  } catch (const std::runtime_error&) {
    // A machine without the vendor's library has no controllers of this family.
  }
}

bool LsiDeviceManager::HasControllers() {
  if (sender_ == nullptr) return false;
  LsiCommand list(lsi::code::kListControllers);
  return sender_->SendCommand(list) == 0 && list.Data().Get(lsi::controller_list::kCount) > 0;
}

void LsiDeviceManager::RefreshDevices() {
  devices_.clear();
  if (sender_ == nullptr) return;
  LsiCommand list(lsi::code::kListControllers);
  if (sender_->SendCommand(list) != 0) return;
  using namespace lsi::controller_list;
  for (const utils::ByteView entry : list.Data().Entries(kEntries, list.Data().Get(kCount))) {
    auto device = std::make_shared<LsiDevice>(entry.Get(kEntryControllerId), sender_);
    if (device->BuildProperties().Ok()) devices_.push_back(std::move(device));
  }
}

}  // namespace orvik::module::raid
