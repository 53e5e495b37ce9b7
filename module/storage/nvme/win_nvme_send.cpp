#include "module/storage/device_control.h"
#include "module/storage/nvme/nvme_intel_packet.h"
#include "module/storage/nvme/nvme_send.h"

#include <winioctl.h>
// Needs what comes before it.
#include <ntddscsi.h>

namespace orvik::module::storage {

WinHalNvmeSend& WinHalNvmeSend::Instance() {
  static WinHalNvmeSend sender;
  return sender;
}

Status WinHalNvmeSend::Send(HANDLE /*device*/, NvmeCmd& /*command*/) {
  return kUnavailable;
}

WinNvmeIntelSend& WinNvmeIntelSend::Instance() {
  static WinNvmeIntelSend sender;
  return sender;
}

Status WinNvmeIntelSend::Send(HANDLE port, std::uint64_t /*ignored*/, NvmeCmd& command) {
  if (command.length > kMaximumTransfer) return status::kBadArgument;
  NvmeIntelPacket packet(command);
  if (!ExchangePacket(port, IOCTL_SCSI_MINIPORT, packet.Exchanged())) return status::kFailure;
  packet.TakeReply(command);
  return status::kSuccess;
}

}  // namespace orvik::module::storage
