#include "module/storage/device_control.h"
#include "module/storage/scsi/scsi_pass_through_packet.h"
#include "module/storage/scsi/scsi_send.h"

#include <winioctl.h>
// Needs what comes before it.
#include <ntddscsi.h>

namespace orvik::module::storage {

WinHalScsiSend& WinHalScsiSend::Instance() {
  static WinHalScsiSend sender;
  return sender;
}

Status WinHalScsiSend::Send(HANDLE device, std::int32_t spare, ScsiCmd& command) {
  if (command.length > kMaximumTransfer) return status::kBadArgument;
  ScsiPassThroughPacket packet(command, spare);
  if (!ExchangePacket(device, IOCTL_SCSI_PASS_THROUGH, packet.Exchanged())) return status::kIoctlFailed;
  packet.TakeReply(command);
  return status::kSuccess;
}

}  // namespace orvik::module::storage
