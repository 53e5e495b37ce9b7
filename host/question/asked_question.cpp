#include "host/question/asked_question.h"

#include <array>

namespace orvik::host {
namespace {

constexpr std::array<const char*, 4> kWords = {"ok", "cancel", "yes", "no"};

}  // namespace

const char* WordOf(AnswerButton button) {
  return kWords.at(static_cast<std::size_t>(button));
}

std::optional<AnswerButton> ButtonOf(const QString& word) {
  for (std::size_t i = 0; i < kWords.size(); ++i) {
    if (word.compare(QLatin1String(kWords.at(i)), Qt::CaseInsensitive) == 0) return static_cast<AnswerButton>(i);
  }
  return std::nullopt;
}

}  // namespace orvik::host
