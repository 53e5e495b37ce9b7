#pragma once

// The self-tests of a drive: the one running in the background and those that have ended.

#include <cstdint>
#include <memory>
#include <optional>
#include <vector>

#include "simulation/clock.h"
#include "simulation/drives/base/drive_descriptions.h"

namespace orvik::simulation {

/// How a self-test ended, in the numbers that ATA and SCSI drives have in common.
enum class SelfTestResult : std::uint8_t { Passed = 0, Aborted = 1, FailedToRead = 7 };

struct SelfTestEntry {
  SelfTestKind kind{};
  SelfTestResult result{};
  /// Of the drive's life.
  std::uint16_t hours{};
  /// Tenths of the test that were left.
  std::uint8_t tenthsLeft{};
  std::optional<std::uint64_t> failingLba{};
};

struct RunningSelfTest {
  SelfTestKind kind{};
  /// From 0 to below 1.
  double done{};
  std::uint8_t TenthsLeft() const { return static_cast<std::uint8_t>((1 - done) * 9.99); }
};

/// Not thread-safe.
class SelfTests {
 public:
  SelfTests(SelfTestDescription description, std::uint32_t powerOnHours, std::shared_ptr<const Clock> clock);

  /// Duration of a test; 0: the drive does not support it.
  std::uint16_t Minutes(SelfTestKind kind) const;
  /// Whether a test that runs to its end fails.
  bool Fails() const { return description_.failingLba.has_value(); }
  /// Ends a test that is running, if any.
  void Start(SelfTestKind kind);
  /// False when no test is running.
  bool Abort();

  std::optional<RunningSelfTest> Running();
  /// Those that have ended, the oldest first.
  const std::vector<SelfTestEntry>& Ended();
  std::uint16_t PowerOnHours() const;

 private:
  struct Run {
    SelfTestKind kind;
    std::uint64_t start;
    std::uint64_t length;
  };

  double Done() const;
  std::uint16_t HoursAt(std::uint64_t milliseconds) const;
  void Settle();

  SelfTestDescription description_;
  std::uint32_t powerOnHours_;
  std::shared_ptr<const Clock> clock_;
  std::optional<Run> run_;
  std::vector<SelfTestEntry> ended_;
};

}  // namespace orvik::simulation
