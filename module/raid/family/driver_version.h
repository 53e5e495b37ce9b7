#pragma once

#include <string>

#include <windows.h>

#include "module/storage/status.h"

namespace orvik::module::raid {

/// GUID_DEVCLASS_SCSIADAPTER: the setup class of SCSI and RAID controllers.
inline constexpr GUID kScsiAdapterClass = {
    0x4D36E97B, 0xE325, 0x11CE, {0xBF, 0xC1, 0x08, 0x00, 0x2B, 0xE1, 0x03, 0x18}};

/// The version of the first installed SCSI adapter driver whose provider is not "Microsoft". 0; 1 when the instance
/// id of an adapter can't be read; 128 when there is no such driver. An adapter without the registry values is passed
/// over.
storage::Status ReadDriverVersion(std::string& version);

}  // namespace orvik::module::raid
