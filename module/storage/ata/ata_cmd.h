#pragma once

#include <cstdint>

#include "module/storage/status.h"

namespace orvik::module::storage {

/// An ATA command: its registers, and after the send what the drive left in them (ERROR in the low byte of
/// `features`, STATUS in `command`). In 16-bit registers the low byte is the current, the high byte the previous
/// (48-bit) value. The buffer belongs to the caller.
class AtaCmd {
 public:
  AtaCmd() = default;
  AtaCmd(const AtaCmd&) = default;
  AtaCmd& operator=(const AtaCmd&) = default;
  virtual ~AtaCmd() = default;

  std::uint16_t features = 0;
  std::uint16_t sectorCount = 0;
  std::uint16_t lbaLow = 0;   ///< LBA bits 0-7 and 24-31
  std::uint16_t lbaMid = 0;   ///< LBA bits 8-15 and 32-39
  std::uint16_t lbaHigh = 0;  ///< LBA bits 16-23 and 40-47
  std::uint8_t device = 0;
  std::uint8_t command = 0;
  Direction direction = Direction::kNone;
  std::uint64_t length = 0;  ///< bytes to transfer; after the send the bytes received
  std::uint32_t timeout = kDefaultTimeoutSeconds;
  std::uint8_t* buffer = nullptr;
};

/// Bit 0 of the STATUS register: the command ended with an error.
inline constexpr std::uint8_t kAtaStatusError = 0x01;

/// IDENTIFY DEVICE (ACS-4, 7.13): 512 bytes in.
class IdentifyDevice final : public AtaCmd {
 public:
  static constexpr std::uint64_t kDataSize = 512;

  explicit IdentifyDevice(std::uint8_t* data) {
    command = 0xEC;
    sectorCount = 1;
    direction = Direction::kIn;
    length = kDataSize;
    buffer = data;
  }
};

}  // namespace orvik::module::storage
