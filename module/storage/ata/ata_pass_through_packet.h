#pragma once

#include <cstdint>
#include <span>
#include <vector>

#include "module/storage/ata/ata_cmd.h"
#include "module/storage/status.h"

namespace orvik::module::storage {

/// One command in the layout of IOCTL_ATA_PASS_THROUGH (ATA_PASS_THROUGH_EX with the data behind it).
class AtaPassThroughPacket {
 public:
  /// The command's length must be at most `kMaximumTransfer`.
  explicit AtaPassThroughPacket(const AtaCmd& command);

  /// What goes to the driver and comes back in place.
  std::span<std::uint8_t> Exchanged() { return std::span(buffer_).first(buffer_.size() - 1); }

  /// Takes the returned registers and data into the command that the packet was made of. 0, or 89 when data was asked
  /// for and none came. More data than was asked for is cut off.
  Status TakeReply(AtaCmd& command) const;

 private:
  std::vector<std::uint8_t> buffer_;
};

}  // namespace orvik::module::storage
