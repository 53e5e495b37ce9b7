#pragma once

#include <cstdint>
#include <optional>
#include <set>
#include <string>
#include <vector>

#include "module/raid/diagnostics/raid_tests.h"
#include "module/raid/storelib/storelib_device.h"

namespace orvik::module::raid {

/// One run of the test on one controller, on the worker thread that it keeps busy while it waits.
class CheckConsistencyTest::ActiveRun {
 public:
  ActiveRun(LsiDevice& onDevice, core::RunArguments& withArguments) : device_(onDevice), arguments_(withArguments) {}

  core::TestResult Perform();

 private:
  /// The state after a progress reading.
  struct Reading {
    bool running = true;
    double percent = 0;
    int failuresInARow = 0;
  };

  /// Returns a result when the run ends before any drive is checked.
  std::optional<core::TestResult> Prepare();
  /// Returns false unless every drive could be queried.
  bool FindRunningChecks();
  bool AskWhetherToCancel();
  void CancelRunningChecks();

  core::TestResult HandleDrive(std::size_t index);
  /// Returns kSuccess when the check ended or was cancelled, and when it could not start because the drive's name is
  /// not a number.
  storage::Status CheckDrive(std::size_t index);
  storage::Status WaitForCheck(std::size_t index, std::uint8_t target, std::uint32_t since);
  storage::Status ReadProgress(std::size_t index, std::uint8_t target, Reading& reading);
  core::TestResult ReadResult(const LogicalDrive& drive);
  core::TestResult ExplainFailure(const LogicalDrive& drive, storage::Status code);

  void Report(core::MessageType type, const char* key) { AddMessage(arguments_, type, key); }
  void Report(core::MessageType type, const char* key, const std::string& value) {
    AddMessage(arguments_, type, key, value);
  }
  void SetProgress(double percent) const { arguments_.reporter->SetProgress(static_cast<std::uint8_t>(percent)); }
  /// The progress, in percent, before the drive at `index`.
  double DonePercent(std::size_t index) const { return static_cast<double>(index) * step_; }

  LsiDevice& device_;
  core::RunArguments& arguments_;
  std::vector<LogicalDrive> drives_;
  std::vector<LogicalDrive> running_;
  std::set<std::string> keptNames_;
  bool keepRunning_ = false;
  bool started_ = false;
  bool abortedDuringCheck_ = false;
  double step_ = 100;
};

/// The result of a run after a further drive ended with `drive`.
core::TestResult MergeResults(core::TestResult run, core::TestResult drive);

}  // namespace orvik::module::raid
