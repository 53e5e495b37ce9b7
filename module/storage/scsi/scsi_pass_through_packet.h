#pragma once

#include <cstdint>
#include <span>
#include <vector>

#include "module/storage/scsi/scsi_cmd.h"

namespace orvik::module::storage {

/// One command in the layout of IOCTL_SCSI_PASS_THROUGH (SCSI_PASS_THROUGH with sense area and data behind it).
class ScsiPassThroughPacket {
 public:
  /// The command's length must be at most `kMaximumTransfer`. `spare`: bytes to keep free behind the data.
  ScsiPassThroughPacket(const ScsiCmd& command, std::int32_t spare);

  /// What goes to the driver and comes back in place.
  std::span<std::uint8_t> Exchanged() { return std::span(buffer_).first(exchanged_); }

  /// Takes status, sense and data into the command that the packet was made of, lengths limited to its own.
  void TakeReply(ScsiCmd& command) const;

 private:
  std::size_t exchanged_;
  std::vector<std::uint8_t> buffer_;
};

}  // namespace orvik::module::storage
