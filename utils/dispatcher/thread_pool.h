#pragma once

#include <atomic>
#include <cstdint>
#include <future>
#include <memory>
#include <thread>
#include <utility>
#include <vector>

#include "utils/dispatcher/task_queue.h"

/// Worker threads that share one task queue. The workers are pinned to the processor masks 2, 3, 4, 1, 2, ... in the
/// order in which they start.
class ThreadPool {
 public:
  ThreadPool() = default;
  ThreadPool(const ThreadPool&) = delete;
  ThreadPool& operator=(const ThreadPool&) = delete;
  virtual ~ThreadPool();

  /// Starts the workers. If a thread cannot be created, stops the running ones and throws `std::system_error`
  /// (resource_unavailable_try_again).
  void Start(std::size_t workerCount);

  /// Queues the task as it was handed over. An exception that it throws is lost.
  void Post(std::unique_ptr<orvik::core::TaskInterface> task) { queue_.Push(std::move(task)); }

  /// Queues the function. Its result or exception is stored in the future; a function that never runs breaks the
  /// promise.
  template <typename Function>
  std::future<void> Submit(Function function) {
    std::packaged_task<void()> packaged(std::move(function));
    auto future = packaged.get_future();
    Post(std::make_unique<orvik::core::Task<std::packaged_task<void()>>>(std::move(packaged)));
    return future;
  }

  /// Waits for running tasks and joins every worker; queued tasks never run. Does nothing when called again. Must not
  /// be called on a worker.
  void Stop();

 private:
  void Work();

  TaskQueue queue_;
  std::atomic<bool> stopping_ = false;
  std::vector<std::thread> workers_;
  std::atomic<std::uint64_t> startCounter_ = 1;
  std::uint64_t affinityModulus_ = 4;
};
