#include "module/storage/ata/self_test_log.h"

#include "module/storage/ata/identify_data.h"

namespace orvik::module::storage {

namespace {

using utils::ByteView;

/// SMART self-test log: one sector.
namespace short_log {
constexpr utils::Le16 kRevision{0};
constexpr std::uint16_t kExpectedRevision = 1;
constexpr utils::BlockArray kDescriptors{2, 24};
constexpr std::size_t kDescriptorCount = 21;
constexpr utils::Le32 kFailingLba{5};  // within a descriptor
constexpr utils::U8 kIndex{508};       // of the latest descriptor, from 1 on; 0: no self-test
}  // namespace short_log

/// Extended self-test log: pages with 19 descriptors each.
namespace extended_log {
constexpr utils::BlockArray kPages{0, 512};
constexpr utils::U8 kRevision{0};
constexpr std::uint8_t kExpectedRevision = 1;
constexpr utils::Le16 kIndex{2};  // of the latest descriptor, from 1 on; 0: no self-test
constexpr utils::BlockArray kDescriptors{4, 26};
constexpr std::size_t kDescriptorsPerPage = 19;
constexpr utils::Le32 kFailingLbaLow{5};  // within a descriptor
constexpr utils::Le16 kFailingLbaHigh{9};
}  // namespace extended_log

}  // namespace

std::optional<std::uint64_t> FailingLbaOfSelfTestLog(ByteView sector) {
  using namespace short_log;
  const std::uint8_t index = sector.Get(kIndex);
  if (!SumsToZero(sector) || sector.Get(kRevision) != kExpectedRevision) return std::nullopt;
  if (index == 0 || index > kDescriptorCount) return std::nullopt;
  return sector.Sub(kDescriptors.At(index - 1U)).Get(kFailingLba);
}

std::optional<std::uint64_t> FailingLbaOfExtendedSelfTestLog(ByteView pages) {
  using namespace extended_log;
  const ByteView first = pages.Sub(kPages.At(0));
  const std::uint16_t index = first.Get(kIndex);
  if (index == 0 || first.Get(kRevision) != kExpectedRevision || !SumsToZero(first)) return std::nullopt;

  const std::size_t latest = index - 1U;
  const ByteView page = pages.Sub(kPages.At(latest / kDescriptorsPerPage));
  if (page.Size() == 0 || !SumsToZero(page)) return std::nullopt;
  const ByteView descriptor = page.Sub(kDescriptors.At(latest % kDescriptorsPerPage));
  return std::uint64_t{descriptor.Get(kFailingLbaHigh)} << 32 | descriptor.Get(kFailingLbaLow);
}

}  // namespace orvik::module::storage
