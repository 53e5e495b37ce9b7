#pragma once

#include <cstdint>

#include "module/raid/storelib/storelib_command.h"
#include "module/storage/ata/ata_cmd.h"
#include "module/storage/scsi/scsi_cmd.h"

namespace orvik::module::raid {

/// A SCSI command to a drive, framed for the controller.
LsiCommand FrameScsiCommand(std::uint32_t controllerId, std::uint16_t deviceId, const storage::ScsiCmd& command);

/// Takes what came back of a framed command that the library executed, or that it reported as failed.
void TakeScsiReply(const LsiCommand& request, bool failed, storage::ScsiCmd& command);

/// An ATA command to a SATA drive, framed for the controller.
LsiCommand FrameAtaCommand(std::uint32_t controllerId, std::uint8_t deviceId, const storage::AtaCmd& command);

/// Whether the controller says that the drive has executed the command.
bool IsCompleted(const LsiCommand& ataFrame);

/// Takes registers and data of a completed command.
void TakeAtaReply(const LsiCommand& request, storage::AtaCmd& command);

}  // namespace orvik::module::raid
