#pragma once

#include <atomic>
#include <condition_variable>
#include <cstddef>
#include <deque>
#include <memory>
#include <mutex>

#include "core/dispatcher.h"

/// A first-in, first-out queue of tasks for any number of producers and consumers. Owns the tasks in it.
class TaskQueue {
 public:
  TaskQueue() = default;
  TaskQueue(const TaskQueue&) = delete;
  TaskQueue& operator=(const TaskQueue&) = delete;
  virtual ~TaskQueue() = default;

  /// Appends the task and wakes a waiting consumer if none is waking up already. Destroys the task at once when the
  /// queue is invalidated.
  void Push(std::unique_ptr<orvik::core::TaskInterface> task);

  /// Waits for an entry and removes it. Throws `std::logic_error` "Invalidated queue!", as the contract requires,
  /// when the queue is invalidated and empty.
  std::unique_ptr<orvik::core::TaskInterface> Pop();

  bool IsValid() const;

  /// Ends all waiting. Entries that are still queued are destroyed with the queue.
  void Invalidate();

 private:
  /// Whether the caller must notify a consumer once it has released the lock.
  bool ShouldWakeConsumer();

  std::deque<std::unique_ptr<orvik::core::TaskInterface>> entries_;
  std::mutex mutex_;
  std::atomic<bool> invalidated_ = false;
  std::condition_variable available_;

  // Waking a thread costs more than passing most entries through the queue, so one consumer is woken at a time. A
  // consumer that takes an entry and leaves others behind wakes the next one.
  std::size_t sleeping_ = 0;
  bool waking_ = false;
};
