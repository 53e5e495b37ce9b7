#pragma once

// What a CSMI controller of the simulated machine is made from.

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "simulation/drives/base/drive_descriptions.h"

namespace orvik::simulation {

// uControllerFlags.
inline constexpr std::uint32_t kCsmiSasHba = 0x01;
inline constexpr std::uint32_t kCsmiSasRaid = 0x02;
inline constexpr std::uint32_t kCsmiSataHba = 0x04;
inline constexpr std::uint32_t kCsmiSataRaid = 0x08;

enum class CsmiStatus : std::uint32_t { Good = 1, Failed = 2, Offline = 3, PoweredOff = 4 };

enum class CsmiOfflineReason : std::uint32_t { None = 0, Initializing = 1, BusDegraded = 2, BusFailure = 3 };

/// bRaidType; any other byte may be cast to it.
enum class CsmiRaidType : std::uint8_t {
  None = 0,
  Raid0 = 1,
  Raid1 = 2,
  Raid10 = 3,
  Raid5 = 4,
  Raid15 = 5,
  Raid6 = 6,
  Raid50 = 7,
  Volume = 8,
  Raid1E = 9
};

/// bStatus of a RAID set; any other byte may be cast to it.
enum class CsmiRaidStatus : std::uint8_t {
  Ok = 0,
  Degraded = 1,
  Rebuilding = 2,
  Failed = 3,
  Offline = 4,
  Transforming = 5,
  QueuedForRebuild = 6,
  QueuedForTransformation = 7
};

enum class CsmiDriveStatus : std::uint8_t { Ok = 0, Rebuilding = 1, Failed = 2, Degraded = 3 };

/// bDeviceType of the device attached to a phy.
enum class SasDeviceType : std::uint8_t {
  Nothing = 0x00,
  EndDevice = 0x10,
  EdgeExpander = 0x20,
  FanoutExpander = 0x30
};

/// bTargetPortProtocol of the device attached to a phy.
enum class SasProtocol : std::uint8_t { Nothing = 0x00, Sata = 0x01, Smp = 0x02, Stp = 0x04, Ssp = 0x08 };

/// The attached device is described by the drive unless given here.
struct CsmiPhyDescription {
  /// Number of the drive in the controller's list; without it no drive is attached.
  std::optional<std::size_t> drive{};
  /// The phy's place in the list unless given.
  std::optional<std::uint8_t> identifier{};
  std::optional<std::uint8_t> port{};
  std::optional<SasDeviceType> deviceType{};
  std::optional<SasProtocol> protocol{};
};

/// A drive of the controller's list, or one that only the RAID set knows by its texts (at most 40 characters).
struct CsmiRaidMemberDescription {
  std::optional<std::size_t> drive{};
  std::string model{};
  std::string serial{};
  CsmiDriveStatus status = CsmiDriveStatus::Ok;
};

struct CsmiRaidSetDescription {
  CsmiRaidType type = CsmiRaidType::Raid1;
  CsmiRaidStatus status = CsmiRaidStatus::Ok;
  /// Degraded: number of the failed member; rebuilding or transforming: percent done.
  std::uint8_t information{};
  std::uint32_t capacityMiB{};
  std::uint32_t stripeKiB = 64;
  std::vector<CsmiRaidMemberDescription> members{};
};

struct CsmiControllerDescription {
  std::uint32_t flags = kCsmiSataHba | kCsmiSataRaid;
  CsmiStatus status = CsmiStatus::Good;
  CsmiOfflineReason offlineReason = CsmiOfflineReason::None;
  std::string serial{};
  /// PCI device id in the high word, vendor id in the low one.
  std::uint32_t boardId = 0x28228086;
  /// Driver revision: major, minor, build, release.
  std::array<std::uint16_t, 4> revision = {17, 9, 1, 1009};
  /// Of phy 0; the other phys follow.
  std::uint64_t sasAddress = 0x5001A5E000000000;
  std::vector<DriveDescription> drives{};
  /// Empty: one phy for each SATA and SAS drive.
  std::vector<CsmiPhyDescription> phys{};
  std::vector<CsmiRaidSetDescription> raidSets{};
  /// The size of the largest set, at least 8, unless given.
  std::optional<std::uint32_t> maxDrivesPerSet{};
};

}  // namespace orvik::simulation
