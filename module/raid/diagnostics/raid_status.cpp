#include "module/raid/diagnostics/raid_tests.h"

#include "module/raid/diagnostics/message_keys.h"

namespace orvik::module::raid {

namespace {

using core::MessageType;
using core::TestResult;

/// The run's result after a further drive: a warning is kept, otherwise the last drive decides.
TestResult Merge(TestResult run, TestResult drive) {
  return run == TestResult::Warning ? run : drive;
}

}  // namespace

TestResult RaidStatusTest::Run(core::RunArguments& arguments) {
  if (CheckAborted(arguments)) return TestResult::Aborted;
  const auto anyDevice = arguments.device.lock();
  if (anyDevice == nullptr) return TestResult::Invalid;
  const auto device = std::dynamic_pointer_cast<CsmiDevice>(anyDevice);

  // Every early result reports progress 100 before its messages.
  const auto endWith = [&arguments](TestResult result, MessageType type, std::initializer_list<const char*> keys) {
    arguments.reporter->SetProgress(100);
    for (const char* const key : keys) AddMessage(arguments, type, key);
    return result;
  };
  if (device == nullptr) {
    return endWith(TestResult::NotApplicable, MessageType::Notice, {message::kDeviceNotIdentified});
  }
  ControllerInfo info;
  if (!storage::Status{device->GetControllerInfo(info)}.Ok()) {
    return endWith(TestResult::Aborted, MessageType::Info, {message::kUnableToRetrieveProperties});
  }
  if (info.platform == kCapabilitiesNotFound) {
    return endWith(TestResult::NotApplicable, MessageType::Notice,
                   {message::kUnableToCommunicate, message::kSataModeNotRaid});
  }
  std::vector<LogicalDrive> drives;
  if (!storage::Status{device->GetLogicalDrives(drives)}.Ok()) {
    return endWith(TestResult::Aborted, MessageType::Info, {message::kCannotGetLogicalDrives});
  }
  if (drives.empty()) return endWith(TestResult::NotApplicable, MessageType::Info, {message::kNoLogicalDrive});
  return EvaluateDrives(arguments, drives);
}

TestResult RaidStatusTest::EvaluateDrives(core::RunArguments& arguments, const std::vector<LogicalDrive>& drives) {
  TestResult result = TestResult::Passed;
  // Single precision is part of the contract: six drives report 99 before the final 100.
  const auto step = static_cast<float>(100.0 / static_cast<double>(drives.size()));
  float progress = 0;
  for (const auto& drive : drives) {
    result = Merge(result, EvaluateDrive(arguments, drive));
    if (CheckAborted(arguments)) return TestResult::Aborted;
    progress += step;
    arguments.reporter->SetProgress(static_cast<std::uint8_t>(progress));
  }
  arguments.reporter->SetProgress(100);
  return result;
}

TestResult RaidStatusTest::EvaluateDrive(core::RunArguments& arguments, const LogicalDrive& drive) {
  if (drive.raidLevel == "RAID 0") {
    AddMessage(arguments, MessageType::Info, message::kUnsupportedRaidLevel, drive.name);
    AddMessage(arguments, MessageType::Info, message::kTestDoesNotSupportLevel, "0");
    return TestResult::NotApplicable;
  }
  switch (drive.state) {
    case LogicalDriveState::Optimal:
      AddMessage(arguments, MessageType::Info, message::kLogicalDriveOptimal, drive.name);
      return TestResult::Passed;
    case LogicalDriveState::Degraded:
      AddMessage(arguments, MessageType::Warning, message::kLogicalDriveDegraded, drive.name);
      for (const auto& member : drive.failedMembers) {
        AddMessage(arguments, MessageType::Info, message::kDriveDown, member);
      }
      return TestResult::Warning;
    case LogicalDriveState::Failed:
      AddMessage(arguments, MessageType::Warning, message::kLogicalDriveUnableToReadWrite, drive.name);
      return TestResult::Warning;
    case LogicalDriveState::Rebuilding:
      AddMessage(arguments, MessageType::Info, message::kLogicalDriveRebuilding, drive.name);
      return TestResult::Passed;
    default:
      AddMessage(arguments, MessageType::Warning, message::kLogicalDriveUnknownStatus, drive.name);
      return TestResult::Warning;
  }
}

}  // namespace orvik::module::raid
