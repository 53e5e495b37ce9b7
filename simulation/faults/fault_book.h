#pragma once

// The rules by which calls into the machine go wrong, and the count of the calls.

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

/// True for the functions that "*" stands for: those of Windows that can fail, and the vendor library's.
bool IsOutsideCall(std::string_view operation);

/// Asked about each call, known by all of `names`: what happens to it.
using FaultSource = std::function<FaultEffects(std::span<const std::string_view> names)>;

/// May be used from several threads.
class FaultBook {
 public:
  void Add(FaultRule rule);
  /// Asks `source`, one call at a time, for what is to happen beside what the rules say.
  void AskForEach(FaultSource source);
  /// Fails the n-th outside call from now on, counted from 1.
  void FailCall(std::uint64_t n, std::uint32_t error = kDefaultFaultError);
  /// Fails every call of `operation` from now on.
  void FailEvery(std::string_view operation, std::uint32_t error = kDefaultFaultError);
  void Clear();

  /// Calls of `operation` since the machine was made, those that were failed included.
  std::uint64_t CallsMade(std::string_view operation) const;

  /// Counts one call that is known under each of `names` (empty names are ignored) and tells what happens to it.
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
