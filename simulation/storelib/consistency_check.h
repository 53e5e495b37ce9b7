#pragma once

#include <cstdint>
#include <memory>
#include <optional>

#include "simulation/clock.h"
#include "simulation/storelib/storelib_description.h"

namespace orvik::simulation {

/// The consistency check of one logical drive: it runs in the background on the machine's clock.
/// Not thread-safe.
class ConsistencyCheck {
 public:
  ConsistencyCheck(const StorelibCheckDescription& description, bool consistent, std::shared_ptr<const Clock> clock);

  /// False when it is already running.
  bool Start();
  /// Stops it without a verdict. False when it is not running.
  bool Cancel();
  /// Progress of a running check, 0 to 65535; nothing when none is running.
  std::optional<std::uint16_t> Progress();
  /// Result of the last finished check, or the state at the machine's start.
  bool Consistent();

 private:
  void Settle();
  std::uint64_t Done() const { return done_ + clock_->Milliseconds() - start_; }

  std::shared_ptr<const Clock> clock_;
  std::uint64_t length_;
  bool endsConsistent_;
  bool consistent_;
  bool running_ = false;
  std::uint64_t start_ = 0;
  // Milliseconds of the check that were done at the start.
  std::uint64_t done_ = 0;
};

}  // namespace orvik::simulation
