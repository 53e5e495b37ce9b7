#include "utils/dispatcher/task_queue.h"

#include <stdexcept>
#include <utility>

void TaskQueue::Push(orvik::utils::QueuedTask task) {
  bool call = false;
  {
    const std::lock_guard lock(mutex_);
    if (invalidated_) return;
    entries_.push_back(std::move(task));
    call = CallsSleeper();
  }
  if (call) available_.notify_one();
}

orvik::utils::QueuedTask TaskQueue::Pop() {
  std::unique_lock lock(mutex_);
  while (entries_.empty() && !invalidated_) {
    ++sleeping_;
    available_.wait(lock, [this] { return called_ || invalidated_; });
    --sleeping_;
    called_ = false;
  }
  if (entries_.empty()) throw std::logic_error("Invalidated queue!");
  auto task = std::move(entries_.front());
  entries_.pop_front();
  const bool call = CallsSleeper();
  lock.unlock();
  if (call) available_.notify_one();
  return task;
}

bool TaskQueue::IsValid() const {
  return !invalidated_;
}

void TaskQueue::Invalidate() {
  {
    const std::lock_guard lock(mutex_);
    invalidated_ = true;
  }
  available_.notify_all();
}

bool TaskQueue::CallsSleeper() {
  if (sleeping_ == 0 || called_ || entries_.empty()) return false;
  called_ = true;
  return true;
}
