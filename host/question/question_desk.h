#pragma once

#include <QList>
#include <QObject>
#include <QPointer>
#include <QTimer>
#include <functional>
#include <mutex>
#include <optional>

#include "core/input_interaction.h"
#include "host/question/asked_question.h"

class QAbstractButton;
class QDialog;

namespace orvik::host {

/// Sees to it that the questions of tests are answered, whatever there is to answer them: a button named beforehand,
/// a person before a display, a person at a terminal. Where there is none of these a question is closed at once.
/// Lives on the GUI thread, where the module shows its dialog.
class QuestionDesk final : public QObject {
 public:
  /// `beforehand`: the button to press on every question. `onTerminal` hears when a question takes over standard
  /// error and when it gives it back.
  QuestionDesk(std::optional<AnswerButton> beforehand, std::function<void(bool)> onTerminal);
  ~QuestionDesk() override;

  /// Puts a question, one at a time, and returns when it was answered or closed. Any thread but the GUI thread.
  /// Nothing when no question came up.
  std::optional<AskedQuestion> Ask(core::InputInteraction& question);

  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void Take(QDialog& dialog);
  void Serve();
  void Press(AnswerButton wanted);
  void AskOnTerminal();
  void ReadTerminal();
  void LeaveTerminal();
  QList<QAbstractButton*> Buttons() const;

  const std::optional<AnswerButton> beforehand_;
  const std::function<void(bool)> onTerminal_;
  QPointer<QDialog> dialog_;
  QTimer terminalTimer_;
  std::mutex turn_;   // held while a question is put
  std::mutex mutex_;  // guards what follows
  bool expecting_ = false;
  std::optional<AskedQuestion> asked_;
};

}  // namespace orvik::host
