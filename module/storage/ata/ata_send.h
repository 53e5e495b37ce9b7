#pragma once

#include <windows.h>

#include "module/storage/ata/ata_cmd.h"
#include "module/storage/status.h"

namespace orvik::module::storage {

/// Carries one ATA command to the device behind a native handle; the answer stands in the command.
class AtaSend {
 public:
  AtaSend() = default;
  AtaSend(const AtaSend&) = delete;
  AtaSend& operator=(const AtaSend&) = delete;

  virtual Status Send(HANDLE device, AtaCmd& command) = 0;  // slot 0: senders are never destroyed

 protected:
  ~AtaSend() = default;
};

/// ATA commands through the operating system's ATA pass-through.
class WinHalAtaSend final : public AtaSend {
 public:
  static WinHalAtaSend& Instance();

  /// 0, 2 (data that no packet carries), 34, 89 (data was asked for and none came), or 125 (access denied).
  Status Send(HANDLE device, AtaCmd& command) override;

 private:
  WinHalAtaSend() = default;
  ~WinHalAtaSend() = default;
};

}  // namespace orvik::module::storage
