#pragma once

// The machine's time. It may run faster than real time, so that a check of hours takes seconds.

#include <atomic>
#include <chrono>
#include <cstdint>

namespace orvik::simulation {

/// Monotonic; starts at 0 with the machine. Thread-safe.
class Clock {
 public:
  /// `speed`: machine milliseconds per millisecond of real time.
  explicit Clock(double speed) : speed_(speed) {}

  std::uint64_t Milliseconds() const;
  /// Advances the clock at once.
  void Advance(std::uint64_t milliseconds) { advanced_ += milliseconds; }
  /// Returns when `milliseconds` of machine time have passed.
  void Wait(std::uint64_t milliseconds) const;

 private:
  std::chrono::steady_clock::time_point start_ = std::chrono::steady_clock::now();
  double speed_;
  std::atomic<std::uint64_t> advanced_ = 0;
};

}  // namespace orvik::simulation
