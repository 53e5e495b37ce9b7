#pragma once

#include <cstdint>
#include <map>
#include <string>
#include <vector>

namespace orvik::module::storage {

/// What identification finds out about a drive. The field order is a binary contract: hosts read the record.
struct ProtocolProperties {
  ProtocolProperties() = default;
  ProtocolProperties(const ProtocolProperties&) = default;
  ProtocolProperties(ProtocolProperties&&) = default;
  ProtocolProperties& operator=(const ProtocolProperties&) = default;
  ProtocolProperties& operator=(ProtocolProperties&&) = default;
  virtual ~ProtocolProperties() = default;

  std::string protocolName;                     ///< "ATA", "SCSI" or "NVMe"
  std::string transportText;                    ///< for a host's own use; left empty
  std::vector<std::string> supportedStandards;  ///< ATA major versions, SCSI version descriptors
  std::string standardVersion;                  ///< ATA minor version or SPC version
  bool isSolidState = false;
  std::string serialNumber;
  std::string model;
  std::string firmwareRevision;
  std::string vendor;
  std::string labelText;                 ///< 30 characters as they stand in the drive's vendor log; empty: none
  std::uint64_t sectorCount = 0;         ///< logical sectors
  std::uint32_t logicalSectorSize = 0;   ///< bytes
  std::uint32_t physicalSectorSize = 0;  ///< bytes
  std::uint32_t cacheSize = 0;           ///< ATA; the identify data's own figure
  std::uint16_t rotationRate = 0;        ///< rpm; 0: not reported, out of range or solid state
  bool inquiryFlag = false;              ///< SCSI: byte 1 of the standard INQUIRY data is 1
  bool securitySupported = false;        ///< ATA security feature set
  bool securityLocked = false;
  bool smartSupported = false;  ///< failure prediction
  bool smartEnabled = false;
  bool lba48Supported = false;      ///< ATA 48-bit addresses
  std::uint32_t interfaceHint = 4;  ///< given by the caller; 2: a SCSI drive is not asked about failure prediction
  bool smartDataValid = false;      ///< ATA: SMART READ DATA worked; the next four come from it
  bool offlineImmediateSupported = false;
  bool offlineAbortSupported = false;
  bool selfTestSupported = false;
  bool conveyanceSelfTestSupported = false;
  std::map<std::uint64_t, std::uint64_t> extraValues;  ///< for a host's own use; left empty
};

}  // namespace orvik::module::storage
