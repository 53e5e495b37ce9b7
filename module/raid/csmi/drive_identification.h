#pragma once

#include <windows.h>

#include "module/raid/device_records.h"
#include "module/storage/status.h"
#include "utils/bytes/byte_view.h"

namespace orvik::module::raid {

/// Identifies the SATA drive on a phy (64-byte entry) with IDENTIFY DEVICE through STP: manufacturer, model (both
/// from the model text, untrimmed) and size. 0, 34, 66, or 32 when the drive ended the command with an error; the
/// record is filled only on 0.
storage::Status IdentifySataDrive(HANDLE port, utils::ByteView phyEntry, PhysicalDrive& drive);

/// Identifies the SAS drive on a phy (64-byte entry) with INQUIRY and READ CAPACITY (16) through SSP. 0, 34, 66, or
/// 33 when a command didn't end well; the record is filled only on 0.
storage::Status IdentifySasDrive(HANDLE port, utils::ByteView phyEntry, PhysicalDrive& drive);

}  // namespace orvik::module::raid
