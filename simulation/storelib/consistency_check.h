#pragma once

#include <cstdint>
#include <memory>
#include <optional>

#include "simulation/clock.h"
#include "simulation/storelib/storelib_description.h"

namespace orvik::simulation {

/// The consistency check of one logical drive: it runs in the background for as long as the machine's clock says.
/// For one thread at a time.
class ConsistencyCheck {
 public:
  ConsistencyCheck(const StorelibCheckDescription& description, bool consistent, std::shared_ptr<const Clock> clock);

  /// False when it is running already.
  bool Start();
  /// Stops it without a verdict. False when it is not running.
  bool Cancel();
  /// How far a running check is, out of 65535; nothing when none is running.
  std::optional<std::uint16_t> Progress();
  /// The verdict of the last check that ran to its end, or what was so when the machine started.
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
