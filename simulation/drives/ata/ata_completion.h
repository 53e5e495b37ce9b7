#pragma once

// The ways in which an ATA command ends.

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <span>

#include "simulation/drives/ata/ata_drive.h"

namespace orvik::simulation {

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
