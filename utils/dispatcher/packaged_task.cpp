#include "utils/dispatcher/packaged_task.h"

#include <future>

namespace orvik::utils {

void PackagedTask::operator()() const {
  if (state_ == nullptr) throw std::future_error(std::future_errc::no_state);
  state_->Run();
}

void TaskState::Run() {
  if (outcome_.load(std::memory_order_relaxed) != Outcome::None) {
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
  outcome_.wait(Outcome::None);
  switch (outcome_.load()) {
    case Outcome::Failed: std::rethrow_exception(failure_);
    case Outcome::Abandoned: throw std::future_error(std::future_errc::broken_promise);
    default: return;
  }
}

void TaskState::ReleaseTask() {
  if (outcome_.load(std::memory_order_relaxed) == Outcome::None) Settle(Outcome::Abandoned);
  ReleaseFuture();
}

void TaskState::ReleaseFuture() {
  // The last owner has nobody to race with and need not pay for it.
  if (owners_.load(std::memory_order_acquire) == 1 || owners_.fetch_sub(1, std::memory_order_acq_rel) == 1)
    delete this;
}

void TaskState::Settle(Outcome outcome) {
  // Without a future nobody asks any more. With one, the store must not be delayed past the look for waiting threads.
  const bool asked = owners_.load(std::memory_order_acquire) > 1;
  outcome_.store(outcome, asked ? std::memory_order_seq_cst : std::memory_order_relaxed);
  if (asked) outcome_.notify_all();
}

}  // namespace orvik::utils
