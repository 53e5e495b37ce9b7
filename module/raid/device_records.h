#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

#include "core/device.h"

namespace orvik::module::storage {
class Protocol;
}

namespace orvik::module::raid {

/// State of a logical drive. Controllers of the storelib family leave it at `Unknown`.
enum class LogicalDriveState : std::uint32_t { Optimal = 0, Degraded = 1, Failed = 3, Rebuilding = 5, Unknown = 6 };

/// How a physical drive is addressed.
enum class DriveProtocol : std::uint32_t { Ata = 0, Scsi = 1, Unknown = 4, Nvme = 6 };

/// What a controller reports about itself.
struct ControllerInfo {
  std::string serial;  ///< storelib family only
  std::string model;
  std::string driverVersion;
  std::string platform;
  std::int64_t logicalDriveCount = -1;           ///< -1: not reported
  std::vector<std::string> supportedRaidLevels;  ///< storelib family only
  std::vector<std::string> supportedInterfaces;  ///< storelib family only
  bool bbuSupported = false;                     ///< storelib family only
  std::string udi;
};

/// One logical drive (RAID volume).
struct LogicalDrive {
  std::uint32_t memberCount = 0;
  std::string raidLevel;  ///< "RAID 0" to "RAID 60", "SINGLE_DRIVE_RAID_SET" or "UNKNOWN"
  std::uint64_t sizeBytes = 0;
  std::string name;                      ///< the volume's number in decimal
  std::vector<std::uint8_t> vendorData;  ///< storelib family: the logical drive information block
  std::uint16_t sequenceNumber = 0;      ///< storelib family only
  LogicalDriveState state = LogicalDriveState::Unknown;
  std::vector<std::string>
      failedMembers;  ///< degraded CSMI volume: model, " - ", serial, as the controller pads them
};

/// One drive behind a controller. Texts are exactly as the drive reports them, padding included.
struct PhysicalDrive {
  DriveProtocol protocol = DriveProtocol::Unknown;
  std::string manufacturer;
  std::string model;
  std::uint64_t sizeBytes = 0;  ///< 0: not reported
  std::uint16_t deviceId = 0;   ///< storelib family only
  std::string serial;           ///< NVMe members of the CSMI family only
};

/// One member drive with the objects that reach it.
struct StorageDeviceEntry {
  std::string id;
  DriveProtocol protocol = DriveProtocol::Unknown;
  std::shared_ptr<storage::Protocol> protocolObject;
  std::shared_ptr<storage::Protocol> ataProtocolObject;  ///< storelib family only; may be empty
};

/// The RAID operations that every device of this module offers to a host. Each returns 0 on success, otherwise a code
/// of `storage::status`. Pass empty lists: one family appends to them, the other replaces them.
class RaidDevice : public core::Device {
 public:
  [[nodiscard]] virtual std::uint32_t GetControllerInfo(ControllerInfo& info) = 0;                      // slot 9
  [[nodiscard]] virtual std::uint32_t GetLogicalDrives(std::vector<LogicalDrive>& drives) = 0;          // slot 10
  [[nodiscard]] virtual std::uint32_t GetPhysicalDrives(std::vector<PhysicalDrive>& drives) = 0;        // slot 11
  [[nodiscard]] virtual std::uint32_t GetStorageDevices(std::vector<StorageDeviceEntry>& devices) = 0;  // slot 12
};

}  // namespace orvik::module::raid
