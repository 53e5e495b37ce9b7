#include "simulation/clock.h"

#include <algorithm>
#include <thread>

namespace orvik::simulation {

std::uint64_t Clock::Milliseconds() const {
  const std::chrono::duration<double, std::milli> real = std::chrono::steady_clock::now() - start_;
  return static_cast<std::uint64_t>(real.count() * speed_) + advanced_;
}

// In short naps, because the clock may be advanced meanwhile.
void Clock::Wait(std::uint64_t milliseconds) const {
  using Nap = std::chrono::duration<double, std::milli>;
  constexpr Nap kLongest{10};
  const std::uint64_t end = Milliseconds() + milliseconds;
  for (std::uint64_t now = Milliseconds(); now < end; now = Milliseconds()) {
    std::this_thread::sleep_for(std::min(kLongest, Nap(static_cast<double>(end - now) / speed_)));
  }
}

}  // namespace orvik::simulation
