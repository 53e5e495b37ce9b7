#pragma once

#include <QString>
#include <QStringList>
#include <atomic>
#include <memory>
#include <optional>
#include <vector>

#include "core/dispatcher.h"
#include "core/run_arguments.h"
#include "host/inventory/inventory.h"
#include "host/result.h"

namespace orvik::host {

/// The buttons that a module's question can have.
enum class QuestionAnswer { Ok, Cancel, Yes, No };

/// The button's name for programs and command lines, such as "ok".
const char* NameOf(QuestionAnswer answer);

/// The answer of that name, in any case.
std::optional<QuestionAnswer> AnswerNamed(const QString& name);

/// A question as it was shown.
struct AskedQuestion {
  QString title;
  QString text;
  QStringList choices;                   ///< names of its buttons
  std::optional<QuestionAnswer> answer;  ///< nothing if it was closed without an answer
};

/// Presents the questions of tests to the user.
class QuestionPresenter {
 public:
  QuestionPresenter() = default;
  QuestionPresenter(const QuestionPresenter&) = delete;
  QuestionPresenter& operator=(const QuestionPresenter&) = delete;
  virtual ~QuestionPresenter() = default;

  /// Blocks until the question has been answered or closed. Nothing if no question appeared. Any thread but the GUI
  /// thread.
  virtual std::optional<AskedQuestion> Ask(core::InputInteraction& question) = 0;
};

/// Keeps what a run reports. The progress may be read on any thread at any time, everything else once the run has
/// ended.
class RunLog final : public core::RunReporter {
 public:
  void SetProgress(std::uint8_t percent) override;
  void AddMessage(const core::TestMessage& message) override;
  void Ask(std::unique_ptr<core::InputInteraction>& question) override;

  /// Presents the questions; without a presenter they are asked but not logged. Call before the run starts.
  void SetQuestionPresenter(QuestionPresenter& presenter) { presenter_ = &presenter; }

  /// 0 to 100; nothing before the first report.
  std::optional<int> Progress() const;

  const std::vector<core::TestMessage>& Messages() const { return messages_; }
  std::vector<core::TestMessage>& Messages() { return messages_; }
  const std::vector<AskedQuestion>& Questions() const { return questions_; }

 private:
  std::atomic<int> progress_{-1};
  std::vector<core::TestMessage> messages_;
  std::vector<AskedQuestion> questions_;
  QuestionPresenter* presenter_ = nullptr;
};

/// The result that a run ended with, or why it has none.
using RunOutcome = Result<core::TestResult>;

/// The program's exit code.
enum class ExitCode : int {
  AllRight = 0,   ///< everything passed, or nothing applied
  Warning = 1,    ///< a test ended with a warning
  Failed = 2,     ///< a test failed
  NoVerdict = 3,  ///< usage error, no module, no machine, interrupted, or a run without a verdict
};

/// The code of one run.
ExitCode ExitCodeOf(const RunOutcome& outcome);

/// The more severe of two codes: a failure comes first, then no verdict, then a warning.
ExitCode Worse(ExitCode first, ExitCode second);

/// Work on one device, from plan to outcome. Not movable, because a worker thread uses it while it runs.
struct Run {
  enum class State { Waiting, Running, Ended };

  /// `mode` is one of the modes of `DispatchRequest`; `test` may be null.
  Run(const ListedDevice& onDevice, std::int32_t mode, core::Test* test)
      : device(&onDevice), request(std::make_unique<core::DispatchRequest>(onDevice.device, mode, test)) {}
  Run(const Run&) = delete;
  Run& operator=(const Run&) = delete;
  virtual ~Run() = default;

  /// Shown beside the progress bar.
  virtual QString Name() const = 0;

  /// Does the work. Called once, on a worker thread.
  virtual RunOutcome Perform() = 0;

  const ListedDevice* device;
  std::unique_ptr<core::DispatchRequest> request;
  RunLog log;
  State state = State::Waiting;  ///< main thread only
  RunOutcome outcome = Error();  ///< belongs to the worker thread until the run has ended
};

/// One test on one device.
struct TestRun final : Run {
  TestRun(const ListedDevice& onDevice, const ListedTest& ofTest, const core::AbortFlag& abortFlag);

  QString Name() const override;
  RunOutcome Perform() override;

  const ListedTest* test;
  core::RunArguments arguments;
};

using TestRunList = std::vector<std::unique_ptr<TestRun>>;

/// A run for every test on every device that it applies to: device by device, in the order of the tests.
TestRunList PlanRuns(const std::vector<const ListedDevice*>& devices, const std::vector<const ListedTest*>& tests,
                     const core::AbortFlag& abortFlag);

}  // namespace orvik::host
