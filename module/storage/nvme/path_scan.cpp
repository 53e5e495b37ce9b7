#include "module/storage/nvme/path_scan.h"

#include <algorithm>
#include <array>
#include <limits>

#include "module/storage/nvme/nvme_commands.h"
#include "utils/bytes/byte_view.h"
#include "utils/text/string_handler.h"

namespace orvik::module::storage {

namespace {

/// Room behind the identify data, so that its last text ends in a zero byte whatever the drive returns.
constexpr std::size_t kSpare = 4;
constexpr utils::Block kFromSerialNumber{4, NvmeIdentifyDevice::kDataSize};

}  // namespace

bool FindNvmePath(NvmeBridge& bridge, const std::vector<std::string>& claimed, NvmePath& path) {
  for (unsigned pathId = 0; pathId <= std::numeric_limits<std::uint8_t>::max(); ++pathId) {
    std::array<std::uint8_t, NvmeIdentifyDevice::kDataSize + kSpare> data{};
    NvmeIdentifyDevice command(data.data(), IdentifyTarget::kController, 0);
    command.pathId = static_cast<std::uint8_t>(pathId);
    if (bridge.Send(command) != status::kSuccess) continue;
    std::string serial;
    OwnStringHandler()->CopyUntilZero(serial, utils::ByteView(data).Text(kFromSerialNumber));
    if (std::ranges::find(claimed, serial) != claimed.end()) continue;
    path = {.pathId = static_cast<std::uint8_t>(pathId), .serial = std::move(serial)};
    return true;
  }
  return false;
}

}  // namespace orvik::module::storage
