#pragma once

#include <functional>
#include <string>
#include <vector>

#include "core/test.h"

namespace orvik::testing {

/// The host's side of one run: what was reported, in order ("50%", "Info KEY: value").
class RunRecorder final : public core::RunReporter {
 public:
  void SetProgress(std::uint8_t percent) override {
    progress.push_back(percent);
    if (whenReported) whenReported();
  }
  void AddMessage(const core::TestMessage& message) override {
    static constexpr const char* kTypes[] = {"Info ", "Warning ", "Error ", "Notice "};
    messages.push_back(kTypes[static_cast<std::size_t>(message.type)] + message.text);
    if (whenReported) whenReported();
  }
  void Ask(std::unique_ptr<core::InputInteraction>& question) override { question->Interact(); }

  /// Runs the test on the device and returns its result.
  core::TestResult Run(core::Test& test, const std::shared_ptr<core::Device>& device) {
    core::RunArguments arguments{.device = device, .abortFlag = &abort, .reporter = this, .systemEvents = events};
    return test.Run(arguments);
  }

  std::vector<int> progress;
  std::vector<std::string> messages;
  core::AbortFlag abort = 0;
  core::SystemEventState* events = nullptr;
  std::function<void()> whenReported;
};

}  // namespace orvik::testing
