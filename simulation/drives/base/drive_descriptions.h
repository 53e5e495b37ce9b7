#pragma once

// What a drive of the simulated machine is made from. Sizes count sectors of `sectorSize` bytes.

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

namespace orvik::simulation {

inline constexpr std::uint16_t kRotationNotReported = 0;
inline constexpr std::uint16_t kSolidState = 1;

/// Temperature of a SAS drive that does not report one.
inline constexpr int kTemperatureNotReported = 255;

/// Whether a drive predicts its failure, and whether that is switched on when the machine starts.
enum class FailurePrediction : std::uint8_t { Enabled, Disabled, Missing };

enum class SelfTestKind : std::uint8_t { Short, Extended, Conveyance };

/// A self-test that ended before the machine started.
struct PastSelfTest {
  SelfTestKind kind = SelfTestKind::Extended;
  /// Of the drive's life, when it ended.
  std::uint16_t hours{};
  /// The test passed without it.
  std::optional<std::uint64_t> failingLba{};
};

/// A drive does not support a test of 0 minutes. SAS drives have no conveyance test.
struct SelfTestDescription {
  std::uint16_t shortMinutes = 2;
  std::uint16_t extendedMinutes = 60;
  std::uint16_t conveyanceMinutes = 5;
  /// The sector at which finished tests fail; without it, they pass.
  std::optional<std::uint64_t> failingLba{};
  /// The oldest first.
  std::vector<PastSelfTest> log{};
};

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
  /// The 512 bytes of IDENTIFY DEVICE, from which capacity and features are taken. Empty: made from the other fields.
  std::vector<std::uint8_t> identify{};
  /// 48-bit addresses.
  bool lba48 = true;
  /// Logs by READ LOG EXT.
  bool generalPurposeLogs = true;
  FailurePrediction smart = FailurePrediction::Enabled;
  bool failing = false;
  int temperatureCelsius = 35;
  /// Reported by solid-state drives only.
  unsigned lifeRemainingPercent = 100;
  std::uint32_t powerOnHours = 1000;
  /// Up to 30 characters in the vendor's log DFh; without one, there is no such log.
  std::string label{};
  SelfTestDescription selfTest{};
  std::vector<std::uint64_t> unreadableSectors{};
  /// Command codes that the drive refuses.
  std::vector<std::uint8_t> unsupportedOpcodes{};
  /// Machine time that every command takes.
  std::uint32_t commandMilliseconds{};
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
  /// The standard INQUIRY data. Empty: made from the fields above.
  std::vector<std::uint8_t> inquiry{};
  FailurePrediction informationalExceptions = FailurePrediction::Enabled;
  bool failing = false;
  int temperatureCelsius = 35;
  std::uint32_t powerOnHours = 1000;
  /// Sense data in descriptor instead of fixed format.
  bool descriptorSense = false;
  SelfTestDescription selfTest{};
  std::vector<std::uint64_t> unreadableSectors{};
  /// Operation codes that the drive refuses.
  std::vector<std::uint8_t> unsupportedOpcodes{};
  std::uint32_t commandMilliseconds{};
};

struct NvmeDriveDescription {
  std::string model{};
  std::string serial{};
  std::string firmware{};
  std::uint64_t sectors{};
  std::uint32_t sectorSize = 512;
  int temperatureCelsius = 35;
  bool silent = false;
  /// Behind a controller; without it, the drive's number among the controller's NVMe drives.
  std::optional<std::uint8_t> pathId{};
  /// Answers for all namespaces at once.
  bool namespaceManagement = false;
  bool failing = false;
  unsigned lifeRemainingPercent = 100;
  std::uint32_t powerOnHours = 1000;
  std::string label{};
  std::vector<std::uint64_t> unreadableSectors{};
  std::uint32_t commandMilliseconds{};
};

using DriveDescription = std::variant<SataDriveDescription, SasDriveDescription, NvmeDriveDescription>;

/// A drive without a controller, `\\.\PhysicalDriveN`.
struct PhysicalDriveDescription {
  DriveDescription drive{};
  /// The system blocks every command to the drive.
  bool accessDenied = false;
};

/// Direction of a command's data, seen from the host.
enum class DataDirection : std::uint8_t { None, In, Out };

/// The vendor's log with the text of the drive's printed label.
inline constexpr std::uint8_t kLabelLog = 0xDF;

std::vector<std::uint8_t> MakeLabelLog(std::string_view label);

}  // namespace orvik::simulation
