#pragma once

#include "module/raid/diagnostics/raid_test_base.h"

namespace orvik::module::raid {

/// A consistency check of every logical drive with redundancy of a storelib controller, one after the other. The one
/// exclusive test and the only one that asks the user.
class CheckConsistencyTest final : public RaidAbstractTest {
 public:
  CheckConsistencyTest();

  core::TestResult Run(core::RunArguments& arguments) override;
  bool IsExclusive() const override { return true; }
  std::uint32_t GetEstimatedDuration() const override { return 6000; }
  bool IsSupported(const core::Device& device, std::shared_ptr<void> reserved) const override;

 private:
  class ActiveRun;
};

}  // namespace orvik::module::raid
