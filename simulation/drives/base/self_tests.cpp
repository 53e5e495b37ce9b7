#include "simulation/drives/base/self_tests.h"

#include <algorithm>
#include <utility>

namespace orvik::simulation {

namespace {

constexpr std::uint64_t kMinute = 60000;
constexpr std::uint64_t kHour = 60 * kMinute;

SelfTestEntry Remembered(const PastSelfTest& past) {
  return {.kind = past.kind,
          .result = past.failingLba ? SelfTestResult::FailedToRead : SelfTestResult::Passed,
          .hours = past.hours,
          .failingLba = past.failingLba};
}

}  // namespace

SelfTests::SelfTests(SelfTestDescription description, std::uint32_t powerOnHours, std::shared_ptr<const Clock> clock)
    : description_(std::move(description)), powerOnHours_(powerOnHours), clock_(std::move(clock)) {
  std::ranges::transform(description_.log, std::back_inserter(ended_), Remembered);
}

std::uint16_t SelfTests::Minutes(SelfTestKind kind) const {
  switch (kind) {
    case SelfTestKind::Short: return description_.shortMinutes;
    case SelfTestKind::Extended: return description_.extendedMinutes;
    case SelfTestKind::Conveyance: break;
  }
  return description_.conveyanceMinutes;
}

void SelfTests::Start(SelfTestKind kind) {
  Abort();
  run_ = Run{.kind = kind, .start = clock_->Milliseconds(), .length = Minutes(kind) * kMinute};
}

bool SelfTests::Abort() {
  const auto running = Running();
  if (!running) return false;
  ended_.push_back({.kind = running->kind,
                    .result = SelfTestResult::Aborted,
                    .hours = PowerOnHours(),
                    .tenthsLeft = running->TenthsLeft()});
  run_.reset();
  return true;
}

std::optional<RunningSelfTest> SelfTests::Running() {
  Settle();
  if (!run_) return std::nullopt;
  // The clock may have reached the end since.
  return RunningSelfTest{.kind = run_->kind, .done = std::min(Done(), 0.9999)};
}

const std::vector<SelfTestEntry>& SelfTests::Ended() {
  Settle();
  return ended_;
}

std::uint16_t SelfTests::PowerOnHours() const {
  return HoursAt(clock_->Milliseconds());
}

double SelfTests::Done() const {
  return static_cast<double>(clock_->Milliseconds() - run_->start) / static_cast<double>(run_->length);
}

// Logs keep 16 bits of the hours.
std::uint16_t SelfTests::HoursAt(std::uint64_t milliseconds) const {
  return static_cast<std::uint16_t>(powerOnHours_ + milliseconds / kHour);
}

void SelfTests::Settle() {
  if (!run_ || Done() < 1) return;
  ended_.push_back({.kind = run_->kind,
                    .result = Fails() ? SelfTestResult::FailedToRead : SelfTestResult::Passed,
                    .hours = HoursAt(run_->start + run_->length),
                    .failingLba = description_.failingLba});
  run_.reset();
}

}  // namespace orvik::simulation
