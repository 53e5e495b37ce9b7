#pragma once

#include <windows.h>

#include "module/storage/bridge_list.h"
#include "module/storage/scsi/scsi_cmd.h"
#include "module/storage/status.h"

namespace orvik::module::storage {

/// A way to carry SCSI commands to a drive. This one is the operating system's own pass-through; a controller's
/// bridge derives from it and replaces `Send`. The handle stays the creator's.
class ScsiBridge {
 public:
  explicit ScsiBridge(HANDLE device) : device_(device) {}
  ScsiBridge(const ScsiBridge&) = delete;
  ScsiBridge& operator=(const ScsiBridge&) = delete;

  virtual ~ScsiBridge() = default;  // slot 0

  /// Slot 1.
  virtual HANDLE GetHandle() const { return device_; }

  /// Slot 2: 0 when the transport worked. The drive's own verdict is in the returned status and sense; `length` is
  /// what was received.
  virtual Status Send(ScsiCmd& command);

 private:
  HANDLE device_;
};

/// How SCSI commands go through a bridge list.
struct ScsiSendRule {
  using Bridge = ScsiBridge;
  using Command = ScsiCmd;
  using Checkpoint = NoCheckpoint;
  static constexpr Status kNoBridge = status::kCommandRefused;
};

}  // namespace orvik::module::storage
