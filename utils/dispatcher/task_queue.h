#pragma once

#include <atomic>
#include <condition_variable>
#include <cstddef>
#include <deque>
#include <memory>
#include <mutex>

#include "utils/dispatcher/packaged_task.h"

/// First in, first out, between any number of threads.
class TaskQueue {
 public:
  TaskQueue() = default;
  TaskQueue(const TaskQueue&) = delete;
  TaskQueue& operator=(const TaskQueue&) = delete;
  virtual ~TaskQueue() = default;

  /// Appends the task and sees to it that one waiting consumer looks for it; destroys the task at once when the queue
  /// is invalidated.
  void Push(orvik::utils::QueuedTask task);

  /// Waits for an entry. Throws `std::logic_error` "Invalidated queue!" when the queue is invalidated and empty.
  orvik::utils::QueuedTask Pop();

  bool IsValid() const;

  /// Ends all waiting; entries that are still queued are destroyed with the queue.
  void Invalidate();

 private:
  /// Whether a sleeping consumer is to be notified; the books then have it called.
  bool CallsSleeper();

  std::deque<orvik::utils::QueuedTask> entries_;
  std::mutex mutex_;
  std::atomic<bool> invalidated_ = false;
  std::condition_variable available_;

  // Waking a thread costs more than most entries' way through the queue. Therefore consumers are called one at a
  // time, and the next one by whoever takes an entry and leaves others behind, so that all wake up where there is
  // work for all.
  std::size_t sleeping_ = 0;
  bool called_ = false;  // one that has not woken up yet
};
