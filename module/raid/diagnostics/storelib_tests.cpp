#include "module/raid/diagnostics/storelib_tests.h"

#include "module/raid/diagnostics/message_keys.h"

namespace orvik::module::raid {

using core::MessageType;
using core::TestResult;

TestResult BatteryBackupUnitStatusTest::Run(core::RunArguments& arguments) {
  return CheckAborted(arguments) ? TestResult::Aborted : TestResult::NotApplicable;
}

TestResult EnclosuresStatusTest::Run(core::RunArguments& arguments) {
  if (CheckAborted(arguments)) return TestResult::Aborted;
  if (arguments.device.expired()) return TestResult::Invalid;
  // Unlike in the other tests the message comes before the progress.
  AddMessage(arguments, MessageType::Info, message::kDeviceNotIdentified);
  arguments.reporter->SetProgress(100);
  return TestResult::NotApplicable;
}

TestResult LogicalDrivesStatusTest::Run(core::RunArguments& arguments) {
  // The device comes before the abort check here: a foreign device is not applicable even in an aborted run.
  arguments.reporter->SetProgress(100);
  return TestResult::NotApplicable;
}

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
  arguments.reporter->SetProgress(100);
  return TestResult::NotApplicable;
}

bool CheckConsistencyTest::IsSupported(const core::Device& device, std::shared_ptr<void> /*reserved*/) const {
  return dynamic_cast<const LsiDevice*>(&device) != nullptr;
}

}  // namespace orvik::module::raid
