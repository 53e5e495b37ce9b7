#pragma once

#include <memory>
#include <string>

#include "core/test.h"

namespace orvik::module::raid {

/// Base of the RAID tests. `Run` executes on a worker thread and reports from there; it checks the abort flag only
/// where it calls `CheckAborted`.
class RaidAbstractTest : public core::Test {
 public:
  using core::Test::Test;

 protected:
  /// Whether the run must stop: the host set the abort flag, or a system event occurred that could change the outcome
  /// (which adds a message). If so, reports progress 100.
  static bool CheckAborted(core::RunArguments& arguments);

  /// Translates the key into the user's language; UTF-8.
  static std::string Translate(const char* key);

  static void AddMessage(core::RunArguments& arguments, core::MessageType type, std::string text);
  /// "key: value"
  static void AddMessage(core::RunArguments& arguments, core::MessageType type, const char* key,
                         const std::string& value);
};

/// A short test for the devices of one controller family; may run alongside any other test.
template <typename Family>
class QuickRaidTest : public RaidAbstractTest {
 public:
  using RaidAbstractTest::RaidAbstractTest;

  bool IsExclusive() const override { return false; }
  std::uint32_t GetEstimatedDuration() const override { return 1; }
  bool IsSupported(const core::Device& device, std::shared_ptr<void> /*reserved*/) const override {
    return dynamic_cast<const Family*>(&device) != nullptr;
  }
};

/// The descriptor of a test of the quick group.
core::TestDescriptor QuickDescriptor(std::uint32_t id, const char* nameKey, const char* groupKey = "QUICK_RAID");

}  // namespace orvik::module::raid
