#pragma once

#include <QEventLoop>
#include <QObject>
#include <memory>
#include <utility>
#include <vector>

#include "core/dispatcher.h"
#include "core/run_arguments.h"
#include "host/run/run.h"
#include "host/run/run_task.h"

namespace orvik::host {

/// Hears of runs as they come and go, on the main thread.
class RunObserver {
 public:
  RunObserver() = default;
  RunObserver(const RunObserver&) = delete;
  RunObserver& operator=(const RunObserver&) = delete;
  virtual ~RunObserver() = default;

  virtual void OnRunStarted(const Run& run) = 0;
  virtual void OnRunEnded(const Run& run) = 0;
};

/// Brings planned runs to their end on the module's workers: those of one device one after the other, those of
/// different devices side by side where the module's reservations allow it. Lives on the main thread, which alone
/// uses the reservations and whose event loop goes on while the runs are under way.
class RunScheduler final : public QObject {
 public:
  RunScheduler(core::DiagnosticDispatcher& dispatcher, const core::AbortFlag& abortFlag, RunObserver& observer);
  ~RunScheduler() override;

  /// Returns when every run has ended. Once the abort flag is set, runs that have not begun end as aborted.
  template <typename Kind>
  void Complete(const std::vector<std::unique_ptr<Kind>>& runs) {
    std::vector<Run*> all;
    all.reserve(runs.size());
    for (const auto& run : runs) all.push_back(run.get());
    CompleteAll(std::move(all));
  }

  bool event(QEvent* event) override;

 private:
  void CompleteAll(std::vector<Run*> runs);
  void StartWhatCan();
  void TryStart(Run& run);
  void Finish(Run& run);
  static void EndUnstarted(Run& run, RunOutcome outcome);

  core::DiagnosticDispatcher& dispatcher_;
  const core::AbortFlag& abortFlag_;
  RunObserver& observer_;
  std::shared_ptr<FinishedRuns> finished_;
  std::vector<Run*> runs_;
  int runningCount_ = 0;
  QEventLoop loop_;
};

}  // namespace orvik::host
