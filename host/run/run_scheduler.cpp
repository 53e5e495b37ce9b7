#include "host/run/run_scheduler.h"

#include <QCoreApplication>
#include <QEvent>
#include <exception>
#include <set>
#include <utility>

namespace orvik::host {
namespace {

// Why the module's dispatcher could not be used.
RunOutcome DispatcherProblem(const QString& cause) {
  return {std::nullopt, QCoreApplication::translate("orvik-diag", "The module could not start it: %1").arg(cause)};
}

}  // namespace

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
      EndUnstarted(*run, {core::TestResult::Aborted, {}});
    } else if (!busy.contains(run->device)) {
      TryStart(*run);
      // Waiting keeps the device too: its tests go in order.
      if (run->state != Run::State::Ended) busy.insert(run->device);
    }
  }
  if (runningCount_ > 0) return;

  // Nothing is under way that could release a reservation, so whatever still waits would wait for ever.
  for (Run* const run : runs_) {
    if (run->state != Run::State::Waiting) continue;
    EndUnstarted(*run, DispatcherProblem(QCoreApplication::translate("orvik-diag", "it keeps the device reserved")));
  }
}

void RunScheduler::TryStart(Run& run) {
  try {
    if (!dispatcher_.CanStart(run.request)) return;
    dispatcher_.NotifyStarted(run.request);
  } catch (const std::exception& exception) {
    EndUnstarted(run, DispatcherProblem(QString::fromUtf8(exception.what()).simplified()));
    return;
  }
  run.state = Run::State::Running;
  ++runningCount_;
  observer_.OnRunStarted(run);
  try {
    dispatcher_.Dispatch(std::make_unique<RunTask>(run, finished_));
  } catch (const std::exception&) {
    // The task is gone and has handed its run back as one that was not run.
    return;
  }
}

void RunScheduler::Finish(Run& run) {
  try {
    dispatcher_.NotifyFinished(run.request);
  } catch (const std::exception& exception) {
    if (run.outcome.error.isEmpty()) run.outcome.error = QString::fromUtf8(exception.what()).simplified();
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
