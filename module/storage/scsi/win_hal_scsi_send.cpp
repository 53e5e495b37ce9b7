#include "module/storage/device_control.h"
#include "module/storage/scsi/scsi_pass_through_packet.h"
#include "module/storage/scsi/scsi_send.h"

#include <winioctl.h>
// Needs what comes before it.
#include <ntddscsi.h>

namespace orvik::module::storage {

WinHalScsiSend& WinHalScsiSend::Instance() {
  // The class has a destructor in its first slot; the union keeps it from running when the library is unloaded.
  static union NeverDestroyed {
    NeverDestroyed() : sender() {}
    NeverDestroyed(const NeverDestroyed&) = delete;
    NeverDestroyed& operator=(const NeverDestroyed&) = delete;
    ~NeverDestroyed() {}  // NOLINT(modernize-use-equals-default): a default would be deleted

    WinHalScsiSend sender;
  } holder;
  return holder.sender;
}

Status WinHalScsiSend::Send(HANDLE device, std::int32_t spare, ScsiCmd& command) {
  if (command.length > kMaximumTransfer) return status::kBadArgument;
  ScsiPassThroughPacket packet(command, spare);
  if (!ExchangePacket(device, IOCTL_SCSI_PASS_THROUGH, packet.Exchanged())) return status::kIoctlFailed;
  packet.TakeReply(command);
  return status::kSuccess;
}

}  // namespace orvik::module::storage
