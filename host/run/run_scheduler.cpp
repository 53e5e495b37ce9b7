#include "host/run/run_scheduler.h"

#include <QCoreApplication>
#include <QEvent>
#include <exception>
#include <mutex>
#include <set>
#include <utility>

#include "host/text/text.h"

namespace orvik::host {
namespace {

Error DispatcherProblem(const QString& cause) {
  return {QCoreApplication::translate("orvik-diag", "Could not start: %1").arg(cause)};
}

// The run's own result; an exception that it throws becomes an error.
RunOutcome OutcomeOf(Run& run) {
  QString cause;
  try {
    return run.Perform();
  } catch (const std::exception& exception) {
    cause = CauseOf(exception);
  } catch (...) {
    cause = QCoreApplication::translate("orvik-diag", "unknown exception");
  }
  return Error{QCoreApplication::translate("orvik-diag", "Unexpected error: %1").arg(cause)};
}

}  // namespace

// Passes finished runs from the workers to the scheduler. Shared with the tasks, because a task may be destroyed
// after the scheduler has taken its run.
class RunScheduler::FinishedRuns {
 public:
  // `receiver` gets an event of type `EventType()` for each run.
  explicit FinishedRuns(QObject& receiver) : receiver_(&receiver) {}

  static QEvent::Type EventType() {
    static const auto type = static_cast<QEvent::Type>(QEvent::registerEventType());
    return type;
  }

  // Any thread. The run belongs to the receiver afterwards.
  void Put(Run& run) {
    const std::lock_guard lock(mutex_);
    runs_.push_back(&run);
    if (receiver_ != nullptr) QCoreApplication::postEvent(receiver_, new QEvent(EventType()));
  }

  std::vector<Run*> Take() {
    const std::lock_guard lock(mutex_);
    return std::exchange(runs_, {});
  }

  // Stops sending events: the receiver is being destroyed.
  void Close() {
    const std::lock_guard lock(mutex_);
    receiver_ = nullptr;
  }

 private:
  std::mutex mutex_;
  QObject* receiver_;
  std::vector<Run*> runs_;
};

// Performs one run on a worker and puts it among the finished runs exactly once, even if it is never executed.
class RunScheduler::Task final : public core::TaskInterface {
 public:
  Task(Run& run, std::shared_ptr<FinishedRuns> finished) : run_(&run), finished_(std::move(finished)) {}

  ~Task() override {
    if (run_ == nullptr) return;
    run_->outcome = Error{QCoreApplication::translate("orvik-diag", "The module did not execute the task")};
    finished_->Put(*run_);
  }

  void Execute() override {
    if (run_ == nullptr) return;
    Run& run = *std::exchange(run_, nullptr);
    run.outcome = OutcomeOf(run);
    finished_->Put(run);
  }

 private:
  Run* run_;  // null once put among the finished runs
  std::shared_ptr<FinishedRuns> finished_;
};

RunScheduler::RunScheduler(core::DiagnosticDispatcher& dispatcher, const core::AbortFlag& abortFlag,
                           RunObserver& observer)
    : dispatcher_(dispatcher),
      abortFlag_(abortFlag),
      observer_(observer),
      finished_(std::make_shared<FinishedRuns>(*this)) {}

RunScheduler::~RunScheduler() {
  finished_->Close();
}

void RunScheduler::CompleteAll(std::vector<Run*> runs) {
  runs_ = std::move(runs);
  StartWhatCan();
  if (runningCount_ > 0) loop_.exec();
  runs_.clear();
}

bool RunScheduler::event(QEvent* event) {
  if (event->type() != FinishedRuns::EventType()) return QObject::event(event);
  for (Run* const run : finished_->Take()) Finish(*run);
  StartWhatCan();
  if (runningCount_ == 0) loop_.quit();
  return true;
}

void RunScheduler::StartWhatCan() {
  std::set<const ListedDevice*> busy;
  for (Run* const run : runs_) {
    if (run->state == Run::State::Running) busy.insert(run->device);
  }
  for (Run* const run : runs_) {
    if (run->state != Run::State::Waiting) continue;
    if (abortFlag_.load() != 0) {
      EndUnstarted(*run, core::TestResult::Aborted);
    } else if (!busy.contains(run->device)) {
      TryStart(*run);
      // A waiting run blocks its device too, so that the device's tests keep their order.
      if (run->state != Run::State::Ended) busy.insert(run->device);
    }
  }
  if (runningCount_ > 0) return;

  // No run is left that could release a reservation, so the waiting ones would wait indefinitely.
  for (Run* const run : runs_) {
    if (run->state != Run::State::Waiting) continue;
    EndUnstarted(
        *run, DispatcherProblem(QCoreApplication::translate("orvik-diag", "the module keeps the device reserved")));
  }
}

void RunScheduler::TryStart(Run& run) {
  try {
    if (!dispatcher_.CanStart(run.request)) return;
    dispatcher_.NotifyStarted(run.request);
  } catch (const std::exception& exception) {
    EndUnstarted(run, DispatcherProblem(CauseOf(exception)));
    return;
  }
  run.state = Run::State::Running;
  ++runningCount_;
  observer_.OnRunStarted(run);
  try {
    dispatcher_.Dispatch(std::make_unique<Task>(run, finished_));
  } catch (const std::exception&) {
    // The task is destroyed and has ended the run as one that was not executed.
    return;
  }
}

void RunScheduler::Finish(Run& run) {
  try {
    dispatcher_.NotifyFinished(run.request);
  } catch (const std::exception& exception) {
    if (run.outcome.Ok()) run.outcome = Error{CauseOf(exception)};
  }
  run.state = Run::State::Ended;
  --runningCount_;
  observer_.OnRunEnded(run);
}

void RunScheduler::EndUnstarted(Run& run, RunOutcome outcome) {
  run.outcome = std::move(outcome);
  run.state = Run::State::Ended;
}

}  // namespace orvik::host
