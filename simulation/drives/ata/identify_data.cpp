#include "simulation/drives/ata/identify_data.h"

#include <algorithm>
#include <bit>
#include <numeric>
#include <string>
#include <string_view>

#include "simulation/bytes.h"

namespace orvik::simulation {

namespace {

// IDENTIFY DEVICE data (ACS-3), a table of 256 words.
namespace identify {
constexpr Le16 Word(std::size_t number) {
  return {2 * number};
}
constexpr Block Words(std::size_t first, std::size_t last) {
  return {2 * first, 2 * (last - first + 1)};
}

constexpr std::size_t kSize = 512;
constexpr Block kSerial = Words(10, 19);
constexpr Block kFirmware = Words(23, 26);
constexpr Block kModel = Words(27, 46);
constexpr Le32 kSectors28{Word(60).offset};
constexpr Le16 kCommandSets82 = Word(82);
constexpr Le16 kCommandSets83 = Word(83);
constexpr Le16 kCommandSets84 = Word(84);
constexpr Le16 kEnabled85 = Word(85);
constexpr Le16 kEnabled86 = Word(86);
constexpr Le16 kEnabled87 = Word(87);
constexpr Le64 kSectors48{Word(100).offset};
constexpr Le16 kSectorSizes = Word(106);
constexpr Le32 kLogicalSectorWords{Word(117).offset};
constexpr Le16 kRotationRate = Word(217);
constexpr U8 kChecksumValid{510};
constexpr U8 kChecksum{511};
}  // namespace identify

constexpr std::uint32_t kSmallSector = 512;
constexpr std::uint64_t kMostSectors28 = 0x0FFFFFFF;
constexpr std::uint8_t kChecksumSignature = 0xA5;

// Bits of the words above.
constexpr std::uint16_t kSmart = 0x0001;               // 82, 85
constexpr std::uint16_t kExtendedAddresses = 0x0400;   // 83, 86
constexpr std::uint16_t kGeneralPurposeLogs = 0x0020;  // 84, 87
constexpr std::uint16_t kLargeSectors = 0x1000;        // 106
constexpr std::uint16_t kSizesValid = 0x4000;          // 106
constexpr std::uint16_t kSizesInvalid = 0x8000;        // 106

// The two characters of each word are swapped.
void SetSwappedText(std::span<std::uint8_t> data, Block block, std::string_view text) {
  SetText(data, block, text, ' ');
  const auto bytes = Inside(data, block);
  for (std::size_t i = 0; i + 1 < bytes.size(); i += 2) std::swap(bytes[i], bytes[i + 1]);
}

void SetCapacity(std::span<std::uint8_t> data, const SataDriveDescription& drive) {
  Set(data, identify::kSectors28, static_cast<std::uint32_t>(std::min(drive.sectors, kMostSectors28)));
  if (drive.lba48) Set(data, identify::kSectors48, drive.sectors);
  std::uint16_t sizes = kSizesValid;
  if (drive.sectorSize != 512) {
    sizes |= kLargeSectors;
    Set(data, identify::kLogicalSectorWords, drive.sectorSize / 2);
  }
  if (drive.physicalSectorSize > drive.sectorSize) {
    const auto exponent = std::countr_zero(std::bit_floor(drive.physicalSectorSize / drive.sectorSize));
    sizes = static_cast<std::uint16_t>(sizes | 0x2000 | exponent);
  }
  Set(data, identify::kSectorSizes, sizes);
}

void SetCapabilities(std::span<std::uint8_t> data) {
  using identify::Word;
  Set(data, Word(0), 0x0040);  // fixed drive
  Set(data, Word(1), 0x3FFF);  // placeholder geometry: see the sector counts
  Set(data, Word(3), 0x0010);
  Set(data, Word(6), 0x003F);
  Set(data, Word(47), 0x8010);  // 16 sectors per multiple transfer
  Set(data, Word(49), 0x2F00);  // LBA, DMA, IORDY, standard standby timers
  Set(data, Word(50), 0x4000);
  Set(data, Word(53), 0x0006);  // words 64 to 70 and 88 are valid
  Set(data, Word(63), 0x0007);
  Set(data, Word(64), 0x0003);
  for (std::size_t cycleTime = 65; cycleTime <= 68; ++cycleTime) Set(data, Word(cycleTime), 120);
  Set(data, Word(75), 31);      // queue depth 32
  Set(data, Word(76), 0x010E);  // SATA 1.5, 3 and 6 Gbit/s, native queueing
  Set(data, Word(80), 0x07F0);  // ATA/ATAPI-4 to ACS-3
  Set(data, Word(88), 0x007F);
  Set(data, Word(222), 0x10FF);  // serial transport, SATA up to 3.2
}

std::uint16_t Without(std::uint16_t word, std::uint16_t bit, bool without) {
  return without ? static_cast<std::uint16_t>(word & ~bit) : word;
}

// Words 82 to 84 list supported features, 85 to 87 enabled ones.
void SetCommandSets(std::span<std::uint8_t> data, const SataDriveDescription& drive) {
  const bool noSmart = drive.smart == FailurePrediction::Missing;
  const bool smartOff = drive.smart != FailurePrediction::Enabled;
  const bool noLogs = !drive.generalPurposeLogs;
  // SMART, security, power management, write cache, look-ahead; security is off.
  Set(data, identify::kCommandSets82, Without(0x346B, kSmart, noSmart));
  Set(data, identify::kEnabled85, Without(0x3469, kSmart, smartOff));
  // 48-bit addresses, FLUSH CACHE and its extended form.
  Set(data, identify::kCommandSets83, Without(0x7D01, kExtendedAddresses, !drive.lba48));
  Set(data, identify::kEnabled86, Without(0x3C01, kExtendedAddresses, !drive.lba48));
  // SMART error log and self-test, general purpose logs.
  Set(data, identify::kCommandSets84, Without(0x4123, kGeneralPurposeLogs, noLogs));
  Set(data, identify::kEnabled87, Without(0x4123, kGeneralPurposeLogs, noLogs));
}

void SetChecksum(std::span<std::uint8_t> data) {
  Set(data, identify::kChecksum, 0);
  const unsigned sum = std::accumulate(data.begin(), data.end(), 0U);
  Set(data, identify::kChecksum, static_cast<std::uint8_t>(0U - sum));
}

std::string SwappedText(std::span<const std::uint8_t> data, Block block) {
  const auto bytes = Inside(data, block);
  std::string text(bytes.begin(), bytes.end());
  for (std::size_t i = 0; i + 1 < text.size(); i += 2) std::swap(text[i], text[i + 1]);
  return text.erase(text.find_last_not_of(' ') + 1);
}

}  // namespace

std::vector<std::uint8_t> MakeIdentifyData(const SataDriveDescription& drive) {
  std::vector<std::uint8_t> data(identify::kSize);
  SetCapabilities(data);
  SetCommandSets(data, drive);
  SetSwappedText(data, identify::kSerial, drive.serial);
  SetSwappedText(data, identify::kFirmware, drive.firmware);
  SetSwappedText(data, identify::kModel, drive.model);
  SetCapacity(data, drive);
  Set(data, identify::kRotationRate, drive.rotationRate);
  Set(data, identify::kChecksumValid, kChecksumSignature);
  SetChecksum(data);
  return data;
}

std::vector<std::uint8_t> WithSmartEnabled(std::vector<std::uint8_t> identify, bool enabled) {
  const std::uint16_t word = Get(std::span<const std::uint8_t>(identify), identify::kEnabled85);
  Set(identify, identify::kEnabled85, static_cast<std::uint16_t>(enabled ? word | kSmart : word & ~kSmart));
  SetChecksum(identify);
  return identify;
}

AtaFeatures FeaturesOf(std::span<const std::uint8_t> identify) {
  AtaFeatures features;
  features.lba48 = (Get(identify, identify::kCommandSets83) & kExtendedAddresses) != 0;
  features.sectors = features.lba48 ? Get(identify, identify::kSectors48) : Get(identify, identify::kSectors28);
  const std::uint16_t sizes = Get(identify, identify::kSectorSizes);
  const bool large = (sizes & (kSizesInvalid | kSizesValid | kLargeSectors)) == (kSizesValid | kLargeSectors);
  features.sectorSize = large ? 2 * Get(identify, identify::kLogicalSectorWords) : kSmallSector;
  if (features.sectorSize == 0) features.sectorSize = kSmallSector;
  features.generalPurposeLogs = (Get(identify, identify::kCommandSets84) & kGeneralPurposeLogs) != 0;
  features.smartSupported = (Get(identify, identify::kCommandSets82) & kSmart) != 0;
  features.smartEnabled = features.smartSupported && (Get(identify, identify::kEnabled85) & kSmart) != 0;
  features.solidState = Get(identify, identify::kRotationRate) == kSolidState;
  return features;
}

void DescribeByIdentifyData(SataDriveDescription& drive) {
  const AtaFeatures features = FeaturesOf(drive.identify);
  drive.sectors = features.sectors;
  drive.sectorSize = features.sectorSize;
  drive.model = SwappedText(drive.identify, identify::kModel);
  drive.serial = SwappedText(drive.identify, identify::kSerial);
  drive.firmware = SwappedText(drive.identify, identify::kFirmware);
}

}  // namespace orvik::simulation
