#pragma once

#include <atomic>
#include <condition_variable>
#include <deque>
#include <memory>
#include <mutex>

#include "core/dispatcher.h"

/// First in, first out, between any number of threads.
class TaskQueue {
 public:
  TaskQueue() = default;
  TaskQueue(const TaskQueue&) = delete;
  TaskQueue& operator=(const TaskQueue&) = delete;
  virtual ~TaskQueue() = default;

  /// Appends the task and wakes one waiting consumer; destroys the task at once when the queue is invalidated.
  void Push(std::unique_ptr<orvik::core::TaskInterface> task);

  /// Waits for an entry. Throws `std::logic_error` "Invalidated queue!" when the queue is invalidated and empty.
  std::unique_ptr<orvik::core::TaskInterface> Pop();

  bool IsValid() const;

  /// Ends all waiting; entries that are still queued are destroyed with the queue.
  void Invalidate();

 private:
  std::deque<std::unique_ptr<orvik::core::TaskInterface>> entries_;
  std::mutex mutex_;
  std::atomic<bool> invalidated_ = false;
  std::condition_variable available_;
};
