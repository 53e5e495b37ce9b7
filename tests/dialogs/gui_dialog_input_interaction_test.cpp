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
#include "tests/dialogs/gui_events.h"

namespace orvik::testing {
namespace {

using utils::GuiDialogInputInteraction;

class GuiDialogInputInteractionTest : public DesktopMachine {
 protected:
  // Runs `ask` on a worker thread while this one runs its event loop; calls `whenShown` here for the open dialog.
  void OnWorker(const std::function<void()>& ask, const std::function<void(QWidget&)>& whenShown) {
    shown_ = false;
    returned_ = false;
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
      ask();
      returned_ = true;
      QMetaObject::invokeMethod(&loop, &QEventLoop::quit, Qt::QueuedConnection);
    });
    loop.exec();
    worker.join();
  }

  // Whether the dialog is still open after a poll for an abort.
  static bool StaysOpen(const QWidget& dialog) {
    return !WaitFor([&] { return !dialog.isVisible(); }, 1200);
  }

  bool shown_ = false;
  std::atomic<bool> returned_ = false;
};

TEST_F(GuiDialogInputInteractionTest, SimpleQuestionsAreAnsweredWithoutADialog) {
  struct Row {
    std::uint32_t buttons;
    std::uint32_t kind;
    bool skip;  // with DoInteract called all the same
    bool alwaysAsk;
    bool dialog;
  };
  for (const auto& [buttons, kind, skip, alwaysAsk, dialog] : std::vector<Row>{{0, 1, false, false, false},
                                                                               {0, 2, false, false, false},
                                                                               {1, 5, false, false, false},
                                                                               {0, 1, false, true, true},
                                                                               {0, 2, false, true, true},
                                                                               {1, 5, false, true, true},
                                                                               {0, 0, false, false, true},
                                                                               {1, 1, false, false, true},
                                                                               {2, 5, false, false, true},
                                                                               {0, 1, true, true, false},
                                                                               {1, 5, true, true, false},
                                                                               {0, 2, true, true, true},
                                                                               {0, 2, true, false, false}}) {
    const auto request = Question(kind, buttons);
    std::string context = "RAID";
    GuiDialogInputInteraction interaction(request.get(), std::move(context), skip, alwaysAsk);
    EXPECT_TRUE(context.empty());  // NOLINT(bugprone-use-after-move): the constructor empties it
    OnWorker([&] { interaction.DoInteract(); }, [](QWidget& shown) { shown.close(); });
    EXPECT_EQ(shown_, dialog) << buttons << ' ' << kind;
    EXPECT_EQ(request->answer, dialog ? 0U : 1U) << buttons << ' ' << kind;
  }
}

TEST_F(GuiDialogInputInteractionTest, SkippedQuestionIsNotAnswered) {
  const auto request = Question(0, 1);
  GuiDialogInputInteraction interaction(request.get(), "RAID", true, true);
  OnWorker([&] { interaction.Interact(); }, [](QWidget& dialog) { dialog.close(); });
  EXPECT_FALSE(shown_);
  EXPECT_EQ(request->answer, 99U);
}

TEST_F(GuiDialogInputInteractionTest, WorkerWaitsForTheAnswer) {
  const auto request = Question(0, 1);
  GuiDialogInputInteraction interaction(request.get(), "RAID", false, true);
  const auto press = [](QWidget& dialog) {
    EXPECT_TRUE(dialog.isModal());
    EXPECT_TRUE(dialog.windowFlags().testFlag(Qt::FramelessWindowHint));
    EXPECT_FALSE(dialog.windowFlags().testFlag(Qt::WindowStaysOnTopHint));
    EXPECT_TRUE(StaysOpen(dialog));
    dialog.findChild<QPushButton*>("generic_input_button_cancel")->click();
  };
  OnWorker([&] { interaction.Interact(); }, press);
  EXPECT_TRUE(shown_);
  EXPECT_EQ(request->answer, 2U);
  EXPECT_EQ(interaction.result, 2U);
  // The left arrow pressed and released, then the key that the dialog itself sends.
  const std::vector<simulation::SyntheticKey> keys = {{0x25, 0, 0}, {0x25, 0, 2}, {0x61, 0, 0}};
  EXPECT_EQ(machine_->Desktop().Keys(), keys);
  const auto foreground = machine_->Desktop().ForegroundWindows();
  ASSERT_EQ(foreground.size(), 2U);
  EXPECT_NE(foreground.front(), 0U);
}

TEST_F(GuiDialogInputInteractionTest, AbortClosesTheDialog) {
  for (const bool beforehand : {false, true}) {
    core::AbortFlag abort = beforehand ? 1 : 0;
    core::RunArguments arguments;
    arguments.abortFlag = &abort;
    legacy::ContextAdapter context(&arguments);
    const auto request = Question(0, 1);
    request->context = &context;
    GuiDialogInputInteraction interaction(request.get(), "RAID", false, true);
    QElapsedTimer time;
    const auto setAbort = [&](QWidget& dialog) {
      EXPECT_TRUE(beforehand || StaysOpen(dialog));
      abort = 1;
      time.start();
    };
    OnWorker([&] { interaction.Interact(); }, setAbort);
    EXPECT_LT(time.elapsed(), 5000);  // on a busy machine
    EXPECT_EQ(request->answer, 0U);
    EXPECT_EQ(interaction.result, 0U);
  }
}

}  // namespace
}  // namespace orvik::testing
