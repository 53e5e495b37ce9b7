#pragma once

#include <string>
#include <vector>

#include "utils/windows/unique_handle.h"

namespace orvik::module::raid {

/// One storage-port interface of a SCSI adapter, open.
struct CsmiAdapter {
  std::string interfacePath;
  utils::UniqueHandle handle;
  std::string description;
  std::string pciVendorId;  ///< four hexadecimal digits, as the path spells them
  std::string pciDeviceId;  ///< four hexadecimal digits, as the path spells them
};

/// Every storage-port interface that can be described and opened, and whose path is long enough for the PCI ids.
std::vector<CsmiAdapter> EnumerateCsmiAdapters();

/// The adapter is of a supported PCI id and its controller configuration says that it does RAID.
bool IsCsmiRaidController(const CsmiAdapter& adapter);

}  // namespace orvik::module::raid
