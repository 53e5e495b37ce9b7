#include "host/run/run_task.h"

#include <QCoreApplication>
#include <exception>
#include <utility>

namespace orvik::host {
namespace {

RunOutcome Perform(Run& run) {
  QString cause;
  try {
    return {run.Perform(), {}};
  } catch (const std::exception& exception) {
    cause = QString::fromUtf8(exception.what()).simplified();
  } catch (...) {
    cause = QCoreApplication::translate("orvik-diag", "an unknown error");
  }
  return {std::nullopt, QCoreApplication::translate("orvik-diag", "It broke off: %1").arg(cause)};
}

}  // namespace

QEvent::Type FinishedRuns::EventType() {
  static const auto type = static_cast<QEvent::Type>(QEvent::registerEventType());
  return type;
}

void FinishedRuns::Put(Run& run) {
  const std::lock_guard lock(mutex_);
  runs_.push_back(&run);
  if (waiter_ != nullptr) QCoreApplication::postEvent(waiter_, new QEvent(EventType()));
}

std::vector<Run*> FinishedRuns::Take() {
  const std::lock_guard lock(mutex_);
  return std::exchange(runs_, {});
}

void FinishedRuns::Close() {
  const std::lock_guard lock(mutex_);
  waiter_ = nullptr;
}

RunTask::RunTask(Run& run, std::shared_ptr<FinishedRuns> finished) : run_(&run), finished_(std::move(finished)) {}

RunTask::~RunTask() {
  if (run_ == nullptr) return;
  run_->outcome = {std::nullopt, QCoreApplication::translate("orvik-diag", "The module did not run it")};
  finished_->Put(*run_);
}

void RunTask::Execute() {
  if (run_ == nullptr) return;
  Run& run = *std::exchange(run_, nullptr);
  run.outcome = Perform(run);
  finished_->Put(run);
}

}  // namespace orvik::host
