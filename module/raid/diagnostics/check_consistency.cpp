#include "module/raid/diagnostics/check_consistency.h"

#include "module/raid/diagnostics/consistency_run.h"
#include "module/raid/storelib/storelib_device.h"

namespace orvik::module::raid {

using core::TestResult;

CheckConsistencyTest::CheckConsistencyTest()
    : RaidAbstractTest({.id = 4,
                        .nameKey = "CHECK_CONSISTENCY_TEST",
                        .tooltipKey = "CHECK_CONSISTENCY_TEST_TOOLTIP",
                        .parameters = {},
                        .groupKey = "EXTENDED_RAID_TESTS_TOOLTIP",
                        .groupKind = 2,
                        .auxText1 = {},
                        .auxText2 = {},
                        .auxFlag = true}) {}

TestResult CheckConsistencyTest::Run(core::RunArguments& arguments) {
  if (CheckAborted(arguments)) return TestResult::Aborted;
  const auto device = std::dynamic_pointer_cast<LsiDevice>(arguments.device.lock());
  if (device == nullptr) {
    arguments.reporter->SetProgress(100);
    return TestResult::NotApplicable;
  }
  return ActiveRun(*device, arguments).Perform();
}

bool CheckConsistencyTest::IsSupported(const core::Device& device, std::shared_ptr<void> /*reserved*/) const {
  return dynamic_cast<const LsiDevice*>(&device) != nullptr;
}

}  // namespace orvik::module::raid
