#pragma once

#include <cstdint>
#include <memory>

#include "module/raid/storelib/storelib_sender.h"
#include "module/storage/ata/ata_bridge.h"
#include "module/storage/scsi/scsi_bridge.h"

namespace orvik::module::raid {

/// Carries SCSI commands to a drive behind a storelib controller and keeps the vendor's library loaded. Its native
/// handle is the controller id.
class LsiSspBridge final : public storage::ScsiBridge {
 public:
  /// Without a sender every command ends with 1.
  LsiSspBridge(std::uint32_t controllerId, std::uint16_t driveId, std::shared_ptr<LsiSender> librarySender);

  /// 0, or 1 when the library reports a failure; SCSI status and, after a failure, sense data are in the command.
  storage::Status Send(storage::ScsiCmd& command) override;

 private:
  std::uint16_t deviceId;
  std::shared_ptr<LsiSender> sender;
};

/// Carries ATA commands to a SATA drive behind a storelib controller and keeps the vendor's library loaded. Its
/// native handle is the controller id.
class LsiStpBridge final : public storage::AtaBridge {
 public:
  /// Without a sender every command ends with 1.
  LsiStpBridge(std::uint32_t controllerId, std::uint8_t driveId, std::shared_ptr<LsiSender> librarySender);

  /// 0, 1 or 34; the command is left as it was unless the result is 0.
  storage::Status Send(storage::AtaCmd& command) override;

 private:
  std::uint8_t deviceId;
  std::shared_ptr<LsiSender> sender;
};

}  // namespace orvik::module::raid
