#pragma once

#include <QList>
#include <QObject>
#include <QPointer>
#include <QStringList>
#include <QTimer>
#include <functional>
#include <mutex>
#include <optional>

#include "core/input_interaction.h"
#include "host/run/run.h"

class QAbstractButton;
class QDialog;

namespace orvik::host {

/// Gets the questions of tests answered: by a button chosen beforehand, by the user in the question's window or by
/// the user at the terminal. Without any of these it closes the question at once. Lives on the GUI thread, where the
/// module shows its dialog.
class QuestionDesk final : public QObject, public QuestionPresenter {
 public:
  /// `beforehand` is the button to press on every question. `onTerminal` is called with true when a question starts
  /// to use standard error, and with false afterwards.
  QuestionDesk(std::optional<QuestionAnswer> beforehand, std::function<void(bool)> onTerminal);
  ~QuestionDesk() override;

  /// One question at a time.
  std::optional<AskedQuestion> Ask(core::InputInteraction& question) override;

  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void Take(QDialog& dialog);
  void Serve();
  void Press(QuestionAnswer wanted);
  void AskOnTerminal();
  void ReadTerminal();
  void LeaveTerminal();
  QStringList Choices() const;
  QList<QAbstractButton*> Buttons() const;

  const std::optional<QuestionAnswer> beforehand_;
  const std::function<void(bool)> onTerminal_;
  QPointer<QDialog> dialog_;
  QTimer terminalTimer_;
  std::mutex turn_;   // held while a question is asked
  std::mutex mutex_;  // guards the members below
  bool expecting_ = false;
  std::optional<AskedQuestion> asked_;
};

}  // namespace orvik::host
