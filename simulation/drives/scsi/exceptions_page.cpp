#include "simulation/drives/scsi/exceptions_page.h"

#include <algorithm>

#include "simulation/bytes.h"

namespace orvik::simulation {

namespace {

constexpr U8 kPageCode{0};
constexpr U8 kPageLength{1};
constexpr U8 kFlags{2};
constexpr U8 kMethod{3};

constexpr std::uint8_t kSavable = 0x80;
constexpr std::uint8_t kPageCodeBits = 0x3F;
constexpr std::uint8_t kExceptionsDisabled = 0x08;
constexpr std::uint8_t kMethodBits = 0x0F;
constexpr std::uint8_t kMethodNone = 0;
constexpr std::uint8_t kMethodOnRequest = 6;

// Flags and method may be changed; the interval timer and the report count have fixed values.
constexpr std::uint8_t kChangeableFlags = kExceptionsDisabled;

}  // namespace

ExceptionsPage::ExceptionsPage(FailurePrediction prediction) {
  const bool enabled = prediction == FailurePrediction::Enabled;
  Set(default_, kPageCode, kSavable | kCode);
  Set(default_, kPageLength, kSize - 2);
  Set(default_, kFlags, enabled ? std::uint8_t{0} : kExceptionsDisabled);
  Set(default_, kMethod, enabled ? kMethodOnRequest : kMethodNone);
  current_ = default_;
  saved_ = default_;
}

ExceptionsPage::Bytes ExceptionsPage::Read(Values values) const {
  switch (values) {
    case Values::Current: return current_;
    case Values::Default: return default_;
    case Values::Saved: return saved_;
    case Values::Changeable: break;
  }
  Bytes mask{};
  Set(mask, kPageCode, kSavable | kCode);
  Set(mask, kPageLength, kSize - 2);
  Set(mask, kFlags, kChangeableFlags);
  Set(mask, kMethod, kMethodBits);
  return mask;
}

std::optional<std::uint16_t> ExceptionsPage::Write(std::span<const std::uint8_t> page, bool save) {
  if ((Get(page, kPageCode) & kPageCodeBits) != kCode) return kPageCode.offset;
  if (Get(page, kPageLength) != kSize - 2) return kPageLength.offset;
  if ((Get(page, kFlags) & ~kChangeableFlags) != 0) return kFlags.offset;
  if (Get(page, kMethod) > kMethodOnRequest) return kMethod.offset;
  const auto rest = page.subspan(kMethod.offset + 1);
  if (std::ranges::any_of(rest, [](std::uint8_t byte) { return byte != 0; })) return kMethod.offset + 1;
  Set(current_, kFlags, Get(page, kFlags));
  Set(current_, kMethod, Get(page, kMethod));
  if (save) saved_ = current_;
  return std::nullopt;
}

bool ExceptionsPage::Watches() const {
  return (Get(std::span<const std::uint8_t>(current_), kFlags) & kExceptionsDisabled) == 0;
}

bool ExceptionsPage::ReportsInSense() const {
  return Watches() && Get(std::span<const std::uint8_t>(current_), kMethod) != kMethodNone;
}

}  // namespace orvik::simulation
