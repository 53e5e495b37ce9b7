#pragma once

// What a drive of the simulated machine is made from. Sizes count sectors of `sectorSize` bytes.

#include <cstdint>
#include <optional>
#include <string>
#include <variant>
#include <vector>

namespace orvik::simulation {

inline constexpr std::uint16_t kRotationNotReported = 0;
inline constexpr std::uint16_t kSolidState = 1;

struct SataDriveDescription {
  std::string model{};
  std::string serial{};
  std::string firmware{};
  std::uint64_t sectors{};
  std::uint32_t sectorSize = 512;
  std::uint32_t physicalSectorSize = 4096;
  /// Revolutions per minute, `kSolidState` or `kRotationNotReported`.
  std::uint16_t rotationRate = 7200;
  /// Does not answer any command.
  bool silent = false;
  /// The 512 bytes of IDENTIFY DEVICE as they stand; empty: made from the fields above.
  std::vector<std::uint8_t> identify{};
};

struct SasDriveDescription {
  std::string vendor{};
  std::string product{};
  std::string revision{};
  std::string serial{};
  std::uint64_t sectors{};
  std::uint32_t sectorSize = 512;
  std::uint32_t physicalSectorSize = 512;
  std::uint16_t rotationRate = 10000;
  /// Of the drive's port; without it the controller gives it one.
  std::optional<std::uint64_t> sasAddress{};
  bool silent = false;
};

struct NvmeDriveDescription {
  std::string model{};
  std::string serial{};
  std::string firmware{};
  std::uint64_t sectors{};
  std::uint32_t sectorSize = 512;
  int temperatureCelsius = 35;
  bool silent = false;
};

using DriveDescription = std::variant<SataDriveDescription, SasDriveDescription, NvmeDriveDescription>;

}  // namespace orvik::simulation
