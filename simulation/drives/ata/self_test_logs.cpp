// The self-test logs of an ATA drive: rings of descriptors with the number of the latest.

#include <numeric>

#include "simulation/bytes.h"
#include "simulation/drives/ata/smart_data.h"

namespace orvik::simulation {

namespace {

namespace short_log {
constexpr Le16 kVersion{0};
constexpr std::size_t kDescriptors = 21;
constexpr std::size_t kDescriptorSize = 24;
constexpr Block Descriptor(std::size_t number) {
  return {2 + kDescriptorSize * number, kDescriptorSize};
}
constexpr Le32 kFailingLba{5};
constexpr U8 kIndex{508};
}  // namespace short_log

namespace extended_log {
constexpr U8 kVersion{0};
constexpr Le16 kIndex{2};
constexpr std::size_t kDescriptorsPerPage = 19;
constexpr std::size_t kDescriptors = kDescriptorsPerPage * kExtendedSelfTestLogPages;
constexpr std::size_t kDescriptorSize = 26;
constexpr Block Descriptor(std::size_t number) {
  const std::size_t page = number / kDescriptorsPerPage;
  return {kAtaPage * page + 4 + kDescriptorSize * (number % kDescriptorsPerPage), kDescriptorSize};
}
constexpr Le32 kFailingLbaLow{5};
constexpr Le16 kFailingLbaHigh{9};
}  // namespace extended_log

// The first fields of the descriptors in both logs.
namespace descriptor {
constexpr U8 kTest{0};
constexpr U8 kStatus{1};
constexpr Le16 kHours{2};
constexpr U8 kCheckpoint{4};
}  // namespace descriptor

constexpr std::uint8_t kInProgress = 0x0F;
constexpr std::uint64_t kNoLba = ~std::uint64_t{0};
constexpr std::uint64_t kLargestShortLba = 0xFFFFFFFF;

void SetPageChecksums(std::span<std::uint8_t> log) {
  for (; !log.empty(); log = log.subspan(kAtaPage)) {
    const auto page = log.first(kAtaPage);
    const unsigned sum = std::accumulate(page.begin(), page.end(), 0U);
    page[kAtaPage - 1] = static_cast<std::uint8_t>(0U - sum);
  }
}

std::uint8_t StatusByte(std::uint8_t result, std::uint8_t tenthsLeft) {
  return static_cast<std::uint8_t>(result << 4 | tenthsLeft);
}

std::uint8_t StatusByte(const SelfTestEntry& entry) {
  return StatusByte(static_cast<std::uint8_t>(entry.result), entry.tenthsLeft);
}

void SetDescriptor(std::span<std::uint8_t> bytes, const SelfTestEntry& entry) {
  Set(bytes, descriptor::kTest, AtaSelfTestNumber(entry.kind));
  Set(bytes, descriptor::kStatus, StatusByte(entry));
  Set(bytes, descriptor::kHours, entry.hours);
  Set(bytes, descriptor::kCheckpoint, 0);
}

// The number of the latest descriptor, counted from 1, in a ring of `size` that has seen `count` entries.
std::size_t LatestOf(std::size_t count, std::size_t size) {
  return count == 0 ? 0 : (count - 1) % size + 1;
}

}  // namespace

std::uint8_t AtaSelfTestNumber(SelfTestKind kind) {
  switch (kind) {
    case SelfTestKind::Short: return 1;
    case SelfTestKind::Extended: return 2;
    case SelfTestKind::Conveyance: break;
  }
  return 3;
}

std::uint8_t AtaSelfTestStatus(SelfTests& selfTests) {
  if (const auto running = selfTests.Running()) return StatusByte(kInProgress, running->TenthsLeft());
  const auto& ended = selfTests.Ended();
  return ended.empty() ? std::uint8_t{0} : StatusByte(ended.back());
}

std::vector<std::uint8_t> MakeSelfTestLog(std::span<const SelfTestEntry> ended) {
  std::vector<std::uint8_t> log(kAtaPage);
  Set(log, short_log::kVersion, 1);
  for (std::size_t i = 0; i < ended.size(); ++i) {
    const auto bytes = Inside(std::span(log), short_log::Descriptor(i % short_log::kDescriptors));
    SetDescriptor(bytes, ended[i]);
    const std::uint64_t lba = std::min(ended[i].failingLba.value_or(kNoLba), kLargestShortLba);
    Set(bytes, short_log::kFailingLba, static_cast<std::uint32_t>(lba));
  }
  Set(log, short_log::kIndex, static_cast<std::uint8_t>(LatestOf(ended.size(), short_log::kDescriptors)));
  SetPageChecksums(log);
  return log;
}

std::vector<std::uint8_t> MakeExtendedSelfTestLog(std::span<const SelfTestEntry> ended) {
  std::vector<std::uint8_t> log(kAtaPage * kExtendedSelfTestLogPages);
  Set(log, extended_log::kVersion, 1);
  for (std::size_t i = 0; i < ended.size(); ++i) {
    const auto bytes = Inside(std::span(log), extended_log::Descriptor(i % extended_log::kDescriptors));
    SetDescriptor(bytes, ended[i]);
    const std::uint64_t lba = ended[i].failingLba.value_or(kNoLba);
    Set(bytes, extended_log::kFailingLbaLow, static_cast<std::uint32_t>(lba));
    Set(bytes, extended_log::kFailingLbaHigh, static_cast<std::uint16_t>(lba >> 32));
  }
  Set(log, extended_log::kIndex, static_cast<std::uint16_t>(LatestOf(ended.size(), extended_log::kDescriptors)));
  SetPageChecksums(log);
  return log;
}

}  // namespace orvik::simulation
