// The consistency check on storelib controllers of a simulated machine, in machine time.

#include <gtest/gtest.h>

#include <algorithm>
#include <optional>

#include "module/raid/diagnostics/consistency_run.h"
#include "module/raid/diagnostics/raid_tests.h"
#include "tests/module/raid/diagnostics/run_recorder.h"
#include "tests/module/raid/storelib/storelib_machines.h"
#include "utils/dialogs/gui_dialog_input_interaction.h"

namespace orvik::module::raid {
namespace {

using namespace orvik::simulation;
using namespace orvik::testing;
using core::TestResult;
using Texts = std::vector<std::string>;

/// Half a minute of machine time passes in milliseconds.
constexpr double kSpeed = 10'000;

/// A redundant drive whose check outlasts any test.
StorelibLogicalDriveDescription Redundant(std::uint8_t targetId) {
  auto drive = Volume(targetId, 1);
  drive.check.seconds = 4'000'000;
  return drive;
}

StorelibLogicalDriveDescription Striped(std::uint8_t targetId) {
  return Volume(targetId, 0);
}

StorelibLogicalDriveDescription Checking(std::uint8_t targetId) {
  auto drive = Redundant(targetId);
  drive.check.runningAt = 30'000;
  return drive;
}

StorelibLogicalDriveDescription Inconsistent(std::uint8_t targetId) {
  auto drive = Redundant(targetId);
  drive.consistent = false;
  return drive;
}

class ConsistencyTest : public ::testing::Test, protected core::RunReporter {
 protected:
  /// Every check reports 50 percent at its first reading and ends at the second, unless `FailReadings` was called.
  TestResult Run(const std::vector<StorelibLogicalDriveDescription>& drives) {
    machine_ = Install({.speed = kSpeed, .storelib = {.controllers = {LsiController(drives)}}});
    // The first reading of each drive looks for running checks.
    std::uint64_t reading = drives.size();
    for (const bool fails : failedReadings_) {
      ++reading;
      if (fails) {
        machine_->Faults().Add({.operation = kProgress, .call = reading, .effects = {.returnCode = 1}});
      } else {
        PatchReading(reading, 1);
      }
    }
    for (std::size_t i = 0; i < drives.size(); ++i) {
      if (failedReadings_.empty()) PatchReading(++reading, 1);
      PatchReading(++reading, 0);
    }
    return Run();
  }

  /// Runs the test on the current machine.
  TestResult Run() {
    for (const FaultRule& fault : faults_) machine_->Faults().Add(fault);
    const std::shared_ptr<core::Device> device = OpenLsiDevice();
    core::RunArguments arguments{.device = device, .abortFlag = &abort_, .reporter = this};
    return CheckConsistencyTest().Run(arguments);
  }

  void PatchReading(std::uint64_t call, std::uint8_t running) {
    machine_->Faults().Add({.operation = kProgress,
                            .call = call,
                            .effects = {.patches = {{.offset = 0, .bytes = {running, 0, 0, 0, 0, 0x80}}}}});
  }

  void FailEvery(const char* operation, std::optional<std::uint64_t> call = {}) {
    faults_.push_back({.operation = operation, .call = call, .effects = {.returnCode = 1}});
  }

  std::uint64_t Calls(const char* operation) const { return machine_->Faults().CallsMade(operation); }
  bool IsChecking(std::uint8_t target) const { return machine_->Storelib().FindController(3)->IsChecking(target); }

  void SetProgress(std::uint8_t percent) override { Report(std::to_string(percent) + "%"); }

  void AddMessage(const core::TestMessage& message) override {
    Report("IWEN"[static_cast<std::size_t>(message.type)] + std::string(" ") + message.text);
  }

  void Ask(std::unique_ptr<core::InputInteraction>& question) override {
    const auto& interaction = dynamic_cast<utils::GuiDialogInputInteraction&>(*question);
    InputRequest& request = *interaction.request;
    EXPECT_EQ(request.title, "CHECK_CONSISTENCY_ALREADY_IN_PROGRESS");
    EXPECT_EQ(request.text, "CANCEL_AND_START_NEW_CHECK_CONSISTENCY_ON_LOGICAL_DRIVE_QUESTION");
    EXPECT_EQ(interaction.translationContext, "RAID");
    EXPECT_TRUE(interaction.alwaysAsk);
    EXPECT_FALSE(interaction.skipInteraction);
    EXPECT_EQ(request.kind, 1U);
    EXPECT_EQ(request.buttons, 1U);
    EXPECT_FALSE(request.context->IsAborted());
    if (abortWhileAsking_) abort_ = 1;
    EXPECT_EQ(request.context->IsAborted(), abortWhileAsking_);
    request.answer = answer_;
    reports_.emplace_back("?");
  }

  std::shared_ptr<Machine> machine_;
  core::AbortFlag abort_ = 0;
  std::uint32_t answer_ = 0;
  bool abortWhileAsking_ = false;
  std::string abortAt_;
  Texts reports_;
  /// Whether each reading of the first check but the last fails; the others report 50 percent.
  std::vector<bool> failedReadings_;

