#pragma once

#include <atomic>
#include <optional>
#include <vector>

#include "core/run_arguments.h"
#include "host/question/question_desk.h"

namespace orvik::host {

/// Keeps what a run reports. The progress may be read from any thread at any time, the messages once the run has
/// been handed back.
class RunRecorder final : public core::RunReporter {
 public:
  void SetProgress(std::uint8_t percent) override;
  void AddMessage(const core::TestMessage& message) override;
  void Ask(std::unique_ptr<core::InputInteraction>& question) override;

  /// Who puts the questions; without one they are put and nobody sees to an answer. Before the run starts.
  void SetQuestionDesk(QuestionDesk& desk) { desk_ = &desk; }

  /// 0 to 100; nothing before the first report.
  std::optional<int> Progress() const;
  const std::vector<core::TestMessage>& Messages() const { return messages_; }
  std::vector<core::TestMessage>& Messages() { return messages_; }
  /// Like the messages.
  const std::vector<AskedQuestion>& Questions() const { return questions_; }

 private:
  std::atomic<int> progress_{-1};
  std::vector<core::TestMessage> messages_;
  std::vector<AskedQuestion> questions_;
  QuestionDesk* desk_ = nullptr;
};

}  // namespace orvik::host
