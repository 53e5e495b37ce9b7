#pragma once

#include <string>

#include <windows.h>

#include "module/storage/status.h"

namespace orvik::module::raid {

/// GUID_DEVCLASS_SCSIADAPTER: the setup class of SCSI and RAID controllers.
inline constexpr GUID kScsiAdapterClass = {
    0x4D36E97B, 0xE325, 0x11CE, {0xBF, 0xC1, 0x08, 0x00, 0x2B, 0xE1, 0x03, 0x18}};

/// Reads the version of the first installed SCSI adapter driver whose provider is not "Microsoft". Returns kFailure
/// when the instance id of an adapter can't be read, and kNoVendorDriver when there is no such driver. Skips an
/// adapter without the registry values.
storage::Status ReadDriverVersion(std::string& version);

}  // namespace orvik::module::raid
