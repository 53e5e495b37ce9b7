#pragma once

#include <windows.h>

#include "module/storage/ata/ata_cmd.h"
#include "module/storage/bridge_list.h"
#include "module/storage/status.h"

namespace orvik::module::storage {

/// A way to carry ATA commands to a drive. This one is the operating system's own pass-through; a controller's bridge
/// derives from it and replaces `Send`. The handle stays the creator's.
class AtaBridge {
 public:
  explicit AtaBridge(HANDLE device) : device_(device) {}
  AtaBridge(const AtaBridge&) = delete;
  AtaBridge& operator=(const AtaBridge&) = delete;

  virtual ~AtaBridge() = default;  // slot 0

  /// Slot 1.
  virtual HANDLE GetHandle() const { return device_; }

  /// Slot 2: 0 when the transport worked. The drive's own verdict is in the returned registers; `length` is what was
  /// received.
  virtual Status Send(AtaCmd& command);

 private:
  HANDLE device_;
};

/// How ATA commands go through a bridge list: each bridge gets the registers from before the first send.
struct AtaSendRule {
  using Bridge = AtaBridge;
  using Command = AtaCmd;
  static constexpr Status kNoBridge = status::kFailure;

  class Checkpoint {
   public:
    explicit Checkpoint(const AtaCmd& command) : saved_(command) {}

    /// The registers of a last bridge that transferred nothing stay: they may tell why.
    void AfterFailure(AtaCmd& command, Status failure, bool last) const {
      if (failure != status::kNoDataTransferred || !last) command = saved_;
    }

   private:
    AtaCmd saved_;
  };
};

/// Asks a bridge, and not a protocol, for identify data: true when valid data of full length came.
bool ProbeBridge(AtaBridge& bridge);

}  // namespace orvik::module::storage
