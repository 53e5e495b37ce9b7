#include "module/storage/ata/smart_data.h"

#include <algorithm>

namespace orvik::module::storage {

namespace {

using utils::U8;

constexpr utils::BlockArray kAttributes{2, 12};
constexpr std::size_t kAttributeCount = 30;

/// One entry of the attribute table.
namespace attribute {
constexpr U8 kId{0};
constexpr U8 kCurrentValue{3};
constexpr U8 kRawValue{5};
constexpr std::uint8_t kTemperature = 194;
constexpr std::uint8_t kMediaWearout = 233;
constexpr std::uint8_t kLowestValue = 1;
constexpr std::uint8_t kHighestValue = 253;
}  // namespace attribute

constexpr U8 kSelfTestStatus{363};  // high half: result, low half: tenths that remain
constexpr U8 kOfflineCapability{367};
constexpr unsigned kExecuteOfflineImmediate = 1U << 0;
constexpr unsigned kAbortsOfflineOnCommand = 1U << 2;
constexpr unsigned kSelfTest = 1U << 4;
constexpr unsigned kConveyanceSelfTest = 1U << 5;

}  // namespace

std::optional<std::uint8_t> SmartData::Temperature() const {
  std::optional<std::uint8_t> degrees;
  for (std::size_t i = 0; i < kAttributeCount; ++i) {
    const utils::ByteView entry = data_.Sub(kAttributes.At(i));
    if (entry.Get(attribute::kId) == attribute::kTemperature) degrees = entry.Get(attribute::kRawValue);
  }
  return degrees;
}

std::optional<std::uint8_t> SmartData::LifeRemaining() const {
  for (std::size_t i = 0; i < kAttributeCount; ++i) {
    const utils::ByteView entry = data_.Sub(kAttributes.At(i));
    const std::uint8_t value = entry.Get(attribute::kCurrentValue);
    const bool inRange = value >= attribute::kLowestValue && value <= attribute::kHighestValue;
    if (entry.Get(attribute::kId) == attribute::kMediaWearout && inRange) return value;
  }
  return std::nullopt;
}

std::uint8_t SmartData::SelfTestProgress() const {
  const int remaining = 10 * (data_.Get(kSelfTestStatus) & 0x0F);
  return static_cast<std::uint8_t>(std::max(100 - remaining, 0));
}

std::uint8_t SmartData::SelfTestResult() const {
  return static_cast<std::uint8_t>(data_.Get(kSelfTestStatus) >> 4);
}

void SmartData::DescribeCapabilities(ProtocolProperties& properties) const {
  const std::uint8_t capability = data_.Get(kOfflineCapability);
  properties.offlineImmediateSupported = (capability & kExecuteOfflineImmediate) != 0;
  properties.offlineAbortSupported = (capability & kAbortsOfflineOnCommand) != 0;
  properties.selfTestSupported = (capability & kSelfTest) != 0;
  properties.conveyanceSelfTestSupported = (capability & kConveyanceSelfTest) != 0;
}

}  // namespace orvik::module::storage
