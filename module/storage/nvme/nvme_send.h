#pragma once

#include <windows.h>

#include "module/storage/nvme/nvme_cmd.h"
#include "module/storage/status.h"

namespace orvik::module::storage {

/// Carries one NVMe command to the device behind a native handle.
class HalNvmeSend {
 public:
  HalNvmeSend() = default;
  HalNvmeSend(const HalNvmeSend&) = delete;
  HalNvmeSend& operator=(const HalNvmeSend&) = delete;

  virtual Status Send(HANDLE device, NvmeCmd& command) = 0;  // slot 0: senders are never destroyed

 protected:
  ~HalNvmeSend() = default;
};

/// NVMe commands through the operating system: there is no such way yet, so every send fails.
class WinHalNvmeSend final : public HalNvmeSend {
 public:
  static constexpr Status kUnavailable = 0xFFFF'FFFF;

  static WinHalNvmeSend& Instance();

  /// Always `kUnavailable`.
  Status Send(HANDLE device, NvmeCmd& command) override;

 private:
  WinHalNvmeSend() = default;
  ~WinHalNvmeSend() = default;
};

/// Carries one NVMe command to a drive behind a RAID controller's miniport driver.
class HalNvmeIntelSend {
 public:
  HalNvmeIntelSend() = default;
  HalNvmeIntelSend(const HalNvmeIntelSend&) = delete;
  HalNvmeIntelSend& operator=(const HalNvmeIntelSend&) = delete;

  virtual Status Send(HANDLE port, std::uint64_t ignored, NvmeCmd& command) = 0;  // slot 0, as above

 protected:
  ~HalNvmeIntelSend() = default;
};

/// NVMe commands in the miniport's own packets. The command's path id names the drive.
class WinNvmeIntelSend final : public HalNvmeIntelSend {
 public:
  static WinNvmeIntelSend& Instance();

  /// 0 when the driver took the packet, 1 when not, 2 for data that no packet carries.
  Status Send(HANDLE port, std::uint64_t ignored, NvmeCmd& command) override;

 private:
  WinNvmeIntelSend() = default;
  ~WinNvmeIntelSend() = default;
};

}  // namespace orvik::module::storage
