#include "module/raid/diagnostics/consistency_run.h"

#include <hostkit.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <cstdlib>
#include <limits>
#include <memory>
#include <string_view>
#include <utility>

#include "module/raid/diagnostics/context_adapter.h"
#include "module/raid/diagnostics/message_keys.h"
#include "utils/dialogs/gui_dialog_input_interaction.h"

namespace orvik::module::raid {

using core::MessageType;
using core::TestResult;

namespace {

namespace status = storage::status;

constexpr double kSecondsBetweenReadings = 30.0;
constexpr int kToleratedFailures = 5;
constexpr double kFinished = 100.0;

constexpr std::uint32_t kInformationKind = 1;
constexpr std::uint32_t kOkAndCancel = 1;
constexpr std::uint32_t kOkAnswer = 1;

bool HasRedundancy(std::string_view raidLevel) {
  static constexpr std::array<std::string_view, 5> kWithout = {"RAID 0", "RAID 3", "RAID 4", "RAID 15", "UNKNOWN"};
  return std::ranges::find(kWithout, raidLevel) == kWithout.end();
}

/// The low byte of the number at the start of a drive's name: its target id.
std::optional<std::uint8_t> TargetOf(const LogicalDrive& drive) {
  const char* const text = drive.name.c_str();
  char* end = nullptr;
  errno = 0;
  const long long number = std::strtoll(text, &end, 10);
  using Range = std::numeric_limits<std::int32_t>;
  if (end == text || errno == ERANGE || number < Range::min() || number > Range::max()) return std::nullopt;
  return static_cast<std::uint8_t>(static_cast<std::uint64_t>(number) & 0xFF);
}

/// What to report when a check could not be started, by the library's status. `LsiDevice` returns kFailure for each
/// of them, so its failures are reported as kOtherFailure; a device that returns the status uses the whole table.
struct StartFailure {
  storage::Status code;
  const char* key;
  std::string LogicalDrive::*value;
  TestResult result;
};

constexpr StartFailure kOtherFailure = {status::kFailure, message::kFailedToSendCommand, &LogicalDrive::name,
                                        TestResult::Warning};

constexpr std::array<StartFailure, 5> kStartFailures = {{
    {storage::Status{0x18}, message::kSkippedInitialization, &LogicalDrive::name, TestResult::NotApplicable},
    {storage::Status{0x1B}, message::kNotInOptimalState, &LogicalDrive::name, TestResult::Warning},
    {storage::Status{0x1D}, message::kSkippedReconstruction, &LogicalDrive::name, TestResult::NotApplicable},
    {storage::Status{0x1E}, message::kRaidNotSupported, &LogicalDrive::raidLevel, TestResult::NotApplicable},
    {storage::Status{0x2F}, message::kSkippedReserved, &LogicalDrive::name, TestResult::NotApplicable},
}};

}  // namespace

TestResult MergeResults(TestResult run, TestResult drive) {
  bool taken = false;
  switch (run) {
    case TestResult::Invalid:
    case TestResult::NotApplicable: taken = drive != TestResult::NotApplicable; break;
    case TestResult::Passed:
    case TestResult::Aborted: taken = drive != TestResult::Invalid && drive != TestResult::NotApplicable; break;
    case TestResult::Warning: taken = drive == TestResult::Failed; break;
    case TestResult::Failed: break;
  }
  return taken ? drive : run;
}

TestResult CheckConsistencyTest::ActiveRun::Perform() {
  if (const auto early = Prepare()) return *early;
  TestResult result = TestResult::NotApplicable;
  step_ = 100.0 / static_cast<double>(drives_.size());
  for (std::size_t i = 0; i < drives_.size(); ++i) {
    const TestResult drive = HandleDrive(i);
    if (abortedDuringCheck_) {
      SetProgress(100);
      return TestResult::Aborted;
    }
    result = MergeResults(result, drive);
  }
  if (result == TestResult::NotApplicable && !started_) Report(MessageType::Info, message::kNoTestableDrive);
  SetProgress(100);
  return result;
}

std::optional<TestResult> CheckConsistencyTest::ActiveRun::Prepare() {
  if (CheckAborted(arguments_)) return TestResult::Aborted;
  const bool listed = storage::Status{device_.GetLogicalDrives(drives_)}.Ok();
  if (!listed || drives_.empty()) {
    SetProgress(100);
    Report(listed ? MessageType::Info : MessageType::Notice,
           listed ? message::kNoLogicalDrive : message::kCannotRetrieveController);
    return listed ? TestResult::NotApplicable : TestResult::Warning;
  }
  if (!FindRunningChecks()) Report(MessageType::Warning, message::kCannotVerifyAllDrives);
  if (running_.empty()) return std::nullopt;
  if (AskWhetherToCancel()) {
    CancelRunningChecks();
  } else {
    keepRunning_ = true;
    for (const LogicalDrive& drive : running_) keptNames_.insert(drive.name);
  }
  return std::nullopt;
}

bool CheckConsistencyTest::ActiveRun::FindRunningChecks() {
  bool known = true;
  for (const LogicalDrive& drive : drives_) {
    const auto target = TargetOf(drive);
    if (!target) return false;
    bool running = false;
    double percent = 0;
    const storage::Status code = device_.GetConsistencyCheckProgress(*target, running, percent);
    if (!code.Ok()) known = false;
    if (code.Ok() && running) running_.push_back(drive);
  }
  return known;
}

bool CheckConsistencyTest::ActiveRun::AskWhetherToCancel() {
  legacy::ContextAdapter context(&arguments_);
  InputRequest request;
  request.text = Translate(message::kCancelAndStartQuestion);
  request.title = Translate(message::kCheckAlreadyInProgress);
  request.kind = kInformationKind;
  request.buttons = kOkAndCancel;
  request.context = &context;
  std::unique_ptr<core::InputInteraction> question =
      std::make_unique<utils::GuiDialogInputInteraction>(&request, "RAID", false, true);
  arguments_.reporter->Ask(question);
  // Destroy the question first: it points to the request.
  question.reset();
  return request.answer == kOkAnswer;
}

void CheckConsistencyTest::ActiveRun::CancelRunningChecks() {
  for (const LogicalDrive& drive : running_) {
    SetProgress(0);
    Report(MessageType::Info, message::kCancellingCheck, drive.name);
    const auto target = TargetOf(drive);
    if (!target) return;
    if (device_.CancelConsistencyCheck(*target, drive.sequenceNumber).Ok()) continue;
    SetProgress(0);
    Report(MessageType::Warning, message::kCannotCancelCheck, drive.name);
  }
}

TestResult CheckConsistencyTest::ActiveRun::HandleDrive(std::size_t index) {
  const LogicalDrive& drive = drives_[index];
  if (!HasRedundancy(drive.raidLevel)) {
    SetProgress(DonePercent(index + 1));
    Report(MessageType::Info, message::kUnsupportedRaidLevel, drive.name);
    Report(MessageType::Info, message::kTestDoesNotSupportLevel, drive.raidLevel);
    return TestResult::NotApplicable;
  }
  if (keepRunning_ && keptNames_.contains(drive.name)) {
    SetProgress(DonePercent(index + 1));
    Report(MessageType::Info, message::kIgnoringRunningCheck, drive.name);
    return TestResult::NotApplicable;
  }
  started_ = true;
  const storage::Status code = CheckDrive(index);
  if (abortedDuringCheck_) return TestResult::Aborted;
  return code.Ok() ? ReadResult(drive) : ExplainFailure(drive, code);
}

storage::Status CheckConsistencyTest::ActiveRun::CheckDrive(std::size_t index) {
  const LogicalDrive& drive = drives_[index];
  const std::uint32_t since = get_timer()->Now();
  const auto target = TargetOf(drive);
  if (!target) return status::kSuccess;
  const storage::Status begun = device_.StartConsistencyCheck(*target, drive.sequenceNumber);
  if (!begun.Ok()) return begun;
  SetProgress(0);
  Report(MessageType::Info, message::kRunningCheck, drive.name);
  return WaitForCheck(index, *target, since);
}

storage::Status CheckConsistencyTest::ActiveRun::WaitForCheck(std::size_t index, std::uint8_t target,
                                                              std::uint32_t since) {
  Reading reading;
  while (reading.percent < kFinished && reading.running) {
    if (CheckAborted(arguments_)) {
      // The run ends as aborted whether or not the controller accepts the cancel.
      storage::Ignore(device_.CancelConsistencyCheck(target, drives_[index].sequenceNumber));
      abortedDuringCheck_ = true;
      return status::kSuccess;
    }
    // No pause: an abort must reach the controller at once.
    if (get_timer()->Elapsed(since, get_timer()->Now()) < kSecondsBetweenReadings) continue;
    const storage::Status code = ReadProgress(index, target, reading);
    since = get_timer()->Now();
    if (!code.Ok()) return code;
  }
  return status::kSuccess;
}

storage::Status CheckConsistencyTest::ActiveRun::ReadProgress(std::size_t index, std::uint8_t target,
                                                              Reading& reading) {
  const storage::Status code = device_.GetConsistencyCheckProgress(target, reading.running, reading.percent);
  if (!code.Ok()) {
    Report(MessageType::Warning, message::kErrorRetrievingProgress);
    return reading.failuresInARow++ < kToleratedFailures ? status::kSuccess : code;
  }
  reading.failuresInARow = 0;
  if (reading.running) {
    SetProgress(reading.percent * step_ / 100 + DonePercent(index));
  } else {
    reading.percent = kFinished;
  }
  return status::kSuccess;
}

TestResult CheckConsistencyTest::ActiveRun::ReadResult(const LogicalDrive& drive) {
  const auto target = TargetOf(drive);
  if (!target) return TestResult::Aborted;
  bool consistent = false;
  if (!device_.GetConsistencyCheckResult(*target, drive.sequenceNumber, consistent).Ok()) {
    Report(MessageType::Error, message::kCannotGetCheckResult, drive.name);
    return TestResult::Warning;
  }
  Report(consistent ? MessageType::Info : MessageType::Error,
         consistent ? message::kConsistentDrive : message::kInconsistentDrive, drive.name);
  return consistent ? TestResult::Passed : TestResult::Warning;
}

TestResult CheckConsistencyTest::ActiveRun::ExplainFailure(const LogicalDrive& drive, storage::Status code) {
  const auto* row = std::ranges::find(kStartFailures, code, &StartFailure::code);
  const StartFailure& failure = row == kStartFailures.end() ? kOtherFailure : *row;
  Report(MessageType::Info, failure.key, drive.*failure.value);
  return failure.result;
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
