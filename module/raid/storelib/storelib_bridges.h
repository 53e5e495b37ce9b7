#pragma once

#include <cstdint>
#include <memory>

#include "module/raid/storelib/storelib_transport.h"
#include "module/storage/ata/ata_bridge.h"
#include "module/storage/scsi/scsi_bridge.h"

namespace orvik::module::raid {

/// Carries SCSI commands to a drive behind a storelib controller and keeps the vendor's library loaded. Its native
/// handle is the controller id.
class LsiSspBridge final : public storage::ScsiBridge {
 public:
  /// Without a sender, every command returns kFailure.
  LsiSspBridge(std::uint32_t controllerId, std::uint16_t driveId, std::shared_ptr<LsiSender> librarySender);

  /// Returns kFailure when the library reports one; the command holds the SCSI status and, after a failure, the sense
  /// data.
  storage::Status Send(storage::ScsiCmd& command) override;

 private:
  std::uint16_t deviceId_;
  std::shared_ptr<LsiSender> sender_;
};

/// Carries ATA commands to a SATA drive behind a storelib controller and keeps the vendor's library loaded. Its
/// native handle is the controller id. The frame has one byte for the drive's id and none for the device register.
class LsiStpBridge final : public storage::AtaBridge {
 public:
  /// Without a sender, every command returns kFailure.
  LsiStpBridge(std::uint32_t controllerId, std::uint8_t driveId, std::shared_ptr<LsiSender> librarySender);

  /// Returns kIoctlFailed when the library or the drive reports a failure; the command then does not change.
  storage::Status Send(storage::AtaCmd& command) override;

 private:
  std::uint8_t deviceId_;
  std::shared_ptr<LsiSender> sender_;
};

/// Frames a SCSI command to a drive.
LsiCommand FrameScsiCommand(std::uint32_t controllerId, std::uint16_t deviceId, const storage::ScsiCmd& command);

/// Takes the reply to a framed command: the data if the library executed it, the sense data if it failed.
void TakeScsiReply(const LsiCommand& request, bool failed, storage::ScsiCmd& command);

/// Frames an ATA command to a SATA drive.
LsiCommand FrameAtaCommand(std::uint32_t controllerId, std::uint8_t deviceId, const storage::AtaCmd& command);

/// Whether the controller reports that the drive has executed the command.
bool IsCompleted(const LsiCommand& ataFrame);

/// Takes registers and data of a completed command.
void TakeAtaReply(const LsiCommand& request, storage::AtaCmd& command);

}  // namespace orvik::module::raid
