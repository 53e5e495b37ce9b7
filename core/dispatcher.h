#pragma once

#include <cstdint>
#include <memory>
#include <utility>

#include "core/device.h"
#include "core/test.h"

namespace orvik::core {

/// One planned run, as the dispatcher sees it.
class DispatchRequest {
 public:
  /// A run in this mode reserves only its device; in any other it also takes the single exclusive place.
  static constexpr std::int32_t kSharedMode = 1;
  static constexpr std::int32_t kExclusiveMode = 0;

  DispatchRequest(std::weak_ptr<Device> device, std::int32_t mode, Test* test)
      : device_(std::move(device)), mode_(mode), test_(test) {}

  std::weak_ptr<Device> GetDevice() const { return device_; }
  std::int32_t GetMode() const { return mode_; }
  Test* GetTest() const { return test_; }

 private:
  std::weak_ptr<Device> device_;
  std::int32_t mode_;
  Test* test_;  // not owned
};

/// Work for the dispatcher's threads.
class TaskInterface {
 public:
  TaskInterface() = default;
  TaskInterface(const TaskInterface&) = delete;
  TaskInterface& operator=(const TaskInterface&) = delete;

  virtual ~TaskInterface() = default;  // slot 0
  virtual void Execute() = 0;          // slot 1
};

/// A task over a packaged task of no arguments and no result; invoking it twice raises the standard future error.
template <typename PackagedTask>
class Task final : public TaskInterface {
 public:
  explicit Task(PackagedTask task) : task_(std::move(task)) {}

  void Execute() override { task_(); }

 private:
  PackagedTask task_;
};

/// Runs the host's work and records which devices are reserved. Reservations take no lock: the host calls `CanStart`,
/// `NotifyStarted` and `NotifyFinished` from one thread at a time. `Dispatch` may be called from any thread.
class DiagnosticDispatcher {
 public:
  DiagnosticDispatcher() = default;
  DiagnosticDispatcher(const DiagnosticDispatcher&) = delete;
  DiagnosticDispatcher& operator=(const DiagnosticDispatcher&) = delete;

  virtual ~DiagnosticDispatcher() = default;  // slot 0

  /// Slot 1: whether the run's device and, for an exclusive run, the exclusive place are free.
  virtual bool CanStart(const std::unique_ptr<DispatchRequest>& request) const = 0;

  /// Slot 2: queues work; never waits for it. Exceptions that the work throws are discarded.
  virtual void Dispatch(std::unique_ptr<TaskInterface> task) = 0;

  /// Slot 3: releases what `NotifyStarted` reserved.
  virtual void NotifyFinished(const std::unique_ptr<DispatchRequest>& request) = 0;

  /// Slot 4: reserves the run's device and, for an exclusive run, the exclusive place.
  virtual void NotifyStarted(const std::unique_ptr<DispatchRequest>& request) = 0;
};

}  // namespace orvik::core
