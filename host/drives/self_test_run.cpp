#include "host/drives/self_test_run.h"

#include <QCoreApplication>
#include <chrono>
#include <thread>
#include <utility>

#include "host/drives/drive.h"
#include "host/text/text.h"
#include "host/text/words.h"

namespace orvik::host {
namespace {

using core::TestResult;
using module::storage::Protocol;
using module::storage::Status;
namespace status = module::storage::status;

constexpr std::chrono::milliseconds kPollInterval(500);
constexpr std::chrono::milliseconds kAbortLatency(50);
constexpr int kMostEmptyPolls = 10;

// The same in ATA (SMART EXECUTE OFF-LINE IMMEDIATE) and SCSI (background tests of SEND DIAGNOSTIC).
std::uint8_t CodeOf(SelfTestRequest kind) {
  return kind == SelfTestRequest::Extended ? 2 : 1;
}

bool HasNoSelfTests(const Drive& drive) {
  const std::string& name = drive.properties.protocolName;
  return name.empty() ? drive.entry.protocol == module::raid::DriveProtocol::Nvme : name == "NVMe";
}

Error NotAborted(Status status) {
  return {QCoreApplication::translate("orvik-diag", "Could not abort the self-test: %1").arg(StatusText(status))};
}

}  // namespace

SelfTestRun::SelfTestRun(const ListedDevice& onDevice, Drive ofDrive, SelfTestRequest forKind,
                         const core::AbortFlag& onAbort)
    : Run(onDevice, core::DispatchRequest::kSharedMode, nullptr),
      drive(std::move(ofDrive)),
      kind(forKind),
      abortFlag(&onAbort) {}

QString SelfTestRun::Name() const {
  return QCoreApplication::translate("orvik-diag", "Drive %1: self-test").arg(DisplayText(drive.entry.id));
}

RunOutcome SelfTestRun::Perform() {
  // Kept alive meanwhile: the drive is reached through the device.
  const std::shared_ptr<core::Device> locked = device->device.lock();
  if (locked == nullptr) return DeviceGone();
  Identify(drive);
  if (HasNoSelfTests(drive)) {
    return Error{QCoreApplication::translate("orvik-diag", "Self-tests are not supported on NVMe drives")};
  }
  const std::vector<DriveAccess> accesses = AccessesOf(drive);
  if (accesses.empty()) return Error{StatusText(status::kFailure)};
  // ATA if there is a choice: it reports a refused start, which SCSI does not.
  const DriveAccess& access = accesses.back();
  if (kind == SelfTestRequest::Abort) return Abort(access);

  const Reading<std::uint8_t> before = Read(access, &Protocol::GetSelfTestResult);
  if (before.value && EndOf(*before.value, access.isAta) == SelfTestEnd::InProgress) {
    return Error{QCoreApplication::translate("orvik-diag", "A self-test is already running; use --abort to stop it")};
  }
  report.status = Status(access.protocol->StartSelfTest(CodeOf(kind), 0));
  if (report.status->Ok()) return Follow(access);
  return Error{
      QCoreApplication::translate("orvik-diag", "Could not start the self-test: %1").arg(StatusText(*report.status))};
}

RunOutcome SelfTestRun::Abort(const DriveAccess& access) {
  report.status = Status(access.protocol->AbortSelfTest());
  if (!report.status->Ok()) return NotAborted(*report.status);
  report.isAborted = true;
  return TestResult::Passed;
}

RunOutcome SelfTestRun::Follow(const DriveAccess& access) {
  int emptyPolls = 0;
  while (!IsOver(access)) {
    const bool isEmpty = !report.result.value && !report.progress;
    emptyPolls = isEmpty ? emptyPolls + 1 : 0;
    if (emptyPolls == kMostEmptyPolls) {
      return Error{QCoreApplication::translate("orvik-diag", "Could not read the progress of the self-test: %1")
                       .arg(StatusText(report.result.status))};
    }
    if (WaitForNextPoll()) continue;
    const Status aborted(access.protocol->AbortSelfTest());
    if (!aborted.Ok()) return NotAborted(aborted);
    report.isAborted = true;
    // The result read before the abort said that the self-test was running.
    report.result = Read(access, &Protocol::GetSelfTestResult);
    report.progress.reset();
    return Error{QCoreApplication::translate("orvik-diag", "The self-test was aborted")};
  }
  return Conclude(access);
}

bool SelfTestRun::IsOver(const DriveAccess& access) {
  const Reading<std::uint8_t> progress = ReadSelfTestProgress(access);
  report.progress = progress.value;
  if (progress.value) log.SetProgress(*progress.value);
  report.result = Read(access, &Protocol::GetSelfTestResult);
  // The result decides if there is one: progress has steps of ten percent and reaches 100 before the end.
  if (report.result.value) return EndOf(*report.result.value, access.isAta) != SelfTestEnd::InProgress;
  return report.progress == 100;
}

RunOutcome SelfTestRun::Conclude(const DriveAccess& access) {
  if (!report.result.value) {
    return Error{QCoreApplication::translate("orvik-diag", "Could not read the result of the self-test: %1")
                     .arg(StatusText(report.result.status))};
  }
  switch (EndOf(*report.result.value, access.isAta)) {
    case SelfTestEnd::Passed: return TestResult::Passed;
    case SelfTestEnd::Failed:
      report.failingLba = Read(access, &Protocol::GetSelfTestFailingLba).value;
      return TestResult::Failed;
    case SelfTestEnd::Aborted:
    case SelfTestEnd::InProgress:
    case SelfTestEnd::Unknown: break;
  }
  return Error{QCoreApplication::translate("orvik-diag", "The self-test ended without a result: %1")
                   .arg(SelfTestWord(*report.result.value, access.isAta).shown)};
}

// False as soon as the abort flag is set.
bool SelfTestRun::WaitForNextPoll() const {
  for (std::chrono::milliseconds waited(0); waited < kPollInterval; waited += kAbortLatency) {
    if (abortFlag->load() != 0) return false;
    std::this_thread::sleep_for(kAbortLatency);
  }
  return abortFlag->load() == 0;
}

}  // namespace orvik::host
