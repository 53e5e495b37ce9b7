// READ and WRITE of a SCSI drive in their forms of 10, 12 and 16 bytes (SBC-3).

#include <algorithm>

#include "simulation/drives/scsi/scsi_drive.h"

namespace orvik::simulation {

namespace {

constexpr U8 kFlags{1};
constexpr std::uint8_t kProtectionBits = 0xE0;

struct Blocks {
  std::uint64_t first;
  std::uint64_t count;
};

// The length of a CDB is in the upper three bits of its operation code.
Blocks BlocksOf(std::span<const std::uint8_t> cdb) {
  switch (Get(cdb, U8{0}) >> 5) {
    case 1: return {.first = Get(cdb, Be32{2}), .count = Get(cdb, Be16{7})};
    case 5: return {.first = Get(cdb, Be32{2}), .count = Get(cdb, Be32{6})};
    default: return {.first = Get(cdb, Be64{2}), .count = Get(cdb, Be32{10})};
  }
}

}  // namespace

ScsiCompletion ScsiDrive::ReadBlocks(Cdb cdb, Data data) {
  if ((Get(cdb, kFlags) & kProtectionBits) != 0) return RefuseField(kFlags);
  const Blocks blocks = BlocksOf(cdb);
  if (!store_.Holds(blocks.first, blocks.count)) return Refuse({.code = kLbaOutOfRange, .lba = blocks.first});
  const std::uint64_t readable = store_.Read(blocks.first, blocks.count, data);
  ScsiCompletion completion;
  if (readable != blocks.count) completion = Refuse({.code = kUnrecoveredReadError, .lba = blocks.first + readable});
  completion.transferred = std::min<std::size_t>(data.size(), readable * store_.SectorSize());
  return completion;
}

// Fewer blocks than the CDB announces are a parameter list length error.
ScsiCompletion ScsiDrive::WriteBlocks(Cdb cdb, Data data) {
  if ((Get(cdb, kFlags) & kProtectionBits) != 0) return RefuseField(kFlags);
  const Blocks blocks = BlocksOf(cdb);
  if (!store_.Holds(blocks.first, blocks.count)) return Refuse({.code = kLbaOutOfRange, .lba = blocks.first});
  if (data.size() / store_.SectorSize() < blocks.count) return Refuse({.code = kDataPhaseError});
  const std::size_t size = blocks.count * store_.SectorSize();
  store_.Write(blocks.first, data.first(size));
  return {.transferred = size};
}

}  // namespace orvik::simulation
