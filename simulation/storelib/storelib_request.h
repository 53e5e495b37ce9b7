#pragma once

// A command to the vendor's library as the library finds it, and the status that it answers.

#include <cstdint>
#include <span>

#include "simulation/storelib/storelib_layout.h"

namespace orvik::simulation {

enum class StorelibStatus : std::uint32_t {
  Success = 0,
  UnknownCommand = 1,
  BadParameter = 2,
  BlockTooSmall = 3,
  NotInitialised = 4,
  InitialisationFailed = 5,
  NoSuchController = 6,
  NoSuchDevice = 7,
  WrongSequenceNumber = 8,
  CheckAlreadyRunning = 9,
  NoCheckRunning = 10,
  DeviceDoesNotAnswer = 11,
  WrongKindOfDevice = 12,
  ScsiCommandFailed = 13,
};

/// `data` is the block that the packet names, of exactly the size that it states.
struct StorelibRequest {
  std::span<std::uint8_t> packet;
  std::span<std::uint8_t> data;

  std::uint32_t ControllerId() const { return Get(packet, command_packet::kControllerId); }
  std::uint16_t DeviceId() const { return Get(packet, command_packet::kDeviceId); }
  std::uint8_t TargetId() const { return Get(packet, command_packet::kTargetId); }
  std::uint16_t SequenceNumber() const { return Get(packet, command_packet::kSequenceNumber); }

  /// The block, zeroed before it is filled.
  std::span<std::uint8_t> CleanData() const {
    std::ranges::fill(data, std::uint8_t{0});
    return data;
  }
};

}  // namespace orvik::simulation
