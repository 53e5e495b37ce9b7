#pragma once

#include <windows.h>

#include "module/storage/scsi/scsi_cmd.h"
#include "module/storage/status.h"

namespace orvik::module::storage {

/// Carries one SCSI command to the device behind a native handle; the answer stands in the command.
class HalScsiSend {
 public:
  HalScsiSend() = default;
  HalScsiSend(const HalScsiSend&) = delete;
  HalScsiSend& operator=(const HalScsiSend&) = delete;

  virtual ~HalScsiSend() = default;  // slot 0

  /// Slot 1. `spare`: bytes to keep free behind the data.
  virtual Status Send(HANDLE device, std::int32_t spare, ScsiCmd& command) = 0;
};

/// SCSI commands through the operating system's SCSI pass-through.
class WinHalScsiSend final : public HalScsiSend {
 public:
  static WinHalScsiSend& Instance();

  /// 0, 2 (data that no packet carries), or 34.
  Status Send(HANDLE device, std::int32_t spare, ScsiCmd& command) override;

 private:
  WinHalScsiSend() = default;
};

}  // namespace orvik::module::storage
