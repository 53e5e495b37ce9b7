#pragma once

// A function whose outcome can be asked for elsewhere. What the standard library has for it costs three allocations
// and a system call per task, even when nobody asks; here the task, its function and its outcome are one allocation.

#include <atomic>
#include <exception>
#include <memory>
#include <utility>

#include "core/dispatcher.h"

namespace orvik::utils {

class TaskState;

/// Invokes the function of a state that is owned elsewhere.
class PackagedTask {
 public:
  PackagedTask() = default;
  explicit PackagedTask(TaskState& state) : state_(&state) {}

  /// Throws `std::future_error`: no_state when empty, promise_already_satisfied the second time. What the function
  /// throws ends up in the future.
  void operator()() const;

 private:
  TaskState* state_ = nullptr;
};

/// Shared by a queued task and its future; the last of them deletes it.
class TaskState {
 public:
  TaskState() : task_(PackagedTask(*this)) {}
  TaskState(const TaskState&) = delete;
  TaskState& operator=(const TaskState&) = delete;

  core::TaskInterface& Task() { return task_; }

  /// Throws `std::future_error` (promise_already_satisfied) the second time.
  void Run();
  /// Blocks until the function has run or never will; throws what it threw, or `std::future_error` (broken_promise).
  void Wait() const;
  void ReleaseTask();
  void ReleaseFuture();

 protected:
  virtual ~TaskState() = default;

 private:
  enum class Outcome { None, Done, Failed, Abandoned };

  virtual void Call() = 0;
  void Settle(Outcome outcome);

  core::Task<PackagedTask> task_;
  Outcome outcome_ = Outcome::None;
  std::atomic<int> owners_ = 2;
  std::exception_ptr failure_;
};

/// Deletes a task; one that lies in a state is let go of instead.
struct TaskDeleter {
  void operator()(core::TaskInterface* task) const {
    if (state == nullptr) {
      delete task;
    } else {
      state->ReleaseTask();
    }
  }

  TaskState* state = nullptr;
};

using QueuedTask = std::unique_ptr<core::TaskInterface, TaskDeleter>;

/// The outcome of one task. May be dropped at any time.
class TaskFuture {
 public:
  explicit TaskFuture(TaskState& state) : state_(&state) {}

  /// Blocks until the task has run and throws what it threw; `std::future_error` (broken_promise) when it never will.
  void Get() const { state_->Wait(); }

 private:
  struct Release {
    void operator()(TaskState* state) const { state->ReleaseFuture(); }
  };
  std::unique_ptr<TaskState, Release> state_;
};

/// A task over the function, which need not be copyable, and the future of its outcome.
template <typename Function>
std::pair<QueuedTask, TaskFuture> Package(Function function) {
  class FunctionState final : public TaskState {
   public:
    explicit FunctionState(Function function) : function_(std::move(function)) {}

   private:
    void Call() override { function_(); }

    Function function_;
  };
  auto* const state = new FunctionState(std::move(function));
  return {QueuedTask(&state->Task(), {state}), TaskFuture(*state)};
}

}  // namespace orvik::utils
