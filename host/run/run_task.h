#pragma once

#include <QEvent>
#include <QObject>
#include <memory>
#include <mutex>
#include <vector>

#include "core/dispatcher.h"
#include "host/run/run.h"

namespace orvik::host {

/// Where worker threads hand their runs back. Shared by the tasks and the one who waits for them, because a task may
/// be destroyed after the last run has been taken out.
class FinishedRuns {
 public:
  /// `waiter` gets an event of type `EventType()` for each run put in.
  explicit FinishedRuns(QObject& waiter) : waiter_(&waiter) {}

  static QEvent::Type EventType();

  /// Any thread; the run is the taker's from here on.
  void Put(Run& run);

  std::vector<Run*> Take();

  /// No more events from here on: the waiter goes.
  void Close();

 private:
  std::mutex mutex_;
  QObject* waiter_;
  std::vector<Run*> runs_;
};

/// Performs one run on a worker of the module. Hands the run back exactly once, also when it is never executed.
class RunTask final : public core::TaskInterface {
 public:
  RunTask(Run& run, std::shared_ptr<FinishedRuns> finished);
  ~RunTask() override;

  void Execute() override;

 private:
  Run* run_;  // null once handed back
  std::shared_ptr<FinishedRuns> finished_;
};

}  // namespace orvik::host
