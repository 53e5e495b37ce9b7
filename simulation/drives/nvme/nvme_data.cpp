#include "simulation/drives/nvme/nvme_data.h"

#include <algorithm>
#include <bit>

#include "simulation/bytes.h"

namespace orvik::simulation {

namespace {

constexpr std::size_t kIdentifySize = 4096;

namespace controller {
constexpr Block kSerial{4, 20};
constexpr Block kModel{24, 40};
constexpr Block kFirmware{64, 8};
constexpr U8 kArbitrationBurst{72};
constexpr Le32 kVersion{80};
constexpr Le16 kOptionalAdminCommands{256};
constexpr U8 kFirmwareUpdates{260};
constexpr Le16 kWarningTemperature{266};
constexpr Le16 kCriticalTemperature{268};
constexpr U8 kSubmissionEntrySizes{512};
constexpr U8 kCompletionEntrySizes{513};
constexpr Le32 kNamespaces{516};
constexpr U8 kWriteCache{525};
constexpr std::uint16_t kNamespaceManagement = 0x0008;
}  // namespace controller

namespace name_space {
constexpr Le64 kSize{0};
constexpr Le64 kCapacity{8};
constexpr Le64 kUsed{16};
constexpr U8 kLastFormat{25};
constexpr U8 kFormatInUse{26};
constexpr U8 FormatExponent(std::size_t number) {
  return {128 + 4 * number + 2};
}
}  // namespace name_space

namespace health_log {
constexpr std::size_t kSize = 512;
constexpr U8 kWarnings{0};
constexpr Le16 kKelvin{1};
constexpr U8 kSpare{3};
constexpr U8 kSpareThreshold{4};
constexpr U8 kPercentageUsed{5};
constexpr Le64 kPowerCycles{112};
constexpr Le64 kPowerOnHours{128};
constexpr std::uint8_t kTooHot = 0x02;
constexpr std::uint8_t kUnreliable = 0x04;
}  // namespace health_log

constexpr int kFreezingPoint = 273;
constexpr int kWarningCelsius = 75;
constexpr int kCriticalCelsius = 85;

std::uint16_t Kelvin(int celsius) {
  return static_cast<std::uint16_t>(celsius + kFreezingPoint);
}

}  // namespace

std::vector<std::uint8_t> MakeIdentifyController(const NvmeDriveDescription& drive) {
  std::vector<std::uint8_t> data(kIdentifySize);
  SetText(data, controller::kSerial, drive.serial, ' ');
  SetText(data, controller::kModel, drive.model, ' ');
  SetText(data, controller::kFirmware, drive.firmware, ' ');
  Set(data, controller::kArbitrationBurst, 1);
  Set(data, controller::kVersion, 0x00010200);
  Set(data, controller::kOptionalAdminCommands,
      drive.namespaceManagement ? controller::kNamespaceManagement : std::uint16_t{0});
  Set(data, controller::kFirmwareUpdates, 0x02);  // one slot
  Set(data, controller::kWarningTemperature, Kelvin(kWarningCelsius));
  Set(data, controller::kCriticalTemperature, Kelvin(kCriticalCelsius));
  Set(data, controller::kSubmissionEntrySizes, 0x66);  // 64 bytes
  Set(data, controller::kCompletionEntrySizes, 0x44);  // 16 bytes
  Set(data, controller::kNamespaces, 1);
  Set(data, controller::kWriteCache, 1);
  return data;
}

// Two usual formats are always offered; another one that is in use follows them.
std::vector<std::uint8_t> MakeIdentifyNamespace(const NvmeDriveDescription& drive) {
  std::vector<std::uint8_t> exponents = {9, 12};
  const auto exponent = static_cast<std::uint8_t>(std::bit_width(drive.sectorSize) - 1);
  auto inUse = std::ranges::find(exponents, exponent);
  if (inUse == exponents.end()) inUse = exponents.insert(inUse, exponent);

  std::vector<std::uint8_t> data(kIdentifySize);
  Set(data, name_space::kSize, drive.sectors);
  Set(data, name_space::kCapacity, drive.sectors);
  Set(data, name_space::kUsed, drive.sectors);
  Set(data, name_space::kLastFormat, static_cast<std::uint8_t>(exponents.size() - 1));
  Set(data, name_space::kFormatInUse, static_cast<std::uint8_t>(inUse - exponents.begin()));
  for (std::size_t i = 0; i < exponents.size(); ++i) Set(data, name_space::FormatExponent(i), exponents[i]);
  return data;
}

std::vector<std::uint8_t> MakeNamespaceList(std::uint32_t after) {
  std::vector<std::uint8_t> data(kIdentifySize);
  if (after < kFirstNamespace) Set(data, Le32{0}, kFirstNamespace);
  return data;
}

std::vector<std::uint8_t> MakeHealthLog(const NvmeDriveDescription& drive, std::uint32_t powerOnHours) {
  std::vector<std::uint8_t> log(health_log::kSize);
  unsigned warnings = 0;
  if (drive.temperatureCelsius >= kWarningCelsius) warnings |= health_log::kTooHot;
  if (drive.failing) warnings |= health_log::kUnreliable;
  Set(log, health_log::kWarnings, static_cast<std::uint8_t>(warnings));
  Set(log, health_log::kKelvin, Kelvin(drive.temperatureCelsius));
  Set(log, health_log::kSpare, 100);
  Set(log, health_log::kSpareThreshold, 10);
  Set(log, health_log::kPercentageUsed, static_cast<std::uint8_t>(100 - std::min(drive.lifeRemainingPercent, 100U)));
  Set(log, health_log::kPowerCycles, 1);
  Set(log, health_log::kPowerOnHours, powerOnHours);
  return log;
}

}  // namespace orvik::simulation
