#pragma once

// An ATA drive: takes a register command, moves data and answers with its registers.

#include <cstddef>
#include <cstdint>
#include <memory>
#include <mutex>
#include <optional>
#include <span>
#include <vector>

#include "simulation/clock.h"
#include "simulation/drives/ata/identify_data.h"
#include "simulation/drives/base/drive_descriptions.h"
#include "simulation/drives/base/sector_store.h"
#include "simulation/drives/base/self_tests.h"

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

// Bits of the error register.
inline constexpr std::uint8_t kAtaAborted = 0x04;
inline constexpr std::uint8_t kAtaIdNotFound = 0x10;
inline constexpr std::uint8_t kAtaUncorrectable = 0x40;

/// Thread-safe; executes one command at a time.
class AtaDrive {
 public:
  explicit AtaDrive(SataDriveDescription description,
                    std::shared_ptr<const Clock> clock = std::make_shared<const Clock>(1));

  /// Executes `command` on `data`, the bytes that come in or go out. Nothing when the drive does not answer.
  std::optional<AtaCompletion> Execute(const AtaTaskFile& command, std::span<std::uint8_t> data);
  /// The direction of a command's data.
  static DataDirection DirectionOf(const AtaTaskFile& command);

  const SataDriveDescription& Description() const { return description_; }

 private:
  using Data = std::span<std::uint8_t>;

  struct Command {
    std::uint8_t code;
    DataDirection direction;
    /// Has 48-bit addresses.
    bool extended;
    AtaCompletion (AtaDrive::*execute)(const AtaTaskFile&, Data);
  };
  static std::span<const Command> Commands();
  static const Command* Find(std::uint8_t code);

  AtaCompletion IdentifyDevice(const AtaTaskFile& command, Data data);
  AtaCompletion CheckPowerMode(const AtaTaskFile& command, Data data);
  AtaCompletion IdleImmediate(const AtaTaskFile& command, Data data);
  AtaCompletion StandbyImmediate(const AtaTaskFile& command, Data data);

  AtaCompletion ReadSectors(const AtaTaskFile& command, Data data);
  AtaCompletion WriteSectors(const AtaTaskFile& command, Data data);
  AtaCompletion WriteUncorrectableExt(const AtaTaskFile& command, Data data);
  /// The sectors that a command addresses.
  struct Range {
    std::uint64_t first;
    std::uint64_t count;
    std::uint64_t Bytes(std::uint32_t sectorSize) const { return count * sectorSize; }
  };
  /// Nothing, with `refusal` set, when the drive does not have them.
  std::optional<Range> RangeOf(const AtaTaskFile& command, AtaCompletion& refusal) const;

  AtaCompletion Smart(const AtaTaskFile& command, Data data);
  AtaCompletion SmartReadData(const AtaTaskFile& command, Data data);
  AtaCompletion SmartReadLog(const AtaTaskFile& command, Data data);
  AtaCompletion SmartExecuteOffline(const AtaTaskFile& command);
  AtaCompletion SmartReturnStatus(const AtaTaskFile& command) const;
  AtaCompletion ReadLogExt(const AtaTaskFile& command, Data data);
  /// All pages of a general purpose log; empty when there is no such log.
  std::vector<std::uint8_t> GeneralPurposeLog(std::uint8_t address);

  SataDriveDescription description_;
  std::vector<std::uint8_t> identify_;
  AtaFeatures features_;
  std::shared_ptr<const Clock> clock_;
  SectorStore store_;

  std::mutex mutex_;  // guards what follows
  bool smartEnabled_;
  std::uint8_t powerMode_;
  SelfTests selfTests_;
};

}  // namespace orvik::simulation
