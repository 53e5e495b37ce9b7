#include "utils/dispatcher/task_queue.h"

#include <stdexcept>
#include <utility>

void TaskQueue::Push(std::unique_ptr<orvik::core::TaskInterface> task) {
  bool wake = false;
  {
    const std::lock_guard lock(mutex_);
    if (invalidated_) return;
    entries_.push_back(std::move(task));
    wake = ShouldWakeConsumer();
  }
  if (wake) available_.notify_one();
}

std::unique_ptr<orvik::core::TaskInterface> TaskQueue::Pop() {
  std::unique_lock lock(mutex_);
  while (entries_.empty() && !invalidated_) {
    ++sleeping_;
    available_.wait(lock, [this] { return waking_ || invalidated_; });
    --sleeping_;
    waking_ = false;
  }
  if (entries_.empty()) throw std::logic_error("Invalidated queue!");
  auto task = std::move(entries_.front());
  entries_.pop_front();
  const bool wake = ShouldWakeConsumer();
  lock.unlock();
  if (wake) available_.notify_one();
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

bool TaskQueue::ShouldWakeConsumer() {
  if (sleeping_ == 0 || waking_ || entries_.empty()) return false;
  waking_ = true;
  return true;
}
