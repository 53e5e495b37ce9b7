#include "module/storage/nvme/nvme_bridge.h"

#include "module/storage/nvme/nvme_send.h"

namespace orvik::module::storage {

Status NvmeBridge::Send(NvmeCmd& command) {
  return WinHalNvmeSend::Instance().Send(GetHandle(), command);
}

Status NvmeIntelBridge::Send(NvmeCmd& command) {
  return WinNvmeIntelSend::Instance().Send(GetHandle(), 1, command);
}

}  // namespace orvik::module::storage
