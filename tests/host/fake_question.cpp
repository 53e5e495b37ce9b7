#include <QApplication>
#include <QDialog>
#include <QLabel>
#include <QPushButton>
#include <atomic>

#include "tests/host/fake_module.h"

namespace orvik::tests {
namespace {

// Has the object names of the real dialog.
class FakeQuestion final : public core::InputInteraction {
 public:
  explicit FakeQuestion(std::atomic<int>& result) : result_(&result) {}

  void Interact() override { DoInteract(); }

  void DoInteract() override {
    QMetaObject::invokeMethod(
        qApp, [this] { Show(); }, Qt::BlockingQueuedConnection);
  }

 private:
  void Show() const {
    QDialog dialog;
    Name(*new QLabel("Sure?", &dialog), "generic_input_header_label");
    Name(*new QLabel("It hurts.", &dialog), "generic_input_instruction_label");
    AddButton(dialog, "generic_input_button_ok", 1);
    AddButton(dialog, "generic_input_button_cancel", 2);
    // Like a window that is raised before it waits for its answer.
    dialog.open();
    dialog.hide();
    *result_ = dialog.exec();
  }

  static void Name(QObject& object, const char* name) { object.setObjectName(QLatin1String(name)); }

  static void AddButton(QDialog& dialog, const char* name, int code) {
    auto* const button = new QPushButton(&dialog);
    Name(*button, name);
    QObject::connect(button, &QPushButton::clicked, &dialog, [&dialog, code] { dialog.done(code); });
  }

  // Qt's blocking call orders the threads too, but thread sanitizers do not see it.
  std::atomic<int>* result_;
};

}  // namespace

core::TestResult AskFakeQuestion(core::RunReporter& reporter) {
  std::atomic<int> result = -1;
  std::unique_ptr<core::InputInteraction> question = std::make_unique<FakeQuestion>(result);
  reporter.Ask(question);
  Log("answer " + std::to_string(result));
  return core::TestResult::Passed;
}

}  // namespace orvik::tests
