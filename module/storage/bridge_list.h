#pragma once

#include <algorithm>
#include <cstdint>
#include <iterator>
#include <memory>
#include <utility>
#include <vector>

#include "module/storage/status.h"

namespace orvik::module::storage {

/// For send rules whose commands go to the next bridge as the failed one left them.
struct NoCheckpoint {
  template <typename Command>
  explicit NoCheckpoint(const Command& /*command*/) {}
  template <typename Command>
  void AfterFailure(Command& /*command*/, Status /*failure*/, bool /*last*/) const {}
};

/// The ways to a drive, the preferred one first. `Rule` names the protocol's `Bridge` and `Command`, the status
/// `kNoBridge` of an empty list, and a `Checkpoint`: made of the command before it is sent, told after each failure.
template <typename Rule>
class BridgeList {
 public:
  using Bridge = typename Rule::Bridge;
  using Command = typename Rule::Command;

  /// Appends a bridge, unless it is in the list already. True when it was appended.
  bool Add(std::shared_ptr<Bridge> bridge) {
    if (bridge == nullptr || std::ranges::find(bridges_, bridge) != bridges_.end()) return false;
    bridges_.push_back(std::move(bridge));
    return true;
  }

  bool IsEmpty() const { return bridges_.empty(); }

  /// The preferred bridge's handle; null for an empty list.
  void* FirstHandle() const { return bridges_.empty() ? nullptr : bridges_.front()->GetHandle(); }

  /// Sends through the first bridge that can; that one is preferred from then on. The status of the last bridge when
  /// none can. Whatever a bridge reports as received, a command's length never grows beyond its buffer.
  Status Send(Command& command) {
    const typename Rule::Checkpoint checkpoint(command);
    const std::uint64_t requested = command.length;
    Status sent = Rule::kNoBridge;
    for (auto bridge = bridges_.begin(); bridge != bridges_.end(); ++bridge) {
      sent = (*bridge)->Send(command);
      command.length = std::min(command.length, requested);
      if (sent == status::kSuccess) {
        std::rotate(bridges_.begin(), bridge, std::next(bridge));
        break;
      }
      checkpoint.AfterFailure(command, sent, std::next(bridge) == bridges_.end());
    }
    return sent;
  }

 private:
  std::vector<std::shared_ptr<Bridge>> bridges_;
};

}  // namespace orvik::module::storage
