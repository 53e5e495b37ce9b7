#pragma once

#include <QString>
#include <memory>
#include <optional>
#include <vector>

#include "core/dispatcher.h"
#include "core/run_arguments.h"
#include "host/inventory/device_list.h"
#include "host/run/run_recorder.h"

namespace orvik::host {

/// What a run ended with: its result, or why there is none.
struct RunOutcome {
  std::optional<core::TestResult> result;
  QString error;
};

/// Work on one device, from plan to outcome. Stays where it is, since a worker thread uses it while it runs.
struct Run {
  enum class State { Waiting, Running, Ended };

  /// `mode` is one of `DispatchRequest`'s; `test` may be null.
  Run(const ListedDevice& onDevice, std::int32_t mode, core::Test* test)
      : device(&onDevice), request(std::make_unique<core::DispatchRequest>(onDevice.device, mode, test)) {}
  Run(const Run&) = delete;
  Run& operator=(const Run&) = delete;
  virtual ~Run() = default;

  /// Tells people which of the runs under way this is.
  virtual QString Name() const = 0;

  /// The work itself, on a worker.
  virtual core::TestResult Perform() = 0;

  const ListedDevice* device;
  std::unique_ptr<core::DispatchRequest> request;
  RunRecorder recorder;
  State state = State::Waiting;  ///< the main thread's
  RunOutcome outcome;            ///< the worker's until the run has been handed back
};

}  // namespace orvik::host
