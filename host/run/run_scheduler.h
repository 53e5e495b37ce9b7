#pragma once

#include <QEventLoop>
#include <QObject>
#include <memory>
#include <utility>
#include <vector>

#include "core/dispatcher.h"
#include "core/run_arguments.h"
#include "host/run/run.h"

namespace orvik::host {

/// Receives the start and end of each run, on the main thread.
class RunObserver {
 public:
  RunObserver() = default;
  RunObserver(const RunObserver&) = delete;
  RunObserver& operator=(const RunObserver&) = delete;
  virtual ~RunObserver() = default;

  virtual void OnRunStarted(const Run& run) = 0;
  virtual void OnRunEnded(const Run& run) = 0;
};

/// Executes planned runs on the module's workers: runs of one device in sequence, runs of different devices in
/// parallel where the module's reservations allow it. Lives on the main thread, the only one that uses the
/// reservations, and keeps its event loop running meanwhile.
class RunScheduler final : public QObject {
 public:
  RunScheduler(core::DiagnosticDispatcher& dispatcher, const core::AbortFlag& abortFlag, RunObserver& observer);
  ~RunScheduler() override;

  /// Returns when every run has ended. Once the abort flag is set, runs that have not started end as aborted.
  template <typename Kind>
  void Complete(const std::vector<std::unique_ptr<Kind>>& runs) {
    std::vector<Run*> all;
    all.reserve(runs.size());
    for (const auto& run : runs) all.push_back(run.get());
    CompleteAll(std::move(all));
  }

  bool event(QEvent* event) override;

 private:
  class FinishedRuns;
  class Task;

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
