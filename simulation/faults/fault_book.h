#pragma once

// The rules that inject faults into calls of the machine, and the counts of the calls.

#include <cstdint>
#include <functional>
#include <initializer_list>
#include <map>
#include <mutex>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "simulation/faults/fault.h"

namespace orvik::simulation {

inline constexpr std::string_view kEveryOutsideCall = "*";
inline constexpr std::uint32_t kDefaultFaultError = 31;  // ERROR_GEN_FAILURE

/// True for the functions that "*" covers: those of Windows that can fail, and the vendor library's.
bool IsOutsideCall(std::string_view operation);

/// Returns the effects on a call, which is known by each of `names`.
using FaultSource = std::function<FaultEffects(std::span<const std::string_view> names)>;

/// Thread-safe.
class FaultBook {
 public:
  void Add(FaultRule rule);
  /// Asks `source`, one call at a time, for effects in addition to those of the rules.
  void AskForEach(FaultSource source);
  /// Fails the n-th outside call from now on, counted from 1.
  void FailCall(std::uint64_t n, std::uint32_t error = kDefaultFaultError);
  /// Fails every call of `operation` from now on.
  void FailEvery(std::string_view operation, std::uint32_t error = kDefaultFaultError);
  void Clear();

  /// Calls of `operation` since the machine was made, failed calls included.
  std::uint64_t CallsMade(std::string_view operation) const;

  /// Counts one call that is known under each of `names` (empty names are ignored) and returns its effects.
  FaultEffects OnCall(std::initializer_list<std::string_view> names);

 private:
  struct ActiveRule {
    FaultRule rule;
    std::uint64_t seen = 0;
  };

  mutable std::mutex mutex_;
  std::vector<ActiveRule> rules_;
  FaultSource source_;
  std::map<std::string, std::uint64_t, std::less<>> calls_;
};

}  // namespace orvik::simulation
