#pragma once

#include <QString>
#include <optional>

#include "host/drives/drive.h"
#include "host/drives/drive_questions.h"
#include "host/run/run.h"

namespace orvik::host {

enum class SelfTestRequest { Short, Extended, Abort };

/// What came of a request.
struct SelfTestReport {
  std::optional<module::storage::Status>
      status;  ///< of the start, or of the abort that was asked for; none: not sent
  Reading<std::uint8_t> result;
  std::optional<std::uint8_t> progress;  ///< percent, at the last look
  std::optional<std::uint64_t> failingLba;
  QString problem;  ///< one line; why there is no verdict
};

/// Starts a self-test on a drive and follows it to its end, or aborts the one under way. Once the abort flag is set
/// it aborts the self-test that it has started. Its own result is `Passed` or `Failed`, or `Aborted` without a
/// verdict.
struct SelfTestRun final : Run {
  SelfTestRun(const ListedDevice& onDevice, Drive ofDrive, SelfTestRequest forKind, const core::AbortFlag& onAbort);

  QString Name() const override;
  core::TestResult Perform() override;

  Drive drive;
  SelfTestRequest kind;
  const core::AbortFlag* abortFlag;
  SelfTestReport report;

 private:
  core::TestResult Follow(const DriveVoice& voice);
  core::TestResult Conclude(const DriveVoice& voice);
  core::TestResult GiveUp(const QString& problem);
  bool IsOver(const DriveVoice& voice);
  bool WaitForNextLook() const;
};

}  // namespace orvik::host
