#pragma once

#include <QString>
#include <optional>

namespace orvik::host {

/// The buttons that a module's question can have.
enum class AnswerButton { Ok, Cancel, Yes, No };

/// What a run has asked, as it was shown.
struct AskedQuestion {
  QString title;
  QString text;
  std::optional<AnswerButton> answer;  ///< nothing when it was closed without one
};

/// The word of a button for programs and command lines: "ok".
const char* WordOf(AnswerButton button);

/// The button of a word, in any case.
std::optional<AnswerButton> ButtonOf(const QString& word);

}  // namespace orvik::host
