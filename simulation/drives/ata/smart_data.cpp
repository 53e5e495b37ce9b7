#include "simulation/drives/ata/smart_data.h"

#include <algorithm>
#include <numeric>

#include "simulation/bytes.h"

namespace orvik::simulation {

namespace {

namespace smart_data {
constexpr Le16 kRevision{0};
constexpr std::size_t kAttributeSize = 12;
constexpr Block Attribute(std::size_t number) {
  return {2 + kAttributeSize * number, kAttributeSize};
}
constexpr U8 kOfflineStatus{362};
constexpr U8 kSelfTestStatus{363};
constexpr Le16 kOfflineSeconds{364};
constexpr U8 kOfflineCapability{367};
constexpr Le16 kSmartCapability{368};
constexpr U8 kErrorLogging{370};
constexpr U8 kShortMinutes{372};
constexpr U8 kExtendedMinutes{373};
constexpr U8 kConveyanceMinutes{374};
constexpr Le16 kLongExtendedMinutes{375};
}  // namespace smart_data

namespace attribute {
constexpr U8 kId{0};
constexpr Le16 kFlags{1};
constexpr U8 kCurrent{3};
constexpr U8 kWorst{4};
constexpr Le32 kRaw{5};
}  // namespace attribute

constexpr std::uint8_t kReallocatedSectors = 5;
constexpr std::uint8_t kPowerOnHours = 9;
constexpr std::uint8_t kTemperature = 194;
constexpr std::uint8_t kPendingSectors = 197;
constexpr std::uint8_t kWear = 233;

constexpr std::uint16_t kPrefailure = 0x0033;
constexpr std::uint16_t kAdvisory = 0x0032;
constexpr unsigned kBest = 100;

// Off-line data collection capability.
constexpr unsigned kOfflineImmediate = 0x01;
constexpr unsigned kOfflineAbort = 0x04;
constexpr unsigned kOfflineScan = 0x08;
constexpr unsigned kSelfTest = 0x10;
constexpr unsigned kConveyanceSelfTest = 0x20;

constexpr std::uint8_t kCollectionNeverStarted = 0x00;
constexpr U8 kPageChecksum{kAtaPage - 1};

void SetPageChecksum(std::span<std::uint8_t> page) {
  const unsigned sum = std::accumulate(page.begin(), page.end(), 0U);
  Set(page, kPageChecksum, static_cast<std::uint8_t>(0U - sum));
}

struct Attribute {
  std::uint8_t id;
  std::uint16_t flags;
  unsigned current;
  std::uint32_t raw;
};

std::vector<Attribute> AttributesOf(const SmartReport& report) {
  const auto temperature = static_cast<std::uint8_t>(report.temperatureCelsius);
  const auto pending = static_cast<std::uint32_t>(report.unreadableSectors);
  std::vector<Attribute> attributes = {
      {kReallocatedSectors, kPrefailure, report.failing ? 1 : kBest, report.failing ? 4000U : 0U},
      {kPowerOnHours, kAdvisory, kBest, report.powerOnHours},
      {kTemperature, kAdvisory, kBest - std::min<unsigned>(temperature, kBest - 1), temperature},
      {kPendingSectors, kAdvisory, kBest, pending},
  };
  // A normalised value is never 0.
  if (report.lifeRemainingPercent) {
    attributes.push_back({kWear, kAdvisory, std::max(*report.lifeRemainingPercent, 1U), 0});
  }
  return attributes;
}

void SetAttribute(std::span<std::uint8_t> entry, const Attribute& attribute) {
  Set(entry, attribute::kId, attribute.id);
  Set(entry, attribute::kFlags, attribute.flags);
  Set(entry, attribute::kCurrent, static_cast<std::uint8_t>(attribute.current));
  Set(entry, attribute::kWorst, static_cast<std::uint8_t>(attribute.current));
  Set(entry, attribute::kRaw, attribute.raw);
}

void SetSelfTestTimes(std::span<std::uint8_t> data, const SmartReport& report) {
  // Means that the word that follows has the time.
  constexpr std::uint16_t kSeeWord = 0xFF;
  unsigned capability = kOfflineImmediate | kOfflineAbort | kOfflineScan;
  if (report.shortMinutes != 0 || report.extendedMinutes != 0) capability |= kSelfTest;
  if (report.conveyanceMinutes != 0) capability |= kConveyanceSelfTest;
  Set(data, smart_data::kOfflineCapability, static_cast<std::uint8_t>(capability));
  Set(data, smart_data::kShortMinutes, static_cast<std::uint8_t>(std::min(report.shortMinutes, kSeeWord)));
  Set(data, smart_data::kExtendedMinutes, static_cast<std::uint8_t>(std::min(report.extendedMinutes, kSeeWord)));
  Set(data, smart_data::kConveyanceMinutes, static_cast<std::uint8_t>(std::min(report.conveyanceMinutes, kSeeWord)));
  if (report.extendedMinutes >= kSeeWord) Set(data, smart_data::kLongExtendedMinutes, report.extendedMinutes);
}

}  // namespace

std::vector<std::uint8_t> MakeSmartData(const SmartReport& report) {
  std::vector<std::uint8_t> data(kAtaPage);
  Set(data, smart_data::kRevision, 0x0010);
  std::size_t number = 0;
  for (const Attribute& each : AttributesOf(report)) {
    SetAttribute(Inside(std::span(data), smart_data::Attribute(number++)), each);
  }
  Set(data, smart_data::kOfflineStatus, kCollectionNeverStarted);
  Set(data, smart_data::kSelfTestStatus, report.selfTestStatus);
  Set(data, smart_data::kOfflineSeconds, 600);
  Set(data, smart_data::kSmartCapability, 0x0003);  // saves attributes, also by itself
  Set(data, smart_data::kErrorLogging, 0x01);
  SetSelfTestTimes(data, report);
  SetPageChecksum(data);
  return data;
}

std::vector<std::uint8_t> MakeLogDirectory(std::span<const LogSize> sizes) {
  std::vector<std::uint8_t> directory(kAtaPage);
  Set(directory, Le16{0}, 1);  // its version
  for (const LogSize& each : sizes) Set(directory, Le16{2 * std::size_t{each.address}}, each.pages);
  return directory;
}

}  // namespace orvik::simulation
