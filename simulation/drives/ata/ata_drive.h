#pragma once

// An ATA drive: takes a register command, moves data and answers with its registers.

#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <vector>

#include "simulation/drives/drive_descriptions.h"

namespace orvik::simulation {

/// The registers of a command. `lba` holds the LBA registers: low, mid and high in bits 0 to 23, their previous
/// (extended) contents in bits 24 to 47; `features` and `count` hold their previous contents in the high byte.
struct AtaTaskFile {
  std::uint16_t features{};
  std::uint16_t count{};
  std::uint64_t lba{};
  std::uint8_t device{};
  std::uint8_t command{};
};

/// The registers after a command.
struct AtaCompletion {
  std::uint8_t status{};
  std::uint8_t error{};
  std::uint16_t count{};
  std::uint64_t lba{};
  std::uint8_t device{};
  /// Bytes that the drive moved.
  std::size_t transferred{};
};

class AtaDrive {
 public:
  explicit AtaDrive(SataDriveDescription description);

  /// Executes `command` on `data`, the bytes that come in or go out. Nothing when the drive does not answer.
  std::optional<AtaCompletion> Execute(const AtaTaskFile& command, std::span<std::uint8_t> data);

  const SataDriveDescription& Description() const { return description_; }
  /// The 512 bytes of IDENTIFY DEVICE.
  std::span<const std::uint8_t> IdentifyData() const { return identify_; }

 private:
  SataDriveDescription description_;
  std::vector<std::uint8_t> identify_;
};

}  // namespace orvik::simulation
