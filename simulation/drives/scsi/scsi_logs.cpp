// The log pages of a SCSI drive (SPC-4).

#include <algorithm>
#include <array>

#include "simulation/drives/scsi/scsi_drive.h"

namespace orvik::simulation {

namespace {

namespace log_sense_cdb {
constexpr U8 kPage{2};
constexpr U8 kSubpage{3};
constexpr Be16 kAllocationLength{7};
constexpr std::uint8_t kPageBits = 0x3F;
}  // namespace log_sense_cdb

namespace log_page {
constexpr std::size_t kHeaderSize = 4;
constexpr U8 kCode{0};
constexpr Be16 kLength{2};
constexpr std::uint8_t kSupportedPages = 0x00;
constexpr std::uint8_t kTemperature = 0x0D;
constexpr std::uint8_t kSelfTestResults = 0x10;
constexpr std::uint8_t kInformationalExceptions = 0x2F;
}  // namespace log_page

// The header that every parameter begins with.
namespace parameter {
constexpr std::size_t kHeaderSize = 4;
constexpr Be16 kCode{0};
constexpr U8 kControl{2};
constexpr U8 kLength{3};
constexpr std::uint8_t kBinaryList = 0x03;
}  // namespace parameter

namespace temperature_parameter {
constexpr std::size_t kSize = 6;
constexpr U8 kCelsius{5};
constexpr std::uint16_t kCurrent = 0;
constexpr std::uint16_t kReference = 1;
}  // namespace temperature_parameter

namespace self_test_parameter {
constexpr std::size_t kSize = 20;
constexpr std::size_t kCount = 20;
constexpr U8 kCodeAndResult{4};
constexpr Be16 kHours{6};
constexpr Be64 kFailingLba{8};
constexpr U8 kSenseKey{16};
constexpr U8 kAsc{17};
constexpr U8 kAscq{18};
}  // namespace self_test_parameter

namespace exceptions_parameter {
constexpr std::size_t kSize = 8;
constexpr U8 kAsc{4};
constexpr U8 kAscq{5};
constexpr U8 kTemperature{6};
}  // namespace exceptions_parameter

constexpr std::uint8_t kReferenceCelsius = 60;
constexpr std::uint8_t kTestInProgress = 0x0F;
constexpr std::uint64_t kNoLba = ~std::uint64_t{0};

std::span<std::uint8_t> AppendParameter(std::vector<std::uint8_t>& page, std::uint16_t code, std::size_t size) {
  page.resize(page.size() + size);
  const auto bytes = std::span(page).last(size);
  Set(bytes, parameter::kCode, code);
  Set(bytes, parameter::kControl, parameter::kBinaryList);
  Set(bytes, parameter::kLength, static_cast<std::uint8_t>(size - parameter::kHeaderSize));
  return bytes;
}

std::uint8_t Celsius(int temperature) {
  return static_cast<std::uint8_t>(std::clamp(temperature, 0, kTemperatureNotReported));
}

std::vector<std::uint8_t> TemperaturePage(int temperature) {
  std::vector<std::uint8_t> page(log_page::kHeaderSize);
  Set(AppendParameter(page, temperature_parameter::kCurrent, temperature_parameter::kSize),
      temperature_parameter::kCelsius, Celsius(temperature));
  Set(AppendParameter(page, temperature_parameter::kReference, temperature_parameter::kSize),
      temperature_parameter::kCelsius, kReferenceCelsius);
  return page;
}

std::uint8_t CodeAndResult(SelfTestKind kind, std::uint8_t result) {
  return static_cast<std::uint8_t>(ScsiSelfTestCode(kind) << 5 | result);
}

void SetResult(std::span<std::uint8_t> bytes, const SelfTestEntry& entry) {
  Set(bytes, self_test_parameter::kCodeAndResult, CodeAndResult(entry.kind, static_cast<std::uint8_t>(entry.result)));
  Set(bytes, self_test_parameter::kHours, entry.hours);
  Set(bytes, self_test_parameter::kFailingLba, entry.failingLba.value_or(kNoLba));
  if (!entry.failingLba) return;
  Set(bytes, self_test_parameter::kSenseKey, kUnrecoveredReadError.key);
  Set(bytes, self_test_parameter::kAsc, kUnrecoveredReadError.asc);
  Set(bytes, self_test_parameter::kAscq, kUnrecoveredReadError.ascq);
}

}  // namespace

// The latest comes first, a running one before all; the page always has its full length.
std::vector<std::uint8_t> ScsiDrive::SelfTestResults() {
  std::vector<std::uint8_t> page(log_page::kHeaderSize);
  std::uint16_t number = 1;
  if (const auto running = selfTests_.Running()) {
    const auto bytes = AppendParameter(page, number++, self_test_parameter::kSize);
    Set(bytes, self_test_parameter::kCodeAndResult, CodeAndResult(running->kind, kTestInProgress));
    Set(bytes, self_test_parameter::kFailingLba, kNoLba);
  }
  const auto& ended = selfTests_.Ended();
  for (auto entry = ended.rbegin(); entry != ended.rend() && number <= self_test_parameter::kCount; ++entry) {
    SetResult(AppendParameter(page, number++, self_test_parameter::kSize), *entry);
  }
  while (number <= self_test_parameter::kCount) AppendParameter(page, number++, self_test_parameter::kSize);
  return page;
}

std::vector<std::uint8_t> ScsiDrive::InformationalExceptions() const {
  std::vector<std::uint8_t> page(log_page::kHeaderSize);
  const auto bytes = AppendParameter(page, 0, exceptions_parameter::kSize);
  if (description_.failing && exceptions_.Watches()) {
    Set(bytes, exceptions_parameter::kAsc, kFailurePredicted.asc);
    Set(bytes, exceptions_parameter::kAscq, kFailurePredicted.ascq);
  }
  Set(bytes, exceptions_parameter::kTemperature, Celsius(description_.temperatureCelsius));
  return page;
}

std::vector<std::uint8_t> ScsiDrive::LogPage(std::uint8_t page) {
  using namespace log_page;
  std::vector<std::uint8_t> pages(kHeaderSize);
  switch (page) {
    case kSupportedPages: {
      pages.insert(pages.end(), {kSupportedPages, kTemperature, kSelfTestResults});
      if (HasExceptions()) pages.push_back(kInformationalExceptions);
      return pages;
    }
    case kTemperature: return TemperaturePage(description_.temperatureCelsius);
    case kSelfTestResults: return SelfTestResults();
    case kInformationalExceptions: return HasExceptions() ? InformationalExceptions() : std::vector<std::uint8_t>();
    default: return {};
  }
}

ScsiCompletion ScsiDrive::LogSense(Cdb cdb, Data data) {
  if (Get(cdb, log_sense_cdb::kSubpage) != 0) return RefuseField(log_sense_cdb::kSubpage);
  const std::uint8_t code = Get(cdb, log_sense_cdb::kPage) & log_sense_cdb::kPageBits;
  auto page = LogPage(code);
  if (page.empty()) return RefuseField(log_sense_cdb::kPage);
  Set(page, log_page::kCode, code);
  Set(page, log_page::kLength, static_cast<std::uint16_t>(page.size() - log_page::kHeaderSize));
  return Deliver(page, Get(cdb, log_sense_cdb::kAllocationLength), data);
}

}  // namespace orvik::simulation
