#include "module/storage/ata/identify_data.h"

#include <hostkit.h>

#include <algorithm>
#include <array>
#include <limits>
#include <numeric>
#include <string_view>
#include <utility>

#include "module/storage/ata/identify_words.h"
#include "module/storage/standards/ata_versions.h"
#include "module/storage/transfer.h"
#include "utils/text/string_handler.h"

namespace orvik::module::storage {

namespace {

using utils::ByteView;
using namespace identify_data;

constexpr std::uint32_t kDefaultSectorSize = 512;
constexpr std::string_view kGenericVendor = "Generic Vendor";

/// What a model of one word begins with, in key order.
struct ModelPrefix {
  std::string_view prefix;
  std::string_view vendor;
};
constexpr std::array<ModelPrefix, 3> kModelPrefixes = {
    {{"HT", "Hitachi"}, {"ST", "Seagate"}, {"WD", "Western Digital"}}};

std::uint64_t SectorCount(ByteView data) {
  return (data.Get(kCommandSets2) & kLba48) != 0 ? data.Get(kSectorCount48) : data.Get(kSectorCount28);
}

bool ReportsSectorSize(ByteView data, std::uint16_t bits) {
  const std::uint16_t sizes = data.Get(kSectorSizes);
  return (sizes & kSectorSizesInvalid) == 0 && (sizes & bits) == bits;
}

std::uint32_t LogicalSectorSize(ByteView data) {
  // By this product's contract the number counts as it stands; the standard counts 16-bit words here.
  return ReportsSectorSize(data, kSectorSizesValid | kLongLogicalSectors) ? data.Get(kLogicalSectorSize)
                                                                          : kDefaultSectorSize;
}

std::uint32_t PhysicalSectorSize(ByteView data) {
  const std::uint32_t logical = LogicalSectorSize(data);
  if (!ReportsSectorSize(data, kSectorSizesValid | kLargePhysicalSectors)) return logical;
  return DoubledSize(logical, data.Get(kSectorSizes) & kSectorsPerPhysicalExponent);
}

std::uint32_t CacheSize(ByteView data) {
  if ((data.Get(kCacheFlags) & kCacheSizeReported) == 0) return data.Get(kBufferSize);
  return std::uint32_t{data.Get(kCacheSizeHigh)} << 16 | data.Get(kCacheSizeLow);
}

std::string TrimmedText(ByteView data, Words words) {
  std::string text = DecodeIdentifyString(data, words.first, words.count);
  // The contract trims with the host's string service.
  get_string_handler()->Trim(text);
  return text;
}

}  // namespace

bool SumsToZero(ByteView data) {
  const auto bytes = data.Bytes();
  return std::accumulate(bytes.begin(), bytes.end(), 0U) % 256 == 0;
}

bool IsValidIdentifyData(ByteView data) {
  if (data.Size() != kSize) return false;
  if (std::ranges::all_of(data.Bytes(), [](std::uint8_t byte) { return byte == 0; })) return false;
  if (data.Get(kChecksumSignature) == kChecksumPresent && !SumsToZero(data)) return false;
  return (data.Get(kGeneral) & kNotAnAtaDevice) == 0;
}

std::string DecodeIdentifyString(ByteView data, std::size_t first, std::size_t count) {
  std::string text = data.Text({2 * first, 2 * count});
  for (std::size_t i = 0; i + 1 < text.size(); i += 2) std::swap(text[i], text[i + 1]);
  return text;
}

std::string IdentifyModel(ByteView data) {
  return DecodeIdentifyString(data, kModel.first, kModel.count);
}

std::string VendorFromModel(const std::string& model) {
  const std::size_t start = model.find_first_not_of(' ');
  if (start == std::string::npos) return std::string(kGenericVendor);
  const std::size_t end = model.find(' ', start);
  if (end != std::string::npos && model.find_first_not_of(' ', end) != std::string::npos) {
    std::string rest = model.substr(start + 1, end - start - 1);
    OwnStringHandler()->ToLower(rest);
    return model[start] + rest;
  }
  const auto* const known = std::ranges::find_if(
      kModelPrefixes, [&model](std::string_view prefix) { return model.starts_with(prefix); }, &ModelPrefix::prefix);
  return std::string(known == kModelPrefixes.end() ? kGenericVendor : known->vendor);
}

std::uint64_t CapacityInBytes(ByteView data) {
  const std::uint64_t sectors = SectorCount(data);
  const std::uint64_t size = LogicalSectorSize(data);
  if (size != 0 && sectors > std::numeric_limits<std::uint64_t>::max() / size) return 0;
  return sectors * size;
}

void DescribeIdentifyData(ByteView data, ProtocolProperties& properties) {
  properties.securitySupported = (data.Get(kCommandSets1) & kSecurity) != 0;
  properties.securityLocked =
      (data.Get(kCommandSets1Enabled) & kSecurity) != 0 && (data.Get(kSecurityStatus) & kSecurityLocked) != 0;
  properties.lba48Supported = (data.Get(kCommandSets2) & kLba48) != 0;
  properties.smartSupported = (data.Get(kCommandSets1) & kSmart) != 0;
  properties.smartEnabled = (data.Get(kCommandSets1Enabled) & kSmart) != 0;

  properties.serialNumber = TrimmedText(data, kSerialNumber);
  properties.model = TrimmedText(data, kModel);
  properties.firmwareRevision = TrimmedText(data, kFirmwareRevision);
  properties.vendor = VendorFromModel(properties.model);
  AppendAtaMajorVersions(data.Get(kMajorVersion), properties.supportedStandards);
  properties.standardVersion = AtaMinorVersionName(data.Get(kMinorVersion));

  properties.sectorCount = SectorCount(data);
  properties.logicalSectorSize = LogicalSectorSize(data);
  properties.physicalSectorSize = PhysicalSectorSize(data);
  properties.cacheSize = CacheSize(data);

  const std::uint16_t rate = data.Get(kRotationRate);
  properties.rotationRate = rate >= kSlowestRotation && rate <= kFastestRotation ? rate : std::uint16_t{0};
  properties.isSolidState = rate == kNonRotating;
}

}  // namespace orvik::module::storage
