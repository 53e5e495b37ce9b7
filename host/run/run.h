#pragma once

#include <QString>
#include <memory>
#include <optional>

#include "core/dispatcher.h"
#include "core/test_run.h"
#include "host/inventory/device_list.h"
#include "host/inventory/test_list.h"
#include "host/run/run_recorder.h"

namespace orvik::host {

/// What a run ended with: the test's result, or why there is none.
struct RunOutcome {
  std::optional<core::TestResult> result;
  QString error;
};

/// One test on one device, from plan to outcome. Stays where it is, since a worker thread uses it while it runs.
struct Run {
  enum class State { Waiting, Running, Ended };

  Run(const ListedDevice& onDevice, const ListedTest& ofTest, const core::AbortFlag& abortFlag);

  const ListedDevice* device;
  const ListedTest* test;
  std::unique_ptr<core::DispatchRequest> request;
  RunRecorder recorder;
  core::RunArguments arguments;
  State state = State::Waiting;  ///< the main thread's
  RunOutcome outcome;            ///< the worker's until the run has been handed back
};

using RunList = std::vector<std::unique_ptr<Run>>;

}  // namespace orvik::host
