#include "module/storage/ata/identify_data.h"

#include <algorithm>
#include <array>
#include <cctype>
#include <numeric>
#include <string_view>
#include <utility>

namespace orvik::module::storage {

namespace {

using utils::ByteView;

constexpr std::size_t kIdentifySize = 512;
constexpr utils::Block kChecksumSignature{510, 1};
constexpr std::uint8_t kChecksumPresent = 0xA5;

constexpr utils::Le16 Word(std::size_t number) {
  return {2 * number};
}
constexpr utils::Le32 DoubleWord(std::size_t number) {
  return {2 * number};
}
constexpr utils::Le64 QuadWord(std::size_t number) {
  return {2 * number};
}

constexpr std::uint16_t kNotAnAtaDevice = 1U << 15;     // word 0
constexpr std::uint16_t kLba48Supported = 1U << 10;     // word 83
constexpr std::uint16_t kSectorSizeInvalid = 1U << 15;  // word 106
constexpr std::uint16_t kLongLogicalSectors = 0x5000;   // word 106: bit 14 (word valid) and bit 12

constexpr std::uint64_t kDefaultSectorSize = 512;
constexpr std::string_view kGenericVendor = "Generic Vendor";

std::uint64_t SectorCount(ByteView data) {
  const bool lba48 = (data.Get(Word(83)) & kLba48Supported) != 0;
  return lba48 ? data.Get(QuadWord(100)) : data.Get(DoubleWord(60));
}

std::uint64_t LogicalSectorSize(ByteView data) {
  const std::uint16_t sizes = data.Get(Word(106));
  const bool reported = (sizes & kSectorSizeInvalid) == 0 && (sizes & kLongLogicalSectors) == kLongLogicalSectors;
  // By this product's contract the number counts as it stands; the standard counts 16-bit words here.
  return reported ? data.Get(DoubleWord(117)) : kDefaultSectorSize;
}

}  // namespace

bool IsValidIdentifyData(ByteView data) {
  if (data.Size() != kIdentifySize) return false;
  const auto bytes = data.Bytes();
  if (std::all_of(bytes.begin(), bytes.end(), [](std::uint8_t byte) { return byte == 0; })) return false;
  if (data.Get(utils::U8{kChecksumSignature.offset}) == kChecksumPresent) {
    const auto sum = std::accumulate(bytes.begin(), bytes.end(), 0U);
    if (sum % 256 != 0) return false;
  }
  return (data.Get(Word(0)) & kNotAnAtaDevice) == 0;
}

std::string DecodeIdentifyString(ByteView data, std::size_t first, std::size_t count) {
  std::string text = data.Text({2 * first, 2 * count});
  for (std::size_t i = 0; i + 1 < text.size(); i += 2) std::swap(text[i], text[i + 1]);
  return text;
}

std::string IdentifyModel(ByteView data) {
  return DecodeIdentifyString(data, 27, 20);
}

std::string VendorFromModel(const std::string& model) {
  static constexpr std::array<std::pair<std::string_view, std::string_view>, 3> kPrefixes = {
      {{"HT", "Hitachi"}, {"ST", "Seagate"}, {"WD", "Western Digital"}}};

  const std::size_t start = model.find_first_not_of(' ');
  if (start == std::string::npos) return std::string(kGenericVendor);
  const std::size_t end = model.find(' ', start);
  if (end != std::string::npos && model.find_first_not_of(' ', end) != std::string::npos) {
    std::string vendor = model.substr(start, end - start);
    std::transform(vendor.begin() + 1, vendor.end(), vendor.begin() + 1,
                   [](unsigned char character) { return static_cast<char>(std::tolower(character)); });
    return vendor;
  }
  for (const auto& [prefix, vendor] : kPrefixes) {
    if (model.starts_with(prefix)) return std::string(vendor);
  }
  return std::string(kGenericVendor);
}

std::uint64_t CapacityInBytes(ByteView data) {
  return SectorCount(data) * LogicalSectorSize(data);
}

}  // namespace orvik::module::storage
