#include "utils/dialogs/gui_dialog_input_interaction.h"

#include <QApplication>
#include <QMetaObject>
#include <QTimer>
#include <atomic>
#include <utility>

#include "utils/dialogs/generic_input_dialog.h"
#include "utils/dialogs/windows_desktop.h"

namespace orvik::utils {

namespace {

constexpr int kAbortPollMilliseconds = 1000;
constexpr std::uint32_t kAnswerOk = 1;

// Showing the dialog once creates its native window, which can then be brought forward.
void Raise(GenericInputDialog& dialog) {
  dialog.setWindowFlag(Qt::WindowStaysOnTopHint, true);
  dialog.open();
  dialog.hide();
  dialog.setWindowFlag(Qt::WindowStaysOnTopHint, false);
}

}  // namespace

GuiDialogInputInteraction::GuiDialogInputInteraction(InputRequest* question, std::string&& context, bool skip,
                                                     bool always)
    : GuiInputInteraction(skip, always), translationContext(std::exchange(context, {})), request(question) {}

// Answers a note that only needs confirming, or a question with a harmless default. True when it did.
bool GuiDialogInputInteraction::AnswerWithoutDialog() {
  const auto is = [this](std::uint32_t buttons, std::uint32_t kind) {
    return request->buttons == buttons && request->kind == kind;
  };
  if (!is(0, 1) && !is(1, 5) && !(is(0, 2) && !alwaysAsk)) return false;
  request->answer = kAnswerOk;
  return true;
}

void GuiDialogInputInteraction::DoInteract() {
  if ((!alwaysAsk || skipInteraction) && AnswerWithoutDialog()) return;
  // Orders the two threads for the thread sanitizer too, which does not see the order inside Qt's blocking call.
  std::atomic<bool> answered = false;
  QMetaObject::invokeMethod(
      QCoreApplication::instance(),
      [this, &answered] {
        ShowDialog();
        answered.store(true, std::memory_order_release);
      },
      Qt::BlockingQueuedConnection);
  (void)answered.load(std::memory_order_acquire);
}

// On the GUI thread.
void GuiDialogInputInteraction::ShowDialog() {
  GenericInputDialog dialog(request, translationContext, QApplication::activeWindow());
  QTimer abortPoll;
  QObject::connect(&abortPoll, &QTimer::timeout, &dialog, [this, &dialog] {
    if (request->context != nullptr && request->context->IsAborted()) dialog.close();
  });
  abortPoll.start(kAbortPollMilliseconds);
  Raise(dialog);
  SendKey(VK_LEFT, 0);
  SendKey(VK_LEFT, KEYEVENTF_KEYUP);
  BringForward(dialog);
  dialog.exec();
  result = request->answer;
}

}  // namespace orvik::utils
