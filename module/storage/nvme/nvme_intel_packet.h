#pragma once

#include <cstdint>
#include <span>
#include <vector>

#include "module/storage/nvme/nvme_cmd.h"

namespace orvik::module::storage {

/// One NVMe command in the layout of the miniport's NVMe pass-through, which travels in IOCTL_SCSI_MINIPORT.
class NvmeIntelPacket {
 public:
  /// The command's length must be at most `kMaximumTransfer`.
  explicit NvmeIntelPacket(const NvmeCmd& command);

  /// What goes to the driver and comes back in place.
  std::span<std::uint8_t> Exchanged() { return buffer_; }

  /// Copies the returned data to the command that the packet was made of.
  void TakeReply(const NvmeCmd& command) const;

 private:
  std::vector<std::uint8_t> buffer_;
};

}  // namespace orvik::module::storage
