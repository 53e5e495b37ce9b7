#include "host/drives/self_test_run.h"

#include <QCoreApplication>
#include <chrono>
#include <thread>
#include <utility>

#include "host/drives/self_test_code.h"
#include "host/report/drive_words.h"
#include "host/text/display_text.h"

namespace orvik::host {
namespace {

using core::TestResult;
using module::storage::Protocol;
namespace status = module::storage::status;

constexpr std::chrono::milliseconds kLookInterval(500);
constexpr std::chrono::milliseconds kAbortLatency(50);
constexpr int kMostSilentLooks = 10;

// ATA subcommands of SMART EXECUTE OFF-LINE IMMEDIATE, SCSI codes of SEND DIAGNOSTIC for tests in the background.
std::uint8_t CodeOf(SelfTestRequest kind) {
  return kind == SelfTestRequest::Extended ? 2 : 1;
}

bool HasNoSelfTests(const Drive& drive) {
  const std::string& name = drive.properties.protocolName;
  return name.empty() ? drive.entry.protocol == module::raid::DriveProtocol::Nvme : name == "NVMe";
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

TestResult SelfTestRun::Perform() {
  const std::shared_ptr<core::Device> locked = device->device.lock();  // the drive is reached through it
  if (locked == nullptr) return TestResult::Invalid;
  Identify(drive);
  if (HasNoSelfTests(drive)) {
    return GiveUp(QCoreApplication::translate("orvik-diag", "NVMe drives offer no self-tests here"));
  }
  const std::vector<DriveVoice> voices = VoicesOf(drive);
  if (voices.empty()) return GiveUp(StatusText(status::kFailure));
  // Where there is a choice, ATA: it tells a refused start, which SCSI does not.
  const DriveVoice& voice = voices.back();

  if (kind == SelfTestRequest::Abort) {
    report.status = voice.protocol->AbortSelfTest();
    if (report.status == status::kSuccess) return TestResult::Passed;
    return GiveUp(QCoreApplication::translate("orvik-diag", "The self-test could not be aborted: %1")
                      .arg(StatusText(*report.status)));
  }
  const Reading<std::uint8_t> before = Ask(voice, &Protocol::GetSelfTestResult);
  if (before.value && EndOf(*before.value, voice.isAta) == SelfTestEnd::InProgress) {
    return GiveUp(QCoreApplication::translate("orvik-diag", "A self-test is under way already; --abort ends it"));
  }
  report.status = voice.protocol->StartSelfTest(CodeOf(kind), 0);
  if (report.status == status::kSuccess) return Follow(voice);
  return GiveUp(QCoreApplication::translate("orvik-diag", "The self-test could not be started: %1")
                    .arg(StatusText(*report.status)));
}

TestResult SelfTestRun::Follow(const DriveVoice& voice) {
  int silentLooks = 0;
  while (!IsOver(voice)) {
    const bool isSilent = !report.result.value && !report.progress;
    silentLooks = isSilent ? silentLooks + 1 : 0;
    if (silentLooks == kMostSilentLooks) {
      return GiveUp(QCoreApplication::translate("orvik-diag", "The drive does not tell how its self-test goes: %1")
                        .arg(StatusText(report.result.status)));
    }
    if (WaitForNextLook()) continue;
    const module::storage::Status aborted = voice.protocol->AbortSelfTest();
    return aborted == status::kSuccess
               ? GiveUp(QCoreApplication::translate("orvik-diag", "The self-test was aborted"))
               : GiveUp(QCoreApplication::translate("orvik-diag", "The self-test could not be aborted: %1")
                            .arg(StatusText(aborted)));
  }
  return Conclude(voice);
}

bool SelfTestRun::IsOver(const DriveVoice& voice) {
  const Reading<std::uint8_t> progress = AskSelfTestProgress(voice);
  report.progress = progress.value;
  if (progress.value) recorder.SetProgress(*progress.value);
  report.result = Ask(voice, &Protocol::GetSelfTestResult);
  // The result decides where there is one: progress in steps of ten percent arrives before the end.
  if (report.result.value) return EndOf(*report.result.value, voice.isAta) != SelfTestEnd::InProgress;
  return report.progress == 100;
}

TestResult SelfTestRun::Conclude(const DriveVoice& voice) {
  if (!report.result.value) {
    return GiveUp(QCoreApplication::translate("orvik-diag", "The drive does not tell how its self-test ended: %1")
                      .arg(StatusText(report.result.status)));
  }
  switch (EndOf(*report.result.value, voice.isAta)) {
    case SelfTestEnd::Passed: return TestResult::Passed;
    case SelfTestEnd::Failed:
      report.failingLba = Ask(voice, &Protocol::GetSelfTestFailingLba).value;
      return TestResult::Failed;
    case SelfTestEnd::Aborted:
    case SelfTestEnd::InProgress:
    case SelfTestEnd::Unknown: break;
  }
  return GiveUp(QCoreApplication::translate("orvik-diag", "The self-test came to no verdict: %1")
                    .arg(SelfTestWord(*report.result.value, voice.isAta).shown));
}

TestResult SelfTestRun::GiveUp(const QString& problem) {
  report.problem = problem;
  return TestResult::Aborted;
}

// False as soon as the abort flag is set.
bool SelfTestRun::WaitForNextLook() const {
  for (std::chrono::milliseconds waited(0); waited < kLookInterval; waited += kAbortLatency) {
    if (abortFlag->load() != 0) return false;
    std::this_thread::sleep_for(kAbortLatency);
  }
  return abortFlag->load() == 0;
}

}  // namespace orvik::host
