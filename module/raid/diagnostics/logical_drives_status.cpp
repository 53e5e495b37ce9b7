#include "module/raid/diagnostics/raid_tests.h"

#include <array>

#include "module/raid/diagnostics/message_keys.h"
#include "module/raid/storelib/storelib_layout.h"

namespace orvik::module::raid {

namespace {

using core::MessageType;
using core::TestResult;

constexpr std::uint8_t kOptimal = 3;

/// The message of a state byte that is not optimal.
const char* TroubleKey(std::uint8_t state) {
  static constexpr std::array kKeys = {message::kLogicalDriveOffline, message::kLogicalDrivePartiallyDegraded,
                                       message::kLogicalDriveDegraded};
  return state < kKeys.size() ? kKeys.at(state) : message::kLogicalDriveUnknownStatus;
}

}  // namespace

TestResult LogicalDrivesStatusTest::Run(core::RunArguments& arguments) {
  const TestResult result = Evaluate(arguments);
  arguments.reporter->SetProgress(100);
  return result;
}

TestResult LogicalDrivesStatusTest::Evaluate(core::RunArguments& arguments) {
  // Unlike in the other tests the device comes before the abort check: a device of the other family is not applicable
  // even in an aborted run.
  const auto device = std::dynamic_pointer_cast<LsiDevice>(arguments.device.lock());
  if (device == nullptr) return TestResult::NotApplicable;
  if (CheckAborted(arguments)) return TestResult::Aborted;
  std::vector<LogicalDrive> drives;
  const bool listed = storage::Status{device->GetLogicalDrives(drives)}.Ok();
  if (!listed || drives.empty()) return TestResult::NotApplicable;

  TestResult result = TestResult::Passed;
  for (std::size_t i = 0; i < drives.size(); ++i) {
    if (EvaluateDrive(arguments, drives[i]) == TestResult::Warning) result = TestResult::Warning;
    arguments.reporter->SetProgress(static_cast<std::uint8_t>(100 * i / drives.size()));
    if (CheckAborted(arguments)) return TestResult::Aborted;
  }
  return result;
}

TestResult LogicalDrivesStatusTest::EvaluateDrive(core::RunArguments& arguments, const LogicalDrive& drive) {
  const std::uint8_t state = utils::ByteView(drive.vendorData).Get(lsi::logical_drive_information::kState);
  if (state == kOptimal) {
    AddMessage(arguments, MessageType::Info, message::kLogicalDriveOptimal, drive.name);
    return TestResult::Passed;
  }
  AddMessage(arguments, MessageType::Warning, TroubleKey(state), drive.name);
  return TestResult::Warning;
}

}  // namespace orvik::module::raid
