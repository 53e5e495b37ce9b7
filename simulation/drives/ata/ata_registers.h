#pragma once

// The registers of ATA commands (ACS-3): their FIS, their use by SMART, and their values after a command.

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>

#include "simulation/drives/ata/ata_drive.h"

namespace orvik::simulation {

/// The command in a host-to-device register FIS (Serial ATA, 20 bytes); nothing for any other FIS.
std::optional<AtaTaskFile> ReadCommandFis(std::span<const std::uint8_t> fis);

/// Fills `fis` (20 bytes) with the device-to-host register FIS that ends a command.
void WriteStatusFis(std::span<std::uint8_t> fis, const AtaCompletion& completion);

namespace smart_feature {
inline constexpr std::uint8_t kReadData = 0xD0;
inline constexpr std::uint8_t kExecuteOffline = 0xD4;
inline constexpr std::uint8_t kReadLog = 0xD5;
inline constexpr std::uint8_t kEnable = 0xD8;
inline constexpr std::uint8_t kDisable = 0xD9;
inline constexpr std::uint8_t kReturnStatus = 0xDA;
}  // namespace smart_feature

inline std::uint8_t SmartFeature(const AtaTaskFile& command) {
  return static_cast<std::uint8_t>(command.features);
}

inline bool IsSmartRead(const AtaTaskFile& command) {
  return SmartFeature(command) == smart_feature::kReadData || SmartFeature(command) == smart_feature::kReadLog;
}

/// As the drive leaves the registers after a command that worked: most keep what the host wrote.
inline AtaCompletion Completed(const AtaTaskFile& command, std::size_t transferred = 0) {
  constexpr std::uint8_t kReady = 0x50;  // DRDY, DSC
  return {kReady, 0, command.count, command.lba, command.device, transferred};
}

inline AtaCompletion Failed(const AtaTaskFile& command, std::uint8_t error) {
  constexpr std::uint8_t kReadyWithError = 0x51;
  return {kReadyWithError, error, command.count, command.lba, command.device, 0};
}

inline AtaCompletion Aborted(const AtaTaskFile& command) {
  return Failed(command, kAtaAborted);
}

/// Hands `reply` over, or as much of it as the host takes.
inline AtaCompletion Delivered(const AtaTaskFile& command, std::span<const std::uint8_t> reply,
                               std::span<std::uint8_t> data) {
  const std::size_t size = std::min(reply.size(), data.size());
  std::copy_n(reply.begin(), size, data.begin());
  return Completed(command, size);
}

}  // namespace orvik::simulation
