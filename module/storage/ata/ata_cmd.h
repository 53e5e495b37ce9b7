#pragma once

#include <cstdint>

#include "module/storage/transfer.h"

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

 protected:
  void Transfer(Direction way, std::uint8_t* data, std::uint64_t size) {
    direction = way;
    buffer = data;
    length = size;
  }
};

/// Bit 0 of the STATUS register: the command ended with an error.
inline constexpr std::uint8_t kAtaStatusError = 0x01;

/// Bits of the ERROR register (ACS-4, 6.3).
namespace ata_error {
inline constexpr std::uint8_t kAbort = 0x04;
inline constexpr std::uint8_t kIdNotFound = 0x10;
inline constexpr std::uint8_t kUncorrectable = 0x40;
inline constexpr std::uint8_t kInterfaceCrc = 0x80;
}  // namespace ata_error

/// A register's current value, and the previous one that a 48-bit command also uses.
constexpr std::uint8_t Current(std::uint16_t value) {
  return static_cast<std::uint8_t>(value & 0xFF);
}
constexpr std::uint8_t Previous(std::uint16_t value) {
  return static_cast<std::uint8_t>(value >> 8);
}
constexpr std::uint16_t Register(std::uint8_t current, std::uint8_t previous) {
  return static_cast<std::uint16_t>(previous << 8 | current);
}
constexpr void SetCurrent(std::uint16_t& value, std::uint8_t current) {
  value = Register(current, Previous(value));
}

}  // namespace orvik::module::storage
