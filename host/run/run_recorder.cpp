#include "host/run/run_recorder.h"

#include <algorithm>
#include <utility>

namespace orvik::host {

void RunRecorder::SetProgress(std::uint8_t percent) {
  progress_.store(std::min<int>(percent, 100));
}

void RunRecorder::AddMessage(const core::TestMessage& message) {
  messages_.push_back(message);
}

void RunRecorder::Ask(std::unique_ptr<core::InputInteraction>& question) {
  if (question == nullptr) return;
  if (desk_ == nullptr) {
    question->Interact();
  } else if (auto asked = desk_->Ask(*question)) {
    questions_.push_back(*std::move(asked));
  }
}

std::optional<int> RunRecorder::Progress() const {
  const int progress = progress_.load();
  return progress < 0 ? std::nullopt : std::optional<int>(progress);
}

}  // namespace orvik::host
