#include "module/storage/scsi/scsi_bridge.h"

#include "module/storage/scsi/scsi_send.h"

namespace orvik::module::storage {

Status ScsiBridge::Send(ScsiCmd& command) {
  return WinHalScsiSend::Instance().Send(GetHandle(), 1, command);
}

}  // namespace orvik::module::storage
