#include "utils/dispatcher/task_queue.h"

#include <stdexcept>
#include <utility>

void TaskQueue::Push(std::unique_ptr<orvik::core::TaskInterface> task) {
  {
    const std::lock_guard lock(mutex_);
    if (invalidated_) return;
    entries_.push_back(std::move(task));
  }
  available_.notify_one();
}

std::unique_ptr<orvik::core::TaskInterface> TaskQueue::Pop() {
  std::unique_lock lock(mutex_);
  available_.wait(lock, [this] { return invalidated_ || !entries_.empty(); });
  if (entries_.empty()) throw std::logic_error("Invalidated queue!");
  auto task = std::move(entries_.front());
  entries_.pop_front();
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
