#pragma once

#include <QString>
#include <optional>

#include "host/drives/drive.h"
#include "host/run/run.h"

namespace orvik::host {

enum class SelfTestRequest { Short, Extended, Abort };

/// The latest readings of a self-test.
struct SelfTestReport {
  /// Of starting it, or of the requested abort; nothing if no such command was sent.
  std::optional<module::storage::Status> status;
  Reading<std::uint8_t> result;
  std::optional<std::uint8_t> progress;  ///< percent
  bool isAborted = false;                ///< whether the drive accepted an abort
  std::optional<std::uint64_t> failingLba;
};

/// Starts a self-test on a drive and follows it to its end, or aborts the running one. Once the abort flag is set, it
/// aborts the self-test that it has started. Ends as `Passed` or `Failed`, or with an error if there is no verdict.
struct SelfTestRun final : Run {
  SelfTestRun(const ListedDevice& onDevice, Drive ofDrive, SelfTestRequest forKind, const core::AbortFlag& onAbort);

  QString Name() const override;
  RunOutcome Perform() override;

  Drive drive;
  SelfTestRequest kind;
  const core::AbortFlag* abortFlag;
  SelfTestReport report;

 private:
  RunOutcome Abort(const DriveAccess& access);
  RunOutcome Follow(const DriveAccess& access);
  RunOutcome Conclude(const DriveAccess& access);
  bool IsOver(const DriveAccess& access);
  bool WaitForNextPoll() const;
};

}  // namespace orvik::host
