#pragma once

// The NVMe drives of a RAID controller. They have no phy; the controller's driver takes NVMe commands for them in a
// miniport request of its own and knows each by its path id.

#include <cstdint>
#include <map>
#include <memory>
#include <optional>
#include <span>
#include <string_view>
#include <vector>

#include "simulation/drives/drive.h"

namespace orvik::simulation {

/// The name under which fault rules know the request.
inline constexpr std::string_view kNvmePassThroughName = "NVME_PASS_THROUGH";

/// The path id of the drive after `before` in a controller's list; nothing when it is not an NVMe drive or no path
/// ids are left.
std::optional<std::uint8_t> NvmePathId(const DriveDescription& drive, std::span<const DriveDescription> before);

class NvmePaths {
 public:
  /// The first of several drives with the same path id answers.
  NvmePaths(std::span<const DriveDescription> descriptions, const std::vector<Drive>& drives);

  /// True when a packet has the request's signature and control code.
  static bool Recognises(std::span<const std::uint8_t> packet);
  /// Executes `packet` (header included) in place. A Windows error code, 0 on success: a command that the drive ends
  /// with an error fails the whole request, though its completion is in the packet.
  std::uint32_t Answer(std::span<std::uint8_t> packet) const;

 private:
  std::map<std::uint8_t, std::shared_ptr<NvmeDrive>> drives_;
};

}  // namespace orvik::simulation
