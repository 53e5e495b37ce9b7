#include "simulation/drives/ata/ata_registers.h"

#include "simulation/bytes.h"

namespace orvik::simulation {

namespace {

// Register FIS of either direction (Serial ATA).
namespace fis_layout {
constexpr U8 kType{0};
constexpr U8 kFlags{1};
constexpr U8 kCommandOrStatus{2};
constexpr U8 kFeaturesOrError{3};
constexpr U8 kDevice{7};
constexpr U8 kFeaturesExp{11};
constexpr Le16 kCount{12};
constexpr std::size_t kLba[] = {4, 5, 6, 8, 9, 10};
}  // namespace fis_layout

constexpr std::uint8_t kHostToDevice = 0x27;
constexpr std::uint8_t kDeviceToHost = 0x34;
constexpr std::uint8_t kCommandBit = 0x80;
constexpr std::uint8_t kInterruptBit = 0x40;

}  // namespace

std::optional<AtaTaskFile> ReadCommandFis(std::span<const std::uint8_t> fis) {
  if (Get(fis, fis_layout::kType) != kHostToDevice) return std::nullopt;
  if ((Get(fis, fis_layout::kFlags) & kCommandBit) == 0) return std::nullopt;
  AtaTaskFile command;
  command.command = Get(fis, fis_layout::kCommandOrStatus);
  command.features =
      static_cast<std::uint16_t>(Get(fis, fis_layout::kFeaturesOrError) | Get(fis, fis_layout::kFeaturesExp) << 8);
  command.count = Get(fis, fis_layout::kCount);
  command.device = Get(fis, fis_layout::kDevice);
  unsigned shift = 0;
  for (const std::size_t offset : fis_layout::kLba) {
    command.lba |= std::uint64_t{Get(fis, U8{offset})} << shift;
    shift += 8;
  }
  return command;
}

void WriteStatusFis(std::span<std::uint8_t> fis, const AtaCompletion& completion) {
  Set(fis, fis_layout::kType, kDeviceToHost);
  Set(fis, fis_layout::kFlags, kInterruptBit);
  Set(fis, fis_layout::kCommandOrStatus, completion.status);
  Set(fis, fis_layout::kFeaturesOrError, completion.error);
  Set(fis, fis_layout::kDevice, completion.device);
  Set(fis, fis_layout::kCount, completion.count);
  unsigned shift = 0;
  for (const std::size_t offset : fis_layout::kLba) {
    Set(fis, U8{offset}, static_cast<std::uint8_t>(completion.lba >> shift));
    shift += 8;
  }
}

}  // namespace orvik::simulation
