#pragma once

#include <atomic>
#include <cstdint>
#include <thread>
#include <utility>
#include <vector>

#include "utils/dispatcher/packaged_task.h"
#include "utils/dispatcher/task_queue.h"

/// Worker threads over one task queue. Each worker is pinned to a processor mask of its own turn: 2, 3, 4, 1, 2, ...
class ThreadPool {
 public:
  ThreadPool() = default;
  ThreadPool(const ThreadPool&) = delete;
  ThreadPool& operator=(const ThreadPool&) = delete;
  virtual ~ThreadPool();

  /// Starts the workers. When a thread can't be made, stops those that run and throws `std::system_error`
  /// (resource_unavailable_try_again).
  void Start(std::size_t workerCount);

  /// Queues the function; its result or exception ends up in the future.
  template <typename Function>
  orvik::utils::TaskFuture Submit(Function function) {
    auto [task, future] = orvik::utils::Package(std::move(function));
    queue_.Push(std::move(task));
    return std::move(future);
  }

  /// As `Submit` for whoever drops the future: it goes before the task can be on its way in another processor's
  /// cache.
  template <typename Function>
  void Post(Function function) {
    auto task = orvik::utils::Package(std::move(function)).first;
    queue_.Push(std::move(task));
  }

  /// Lets running tasks finish and joins every worker; queued tasks never run. Does nothing the second time. Must not
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
