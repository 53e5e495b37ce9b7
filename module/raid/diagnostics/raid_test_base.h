#pragma once

#include <memory>
#include <string>

#include "core/test.h"

namespace orvik::module::raid {

/// What the RAID tests have in common. `Run` executes on a worker thread and reports from there; the abort flag is
/// looked at only where a test says so.
class RaidAbstractTest : public core::Test {
 public:
  using core::Test::Test;

 protected:
  /// The run is to stop: the host set the abort flag, or a system event that spoils the outcome has happened (which
  /// adds a message). Reports progress 100 then.
  static bool CheckAborted(core::RunArguments& arguments);

  /// The key in the user's language, as UTF-8.
  static std::string Translate(const char* key);

  static void AddMessage(core::RunArguments& arguments, core::MessageType type, std::string text);
  /// "key: value"
  static void AddMessage(core::RunArguments& arguments, core::MessageType type, const char* key,
                         const std::string& value);
};

/// A test that lasts a moment, may run beside any other and is meant for the devices of one controller family.
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
