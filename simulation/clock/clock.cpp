#include "simulation/clock/clock.h"

namespace orvik::simulation {

std::uint64_t Clock::Milliseconds() const {
  const std::chrono::duration<double, std::milli> real = std::chrono::steady_clock::now() - start_;
  return static_cast<std::uint64_t>(real.count() * speed_) + advanced_;
}

}  // namespace orvik::simulation
