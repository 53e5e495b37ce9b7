#include "host/run/run.h"

#include <QCoreApplication>
#include <algorithm>
#include <array>
#include <utility>

namespace orvik::host {
namespace {

constexpr std::array<const char*, 4> kAnswerNames = {"ok", "cancel", "yes", "no"};

constexpr std::uint32_t kExtendedGroup = 2;

int Severity(ExitCode code) {
  switch (code) {
    case ExitCode::Failed: return 3;
    case ExitCode::NoVerdict: return 2;
    case ExitCode::Warning: return 1;
    case ExitCode::AllRight: break;
  }
  return 0;
}

std::int32_t ModeOf(const core::Test& test) {
  return test.Descriptor().groupKind == kExtendedGroup ? core::DispatchRequest::kExclusiveMode
                                                       : core::DispatchRequest::kSharedMode;
}

}  // namespace

const char* NameOf(QuestionAnswer answer) {
  return kAnswerNames.at(static_cast<std::size_t>(answer));
}

std::optional<QuestionAnswer> AnswerNamed(const QString& name) {
  for (std::size_t i = 0; i < kAnswerNames.size(); ++i) {
    if (name.compare(QLatin1String(kAnswerNames.at(i)), Qt::CaseInsensitive) == 0) {
      return static_cast<QuestionAnswer>(i);
    }
  }
  return std::nullopt;
}

void RunLog::SetProgress(std::uint8_t percent) {
  progress_.store(std::min<int>(percent, 100));
}

void RunLog::AddMessage(const core::TestMessage& message) {
  messages_.push_back(message);
}

void RunLog::Ask(std::unique_ptr<core::InputInteraction>& question) {
  if (question == nullptr) return;
  if (presenter_ == nullptr) {
    question->Interact();
  } else if (auto asked = presenter_->Ask(*question)) {
    questions_.push_back(*std::move(asked));
  }
}

std::optional<int> RunLog::Progress() const {
  const int progress = progress_.load();
  return progress < 0 ? std::nullopt : std::optional<int>(progress);
}

ExitCode ExitCodeOf(const RunOutcome& outcome) {
  if (!outcome.Ok()) return ExitCode::NoVerdict;
  switch (outcome.Value()) {
    case core::TestResult::Passed:
    case core::TestResult::NotApplicable: return ExitCode::AllRight;
    case core::TestResult::Warning: return ExitCode::Warning;
    case core::TestResult::Failed: return ExitCode::Failed;
    case core::TestResult::Invalid:
    case core::TestResult::Aborted: break;
  }
  return ExitCode::NoVerdict;
}

ExitCode Worse(ExitCode first, ExitCode second) {
  return Severity(second) > Severity(first) ? second : first;
}

TestRun::TestRun(const ListedDevice& onDevice, const ListedTest& ofTest, const core::AbortFlag& abortFlag)
    : Run(onDevice, ModeOf(*ofTest.test), ofTest.test.get()), test(&ofTest) {
  arguments.device = onDevice.device;
  arguments.abortFlag = &abortFlag;
  arguments.reporter = &log;
}

QString TestRun::Name() const {
  return QCoreApplication::translate("orvik-diag", "Device %1: %2").arg(device->index).arg(test->name);
}

RunOutcome TestRun::Perform() {
  return test->test->Run(arguments);
}

TestRunList PlanRuns(const std::vector<const ListedDevice*>& devices, const std::vector<const ListedTest*>& tests,
                     const core::AbortFlag& abortFlag) {
  TestRunList runs;
  for (const ListedDevice* const device : devices) {
    for (const ListedTest* const test : tests) {
      if (AppliesTo(*test, *device)) runs.push_back(std::make_unique<TestRun>(*device, *test, abortFlag));
    }
  }
  return runs;
}

}  // namespace orvik::host
