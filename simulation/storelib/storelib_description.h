#pragma once

// What the storelib half of the machine is made from: the vendor's library and the controllers that it manages.

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "simulation/drives/base/drive_descriptions.h"

namespace orvik::simulation {

/// State byte of a logical drive; any other byte may be cast to it.
enum class StorelibDriveState : std::uint8_t { Offline = 0, PartiallyDegraded = 1, Degraded = 2, Optimal = 3 };

/// SCSI device types of the physical drive list.
inline constexpr std::uint8_t kScsiDisk = 0x00;
inline constexpr std::uint8_t kScsiEnclosure = 0x0D;

/// Interface bits of the controller information.
inline constexpr std::uint8_t kStorelibSpi = 0x01;
inline constexpr std::uint8_t kStorelibSas3G = 0x02;
inline constexpr std::uint8_t kStorelibSata15G = 0x04;
inline constexpr std::uint8_t kStorelibSata3G = 0x08;
inline constexpr std::uint8_t kStorelibSas6G = 0x10;

/// A SATA or SAS drive, or what else has a device id behind the controller.
struct StorelibPhysicalDriveDescription {
  std::uint16_t deviceId{};
  DriveDescription drive{};
  std::uint8_t scsiDeviceType = kScsiDisk;
  /// Interface byte of the drive's information: taken from the drive (SAS 2, SATA 3) unless given.
  std::optional<std::uint8_t> interfaceByte{};
};

/// Duration, in machine time, and outcome of a logical drive's consistency check.
struct StorelibCheckDescription {
  std::uint32_t seconds = 120;
  /// The check is under way when the machine starts, this far (0 to 65535).
  std::optional<std::uint16_t> runningAt{};
  /// Whether the drive is consistent after a check that ran to its end.
  bool endsConsistent = true;
  /// Status with which the library refuses to start a check; 0: it starts.
  std::uint32_t startStatus{};
};

struct StorelibLogicalDriveDescription {
  std::uint8_t targetId{};
  std::uint16_t sequenceNumber = 1;
  /// 0, 1, 3, 4, 5, 6 or 17; the secondary level 3 means a span (RAID 10, 50, 60).
  std::uint8_t primaryLevel = 5;
  std::uint8_t secondaryLevel{};
  StorelibDriveState state = StorelibDriveState::Optimal;
  bool consistent = true;
  /// Of 512 bytes.
  std::uint64_t blocks{};
  /// Device ids of the member drives.
  std::vector<std::uint16_t> members{};
  StorelibCheckDescription check{};
};

struct StorelibEnclosureDescription {
  std::uint16_t enclosureId{};
  /// 0: no fault.
  std::uint8_t faultByte{};
};

struct StorelibBatteryDescription {
  /// 0: no battery.
  std::uint16_t type = 1;
  bool packMissing = false;
  bool lowVoltage = false;
  bool temperatureHigh = false;
};

struct StorelibControllerDescription {
  std::uint32_t controllerId{};
  std::string product{};
  std::string serial{};
  std::uint8_t interfaces = kStorelibSas3G | kStorelibSata3G | kStorelibSas6G;
  /// Bits of the RAID level word: 0 RAID 0, 1 RAID 1, 2 RAID 5, 4 RAID 6, 5 RAID 10, 6 RAID 50, 7 RAID 60.
  std::uint32_t raidLevels = 0xF7;
  bool batterySupported = true;
  StorelibBatteryDescription battery{};
  std::vector<StorelibPhysicalDriveDescription> drives{};
  std::vector<StorelibLogicalDriveDescription> logicalDrives{};
  std::vector<StorelibEnclosureDescription> enclosures{};
};

/// How far the vendor's library is installed.
enum class StorelibInstallation : std::uint8_t {
  Installed,
  Missing,            ///< the file cannot be loaded
  WithoutEntryPoint,  ///< it loads, and has no `ProcessLibCommand`
  FailingInit         ///< its initialise command ends with a status
};

struct StorelibDescription {
  StorelibInstallation installation = StorelibInstallation::Installed;
  std::vector<StorelibControllerDescription> controllers{};
};

}  // namespace orvik::simulation
