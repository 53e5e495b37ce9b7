#include "utils/dialogs/gui_dialog_input_interaction.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QEventLoop>
#include <QPushButton>
#include <QTimer>
#include <atomic>
#include <functional>
#include <thread>

#include "module/raid/diagnostics/context_adapter.h"
#include "tests/dialogs/desktop_machine.h"

namespace orvik::testing {
namespace {

using utils::GuiDialogInputInteraction;

class GuiDialogInputInteractionTest : public DesktopMachine {
 protected:
  // Runs the interaction on a worker thread while this one runs its event loop; `whenShown` is called there for the
  // open dialog.
  void Interact(core::InputInteraction& interaction, const std::function<void(QWidget&)>& whenShown) {
    QEventLoop loop;
    QTimer watch;
    QObject::connect(&watch, &QTimer::timeout, &loop, [&] {
      QWidget* dialog = QApplication::activeModalWidget();
      if (dialog == nullptr || shown_) return;
      shown_ = true;
      EXPECT_FALSE(returned_);
      whenShown(*dialog);
    });
    watch.start(10);
    std::thread worker([&] {
      interaction.Interact();
      returned_ = true;
      QMetaObject::invokeMethod(&loop, &QEventLoop::quit, Qt::QueuedConnection);
    });
    loop.exec();
    worker.join();
  }

  bool shown_ = false;
  std::atomic<bool> returned_ = false;
};

TEST_F(GuiDialogInputInteractionTest, SomeQuestionsAnswerThemselves) {
  struct Row {
    std::uint32_t buttons;
    std::uint32_t kind;
    bool alwaysAsk;
    bool dialog;
  };
  for (const auto& [buttons, kind, alwaysAsk, dialog] : std::vector<Row>{{0, 1, false, false},
                                                                         {0, 2, false, false},
                                                                         {1, 5, false, false},
                                                                         {0, 1, true, true},
                                                                         {0, 2, true, true},
                                                                         {1, 5, true, true},
                                                                         {0, 0, false, true},
                                                                         {1, 1, false, true},
                                                                         {2, 5, false, true}}) {
    const auto request = Question(kind, buttons);
    std::string context = "RAID";
    GuiDialogInputInteraction interaction(request.get(), std::move(context), false, alwaysAsk);
    EXPECT_TRUE(context.empty());  // NOLINT(bugprone-use-after-move): taken over
    shown_ = false;
    returned_ = false;
    Interact(interaction, [](QWidget& shown) { shown.close(); });
    EXPECT_EQ(shown_, dialog) << buttons << ' ' << kind;
    EXPECT_EQ(request->answer, dialog ? 0U : 1U) << buttons << ' ' << kind;
  }
}

TEST_F(GuiDialogInputInteractionTest, SkippedQuestionIsLeftAlone) {
  const auto request = Question(0, 1);
  GuiDialogInputInteraction interaction(request.get(), "RAID", true, true);
  Interact(interaction, [](QWidget& dialog) { dialog.close(); });
  EXPECT_FALSE(shown_);
  EXPECT_EQ(request->answer, 99U);
  // Called past the skipping, it still has what answers itself, notes of kind 2 not among it.
  const auto note = Question(1, 0);
  GuiDialogInputInteraction(note.get(), "RAID", true, true).DoInteract();
  EXPECT_EQ(note->answer, 1U);
}

TEST_F(GuiDialogInputInteractionTest, WorkerWaitsForTheAnswer) {
  const auto request = Question(0, 1);
  GuiDialogInputInteraction interaction(request.get(), "RAID", false, true);
  Interact(interaction, [](QWidget& dialog) {
    EXPECT_TRUE(dialog.isModal());
    EXPECT_TRUE(dialog.windowFlags().testFlag(Qt::FramelessWindowHint));
    EXPECT_FALSE(dialog.windowFlags().testFlag(Qt::WindowStaysOnTopHint));
    dialog.findChild<QPushButton*>("generic_input_button_cancel")->click();
  });
  EXPECT_TRUE(shown_);
  EXPECT_EQ(request->answer, 2U);
  EXPECT_EQ(interaction.result, 2U);
  // The left arrow down and up, then the key of the dialog's own.
  const std::vector<simulation::SyntheticKey> keys = {{0x25, 0, 0}, {0x25, 0, 2}, {0x61, 0, 0}};
  EXPECT_EQ(machine->Desktop().Keys(), keys);
  const auto foreground = machine->Desktop().ForegroundWindows();
  ASSERT_EQ(foreground.size(), 2U);
  EXPECT_NE(foreground.front(), 0U);
}

TEST_F(GuiDialogInputInteractionTest, AbortClosesTheDialogSoon) {
  for (const bool beforehand : {false, true}) {
    core::AbortFlag abort = beforehand ? 1 : 0;
    core::RunArguments arguments;
    arguments.abortFlag = &abort;
    legacy::ContextAdapter context(&arguments);
    const auto request = Question(0, 1);
    request->context = &context;
    GuiDialogInputInteraction interaction(request.get(), "RAID", false, true);
    QElapsedTimer time;
    shown_ = false;
    returned_ = false;
    Interact(interaction, [&](QWidget&) {
      abort = 1;
      time.start();
    });
    EXPECT_LT(time.elapsed(), 5000);  // a busy machine takes its time, too
    EXPECT_EQ(request->answer, 0U);
    EXPECT_EQ(interaction.result, 0U);
  }
}

}  // namespace
}  // namespace orvik::testing