 private:
  static constexpr char kProgress[] = "STORELIB_CHECK_PROGRESS";

  void Report(const std::string& report) {
    reports_.push_back(report);
    if (report == abortAt_) abort_ = 1;
  }

  std::vector<FaultRule> faults_;
};

TEST_F(ConsistencyTest, ChecksDrivesWithRedundancyAndSkipsTheOthers) {
  EXPECT_EQ(Run({Redundant(0), Striped(1), Inconsistent(2), Redundant(239)}), TestResult::Warning);
  EXPECT_EQ(
      reports_,
      (Texts{"0%", "I RUNNING_CHECK_CONSISTENCY_ON_LOGICAL_DRIVE: 0", "12%", "I CONSISTENT_LOGICAL_DRIVE: 0", "50%",
             "I UNSUPPORTED_RAID_LEVEL_IN_LOGICAL_DRIVE: 1", "I TEST_DOESNT_SUPPORT_RAID_LEVEL: RAID 0", "0%",
             "I RUNNING_CHECK_CONSISTENCY_ON_LOGICAL_DRIVE: 2", "62%", "E INCONSISTENT_LOGICAL_DRIVE: 2", "0%",
             "I RUNNING_CHECK_CONSISTENCY_ON_LOGICAL_DRIVE: 239", "87%", "I CONSISTENT_LOGICAL_DRIVE: 239", "100%"}));
  EXPECT_EQ(Calls("STORELIB_START_CHECK"), 3U);
  EXPECT_EQ(Calls("STORELIB_CANCEL_CHECK"), 0U);
}

TEST_F(ConsistencyTest, ReportsThatNothingCanBeChecked) {
  EXPECT_EQ(Run({Striped(0)}), TestResult::NotApplicable);
  EXPECT_EQ(reports_,
            (Texts{"100%", "I UNSUPPORTED_RAID_LEVEL_IN_LOGICAL_DRIVE: 0", "I TEST_DOESNT_SUPPORT_RAID_LEVEL: RAID 0",
                   "I NO_TESTABLE_LOGICAL_DRIVE_FOUND", "100%"}));
  reports_.clear();
  EXPECT_EQ(Run({}), TestResult::NotApplicable);
  EXPECT_EQ(reports_, (Texts{"100%", "I NO_LOGICAL_DRIVE_FOUND_SKIPPING_TEST"}));
  reports_.clear();
  FailEvery("STORELIB_LOGICAL_DRIVE_LIST");
  EXPECT_EQ(Run({Redundant(0)}), TestResult::Warning);
  EXPECT_EQ(reports_, (Texts{"100%", "N CANNOT_RETRIEVE_CONTROLLER_INFO"}));
}

TEST_F(ConsistencyTest, KeepsRunningChecksUnlessTheUserAgrees) {
  for (const std::uint32_t answer : {0U, 2U, 3U}) {
    answer_ = answer;
    reports_.clear();
    EXPECT_EQ(Run({Checking(0), Redundant(1)}), TestResult::Passed);
    EXPECT_EQ(reports_, (Texts{"?", "50%", "I IGNORING_LOGICAL_DRIVE_CHECK_CONSISTENCY_ALREADY_RUNNING: 0", "0%",
                               "I RUNNING_CHECK_CONSISTENCY_ON_LOGICAL_DRIVE: 1", "75%",
                               "I CONSISTENT_LOGICAL_DRIVE: 1", "100%"}));
    EXPECT_EQ(Calls("STORELIB_CANCEL_CHECK"), 0U);
  }
}

TEST_F(ConsistencyTest, CancelsRunningChecksWhenTheUserAgrees) {
  answer_ = 1;
  FailEvery("STORELIB_CANCEL_CHECK", 2);
  EXPECT_EQ(Run({Checking(0), Redundant(1), Checking(2)}), TestResult::Warning);
  EXPECT_EQ(reports_,
            (Texts{"?", "0%", "I CANCELLING_CHECK_CONSISTENCY_ON_LOGICAL_DRIVE: 0", "0%",
                   "I CANCELLING_CHECK_CONSISTENCY_ON_LOGICAL_DRIVE: 2", "0%",
                   "W CANT_CANCEL_CHECK_CONSISTENCY_ON_LOGICAL_DRIVE: 2", "0%",
                   "I RUNNING_CHECK_CONSISTENCY_ON_LOGICAL_DRIVE: 0", "16%", "I CONSISTENT_LOGICAL_DRIVE: 0", "0%",
                   "I RUNNING_CHECK_CONSISTENCY_ON_LOGICAL_DRIVE: 1", "50%", "I CONSISTENT_LOGICAL_DRIVE: 1",
                   "I FAILED_TO_SEND_COMMAND_TO_LOGICAL_DRIVE: 2", "100%"}));
}

TEST_F(ConsistencyTest, ReportsDrivesThatItCannotVerify) {
  auto refused = Redundant(0);
  refused.check.startStatus = 0x1B;
  FailEvery("STORELIB_CHECK_PROGRESS", 2);
  FailEvery("STORELIB_LOGICAL_DRIVE_INFO", 3);
  EXPECT_EQ(Run({refused, Redundant(1)}), TestResult::Warning);
  EXPECT_EQ(reports_,
            (Texts{"W CANT_VERIFY_STATUS_OF_ALL_LOGICAL_DRIVES", "I FAILED_TO_SEND_COMMAND_TO_LOGICAL_DRIVE: 0", "0%",
                   "I RUNNING_CHECK_CONSISTENCY_ON_LOGICAL_DRIVE: 1", "75%",
                   "E CANNOT_GET_CONSISTENCY_CHECK_RESULT: 1", "100%"}));
}

TEST_F(ConsistencyTest, ToleratesFiveFailedReadingsInARow) {
  const std::string failed = "W ERROR_RETRIEVING_PROGRESS";
  struct Case {
    std::vector<bool> failedReadings;
    Texts reports;
    bool tolerated;
  };
  for (const Case& row :
       {Case{std::vector(5, true), Texts(5, failed), true},
        Case{{true, true, true, true, true, false, true, true, true, true, true},
             {failed, failed, failed, failed, failed, "50%", failed, failed, failed, failed, failed},
             true},
        Case{std::vector(6, true), Texts(6, failed), false}}) {
    failedReadings_ = row.failedReadings;
    reports_.clear();
    EXPECT_EQ(Run({Redundant(0)}), row.tolerated ? TestResult::Passed : TestResult::Warning);
    Texts expected = {"0%", "I RUNNING_CHECK_CONSISTENCY_ON_LOGICAL_DRIVE: 0"};
    expected.insert(expected.end(), row.reports.begin(), row.reports.end());
    expected.emplace_back(row.tolerated ? "I CONSISTENT_LOGICAL_DRIVE: 0"
                                        : "I FAILED_TO_SEND_COMMAND_TO_LOGICAL_DRIVE: 0");
    expected.emplace_back("100%");
    EXPECT_EQ(reports_, expected);
    EXPECT_TRUE(IsChecking(0)) << "the controller's check keeps running";
    EXPECT_EQ(Calls("STORELIB_CANCEL_CHECK"), 0U);
  }
}

TEST_F(ConsistencyTest, AnAbortCancelsTheCheckAtOnce) {
  abortAt_ = "25%";
  EXPECT_EQ(Run({Redundant(0), Redundant(1)}), TestResult::Aborted);
  EXPECT_EQ(reports_, (Texts{"0%", "I RUNNING_CHECK_CONSISTENCY_ON_LOGICAL_DRIVE: 0", "25%", "100%", "100%"}));
  EXPECT_FALSE(IsChecking(0));
  EXPECT_EQ(Calls("STORELIB_START_CHECK"), 1U);
  reports_.clear();
  EXPECT_EQ(Run(), TestResult::Aborted);
  EXPECT_EQ(reports_, Texts{"100%"});
}

TEST_F(ConsistencyTest, ReportsAnAbortDuringTheQuestionAtTheNextCheck) {
  abortWhileAsking_ = true;
  EXPECT_EQ(Run({Checking(0), Redundant(1)}), TestResult::Aborted);
  EXPECT_EQ(reports_, (Texts{"?", "50%", "I IGNORING_LOGICAL_DRIVE_CHECK_CONSISTENCY_ALREADY_RUNNING: 0", "0%",
                             "I RUNNING_CHECK_CONSISTENCY_ON_LOGICAL_DRIVE: 1", "100%", "100%"}));
  EXPECT_TRUE(IsChecking(0));
  EXPECT_FALSE(IsChecking(1));

  abort_ = 0;
  reports_.clear();
  EXPECT_EQ(Run({Checking(0)}), TestResult::NotApplicable);
  EXPECT_EQ(reports_, (Texts{"?", "100%", "I IGNORING_LOGICAL_DRIVE_CHECK_CONSISTENCY_ALREADY_RUNNING: 0",
                             "I NO_TESTABLE_LOGICAL_DRIVE_FOUND", "100%"}));
}

TEST_F(ConsistencyTest, MergesResults) {
  using enum core::TestResult;
  const std::vector all = {Invalid, Passed, Warning, Failed, NotApplicable, Aborted};
  struct Row {
    TestResult run;
    std::vector<TestResult> merged;  // with each of `all`
  };
  for (const auto& [run, merged] :
       std::vector<Row>{{Invalid, {Invalid, Passed, Warning, Failed, Invalid, Aborted}},
                        {NotApplicable, {Invalid, Passed, Warning, Failed, NotApplicable, Aborted}},
                        {Passed, {Passed, Passed, Warning, Failed, Passed, Aborted}},
                        {Aborted, {Aborted, Passed, Warning, Failed, Aborted, Aborted}},
                        {Warning, {Warning, Warning, Warning, Failed, Warning, Warning}},
                        {Failed, {Failed, Failed, Failed, Failed, Failed, Failed}}}) {
    for (std::size_t i = 0; i < all.size(); ++i) {
      EXPECT_EQ(MergeResults(run, all[i]), merged[i]) << int(run) << ' ' << int(all[i]);
    }
  }
}

}  // namespace
}  // namespace orvik::module::raid
