#include "host/run/run_recorder.h"

#include <algorithm>

namespace orvik::host {

void RunRecorder::SetProgress(std::uint8_t percent) {
  progress_.store(std::min<int>(percent, 100));
}

void RunRecorder::AddMessage(const core::TestMessage& message) {
  messages_.push_back(message);
}

void RunRecorder::Ask(std::unique_ptr<core::InputInteraction>& question) {
  if (question != nullptr) question->Interact();
}

std::optional<int> RunRecorder::Progress() const {
  const int progress = progress_.load();
  return progress < 0 ? std::nullopt : std::optional<int>(progress);
}

}  // namespace orvik::host
