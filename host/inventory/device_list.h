#pragma once

#include <QString>
#include <memory>
#include <optional>
#include <vector>

#include "core/device_scanner.h"

namespace orvik::host {

/// A device as the last scan described it, and the way to the device itself while it lasts.
struct ListedDevice {
  int index = 0;  ///< place in scan order
  core::DeviceDescription description;
  std::weak_ptr<core::Device> device;
};

/// Scans and lists what was found, in scan order. False, and one line in `error`, when the scan broke off.
bool ScanDevices(core::DeviceScanner& scanner, std::vector<ListedDevice>& devices, QString& error);

/// Whether there is any device; nothing, and one line in `error`, when the module did not tell.
std::optional<bool> CheckPresence(core::DeviceScanner& scanner, QString& error);

}  // namespace orvik::host
