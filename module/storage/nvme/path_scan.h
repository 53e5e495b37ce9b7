#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "module/storage/nvme/nvme_bridge.h"

namespace orvik::module::storage {

/// Where a drive is behind a controller's miniport driver.
struct NvmePath {
  std::uint8_t pathId = 0;
  std::string serial;  ///< identify data from the serial number on, up to the first zero byte: tells drives apart
};

/// Looks for the first path id whose drive answers Identify Controller with a serial text that isn't claimed yet.
/// True when there is one; otherwise `path` stays as it was. Up to 256 commands, sent to the bridge itself.
bool FindNvmePath(NvmeBridge& bridge, const std::vector<std::string>& claimed, NvmePath& path);

}  // namespace orvik::module::storage
