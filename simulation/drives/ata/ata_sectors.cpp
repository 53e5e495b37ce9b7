// Reading and writing the sectors of an ATA drive, by 28-bit and 48-bit addresses.

#include "simulation/drives/ata/ata_drive.h"
#include "simulation/drives/ata/ata_registers.h"

namespace orvik::simulation {

namespace {

constexpr std::uint8_t kLbaMode = 0x40;
constexpr std::uint64_t kLbaRegisters28 = 0xFFFFFF;
constexpr std::uint8_t kActive = 0xFF;

// Features of WRITE UNCORRECTABLE EXT.
constexpr std::uint8_t kPseudoUncorrectable = 0x55;
constexpr std::uint8_t kFlaggedUncorrectable = 0xAA;

// The registers after a command that ended at sector `lba`.
AtaCompletion FailedAt(const AtaTaskFile& command, std::uint8_t error, std::uint64_t lba, bool extended) {
  AtaCompletion completion = Failed(command, error);
  if (extended) {
    completion.lba = lba;
  } else {
    completion.lba = lba & kLbaRegisters28;
    completion.device = static_cast<std::uint8_t>((command.device & 0xF0) | (lba >> 24 & 0x0F));
  }
  return completion;
}

}  // namespace

// A count of 0 means one more than the register can hold.
std::optional<AtaDrive::Range> AtaDrive::RangeOf(const AtaTaskFile& command, AtaCompletion& refusal) const {
  const bool extended = Find(command.command)->extended;
  Range range{.first = command.lba, .count = command.count};
  if (!extended) {
    range.first = (command.lba & kLbaRegisters28) | std::uint64_t{command.device & 0x0FU} << 24;
    range.count = command.count & 0xFFU;
  }
  if (range.count == 0) range.count = extended ? 0x10000 : 0x100;
  if ((command.device & kLbaMode) == 0) {
    refusal = Aborted(command);
    return std::nullopt;
  }
  if (!store_.Holds(range.first, range.count)) {
    refusal = FailedAt(command, kAtaIdNotFound, std::max(range.first, store_.Sectors()), extended);
    return std::nullopt;
  }
  return range;
}

AtaCompletion AtaDrive::ReadSectors(const AtaTaskFile& command, Data data) {
  AtaCompletion refusal;
  const auto range = RangeOf(command, refusal);
  if (!range) return refusal;
  powerMode_ = kActive;
  const std::uint64_t readable = store_.Read(range->first, range->count, data);
  const std::size_t transferred = std::min<std::size_t>(data.size(), readable * store_.SectorSize());
  if (readable == range->count) return Completed(command, transferred);
  const bool extended = Find(command.command)->extended;
  AtaCompletion failure = FailedAt(command, kAtaUncorrectable, range->first + readable, extended);
  failure.transferred = transferred;
  return failure;
}

AtaCompletion AtaDrive::WriteSectors(const AtaTaskFile& command, Data data) {
  AtaCompletion refusal;
  const auto range = RangeOf(command, refusal);
  if (!range) return refusal;
  const std::uint64_t size = range->Bytes(store_.SectorSize());
  if (data.size() < size) return Aborted(command);
  powerMode_ = kActive;
  store_.Write(range->first, data.first(size));
  return Completed(command, size);
}

AtaCompletion AtaDrive::WriteUncorrectableExt(const AtaTaskFile& command, Data /*data*/) {
  const auto kind = static_cast<std::uint8_t>(command.features);
  if (kind != kPseudoUncorrectable && kind != kFlaggedUncorrectable) return Aborted(command);
  AtaCompletion refusal;
  const auto range = RangeOf(command, refusal);
  if (!range) return refusal;
  powerMode_ = kActive;
  store_.MakeUnreadable(range->first, range->count);
  return Completed(command);
}

}  // namespace orvik::simulation
