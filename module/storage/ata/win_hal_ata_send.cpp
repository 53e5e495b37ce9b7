#include "module/storage/ata/ata_pass_through_packet.h"
#include "module/storage/ata/ata_send.h"
#include "module/storage/device_control.h"

#include <winioctl.h>
// Needs what comes before it.
#include <ntddscsi.h>

namespace orvik::module::storage {

WinHalAtaSend& WinHalAtaSend::Instance() {
  static WinHalAtaSend sender;
  return sender;
}

Status WinHalAtaSend::Send(HANDLE device, AtaCmd& command) {
  if (command.length > kMaximumTransfer) return status::kBadArgument;
  AtaPassThroughPacket packet(command);
  if (!ExchangePacket(device, IOCTL_ATA_PASS_THROUGH, packet.Exchanged())) {
    return GetLastError() == ERROR_ACCESS_DENIED ? status::kAccessDenied : status::kIoctlFailed;
  }
  return packet.TakeReply(command);
}

}  // namespace orvik::module::storage
