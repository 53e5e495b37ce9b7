#pragma once

#include <windows.h>

#include "module/storage/bridge_list.h"
#include "module/storage/nvme/nvme_cmd.h"
#include "module/storage/status.h"

namespace orvik::module::storage {

/// A way to carry NVMe commands to a drive. This one is the operating system's, which has none: its sends fail. The
/// handle stays the creator's.
class NvmeBridge {
 public:
  explicit NvmeBridge(HANDLE device) : device_(device) {}
  NvmeBridge(const NvmeBridge&) = delete;
  NvmeBridge& operator=(const NvmeBridge&) = delete;

  virtual ~NvmeBridge() = default;  // slot 0

  /// Slot 1.
  virtual HANDLE GetHandle() const { return device_; }

  /// Slot 2: 0 when the command was carried to the drive and its data back.
  virtual Status Send(NvmeCmd& command);

 private:
  HANDLE device_;
};

/// The way through a RAID controller's miniport driver; the handle is the controller's SCSI port.
class NvmeIntelBridge : public NvmeBridge {
 public:
  using NvmeBridge::NvmeBridge;

  Status Send(NvmeCmd& command) override;
};

/// How NVMe commands go through a bridge list.
struct NvmeSendRule {
  using Bridge = NvmeBridge;
  using Command = NvmeCmd;
  using Checkpoint = NoCheckpoint;
  static constexpr Status kNoBridge = status::kFailure;
};

}  // namespace orvik::module::storage
