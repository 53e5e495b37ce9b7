#include "simulation/storelib/consistency_check.h"

#include <algorithm>
#include <utility>

namespace orvik::simulation {

namespace {

constexpr std::uint64_t kWhole = 65535;

}  // namespace

ConsistencyCheck::ConsistencyCheck(const StorelibCheckDescription& description, bool consistent,
                                   std::shared_ptr<const Clock> clock)
    : clock_(std::move(clock)),
      length_(std::uint64_t{description.seconds} * 1000),
      endsConsistent_(description.endsConsistent),
      consistent_(consistent) {
  if (!description.runningAt) return;
  Start();
  done_ = length_ * *description.runningAt / kWhole;
}

bool ConsistencyCheck::Start() {
  Settle();
  if (running_) return false;
  running_ = true;
  start_ = clock_->Milliseconds();
  done_ = 0;
  return true;
}

bool ConsistencyCheck::Cancel() {
  Settle();
  return std::exchange(running_, false);
}

std::optional<std::uint16_t> ConsistencyCheck::Progress() {
  Settle();
  if (!running_) return std::nullopt;
  // The clock may have moved on past the end since.
  return static_cast<std::uint16_t>(std::min(Done() * kWhole / length_, kWhole));
}

bool ConsistencyCheck::Consistent() {
  Settle();
  return consistent_;
}

void ConsistencyCheck::Settle() {
  if (!running_ || Done() < length_) return;
  running_ = false;
  consistent_ = endsConsistent_;
}

}  // namespace orvik::simulation
