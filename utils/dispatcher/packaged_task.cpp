#include "utils/dispatcher/packaged_task.h"

#include <condition_variable>
#include <future>
#include <mutex>

namespace orvik::utils {

namespace {

// One for all tasks, since hardly anybody waits for an outcome; std::atomic's own waiting loses wake-ups in GCC 12's
// library for Windows.
std::mutex settling;
std::condition_variable settled;

}  // namespace

void PackagedTask::operator()() const {
  if (state_ == nullptr) throw std::future_error(std::future_errc::no_state);
  state_->Run();
}

void TaskState::Run() {
  if (outcome_ != Outcome::None) {
    throw std::future_error(std::future_errc::promise_already_satisfied);
  }
  try {
    Call();
  } catch (...) {
    failure_ = std::current_exception();
    Settle(Outcome::Failed);
    return;
  }
  Settle(Outcome::Done);
}

void TaskState::Wait() const {
  {
    std::unique_lock lock(settling);
    settled.wait(lock, [this] { return outcome_ != Outcome::None; });
  }
  switch (outcome_) {
    case Outcome::Failed: std::rethrow_exception(failure_);
    case Outcome::Abandoned: throw std::future_error(std::future_errc::broken_promise);
    default: return;
  }
}

void TaskState::ReleaseTask() {
  if (outcome_ == Outcome::None) Settle(Outcome::Abandoned);
  ReleaseFuture();
}

void TaskState::ReleaseFuture() {
  // The last owner has nobody to race with and need not pay for it.
  if (owners_.load(std::memory_order_acquire) == 1 || owners_.fetch_sub(1, std::memory_order_acq_rel) == 1)
    delete this;
}

void TaskState::Settle(Outcome outcome) {
  if (owners_.load(std::memory_order_acquire) == 1) {  // the future is gone: nobody can ask
    outcome_ = outcome;
    return;
  }
  {
    const std::lock_guard lock(settling);
    outcome_ = outcome;
  }
  settled.notify_all();
}

}  // namespace orvik::utils
