#pragma once

#include "module/raid/diagnostics/raid_test_base.h"
#include "module/raid/storelib/storelib_device.h"

namespace orvik::module::raid {

/// The state of every logical drive of a storelib controller, as the controller itself encodes it.
class LogicalDrivesStatusTest final : public QuickRaidTest<LsiDevice> {
 public:
  LogicalDrivesStatusTest()
      : QuickRaidTest(QuickDescriptor(3, "LOGICAL_DRIVES_STATUS_TEST", "QUICK_RAID_TESTS_TOOLTIP")) {}

  core::TestResult Run(core::RunArguments& arguments) override;

 private:
  static core::TestResult Evaluate(core::RunArguments& arguments);
  static core::TestResult EvaluateDrive(core::RunArguments& arguments, const LogicalDrive& drive);
};

}  // namespace orvik::module::raid
