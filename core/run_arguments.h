#pragma once

#include <atomic>
#include <cstdint>
#include <memory>
#include <mutex>
#include <string>

#include "core/device.h"
#include "core/input_interaction.h"

namespace orvik::core {

/// The outcome of a run. The values are part of the binary contract.
enum class TestResult : std::uint8_t {
  Invalid = 0,  ///< the device no longer exists
  Passed = 1,
  Warning = 2,  ///< something is degraded, offline, inconsistent or could not be read
  Failed = 3,
  NotApplicable = 4,  ///< wrong controller family, feature absent, nothing to test
  Aborted = 5,        ///< stopped by the host or a system event, or without the data it needs
};

enum class MessageType : std::uint8_t { Info = 0, Warning = 1, Error = 2, Notice = 3 };

/// One line of a run's output: an upper-case key, alone or followed by ": " and a value. Never translated.
struct TestMessage {
  MessageType type = MessageType::Info;
  std::string text;
};

/// Receives the output of a run, on the worker thread that runs the test.
class RunReporter {
 public:
  RunReporter() = default;
  RunReporter(const RunReporter&) = delete;
  RunReporter& operator=(const RunReporter&) = delete;

  virtual ~RunReporter() = default;                                   // slot 0
  virtual void SetProgress(std::uint8_t percent) = 0;                 // slot 1: 0 to 100; may be lowered again
  virtual void AddMessage(const TestMessage& message) = 0;            // slot 2: valid for the call only
  virtual void Ask(std::unique_ptr<InputInteraction>& question) = 0;  // slot 3: returns when answered or closed
};

/// Pending system events, guarded by the host's mutex.
struct SystemEventState {
  std::uint32_t flags = 0;
  std::mutex mutex;
};

/// One byte, set by the host from any thread: non-zero asks the run to stop.
using AbortFlag = std::atomic<std::uint8_t>;
static_assert(sizeof(AbortFlag) == 1 && AbortFlag::is_always_lock_free);

/// What the host passes to a run; must outlive it.
struct RunArguments {
  std::weak_ptr<Device> device;
  const AbortFlag* abortFlag = nullptr;
  RunReporter* reporter = nullptr;
  SystemEventState* systemEvents = nullptr;  ///< may be null
};

}  // namespace orvik::core
