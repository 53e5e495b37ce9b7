#include <QCoreApplication>
#include <string>

#include "host/command/command.h"
#include "host/inventory/device_list.h"
#include "host/inventory/test_list.h"
#include "host/privacy/hide_serials.h"
#include "host/question/question_desk.h"
#include "host/report/device_json.h"
#include "host/report/run_report.h"
#include "host/run/run_plan.h"
#include "host/run/run_scheduler.h"
#include "host/terminal/progress_bars.h"

namespace orvik::host {
namespace {

class TestCommand final : public Command {
 public:
  const char* Name() const override { return "test"; }

  QString Description() const override {
    return QCoreApplication::translate("orvik-diag", "Run tests: every test on every device, or those chosen");
  }

  void AddOptions(CLI::App& options) override {
    AddDeviceOption(options, deviceNames_);
    AddListOption(options, "--only", testNames_,
                  QCoreApplication::translate("orvik-diag", "Only the test with this id, key or name"))
        ->type_name(QCoreApplication::translate("orvik-diag", "TEST").toStdString());
    options
        .add_option(
            "--answer", answer_,
            QCoreApplication::translate("orvik-diag", "Press this button when a test asks a question").toStdString())
        ->type_name(QCoreApplication::translate("orvik-diag", "BUTTON").toStdString())
        ->check(CLI::IsMember({"ok", "cancel", "yes", "no"}, CLI::ignore_case));
  }

  CommandResult Execute(const CommandContext& context) override {
    std::vector<ListedDevice> devices;
    QString error;
    if (!FindDevices(context, devices, error)) return CouldNotTell(error);

    CommandResult result;
    const std::vector<ListedTest> tests = ListTests(context.module, context.translations, result.errors);
    if (!result.errors.isEmpty()) result.exitCode = ExitCode::CouldNotTell;
    const auto chosenDevices = SelectDevices(devices, deviceNames_, error);
    if (!chosenDevices) return CouldNotTell(error);
    const auto chosenTests = SelectTests(tests, testNames_, error);
    if (!chosenTests) return CouldNotTell(error);

    const TestRunList runs = PlanRuns(*chosenDevices, *chosenTests, context.abortFlag);
    {
      ProgressBars bars;
      QuestionDesk desk(ButtonOf(QString::fromStdString(answer_)), [&bars](bool taken) { bars.SetHidden(taken); });
      for (const auto& run : runs) run->recorder.SetQuestionDesk(desk);
      RunScheduler(*context.module.GetDispatcher(), context.abortFlag, bars).Complete(runs);
    }
    if (context.hideSerials) {
      for (const auto& run : runs) HideSerials(run->recorder.Messages());
    }
    Report(runs, devices, context.palette, result);
    return result;
  }

 private:
  static void Report(const TestRunList& runs, const std::vector<ListedDevice>& devices, const Palette& palette,
                     CommandResult& result) {
    for (const auto& run : runs) {
      result.exitCode = Worse(result.exitCode, ExitCodeOf(run->outcome));
      if (run->outcome.error.isEmpty()) continue;
      result.errors += QCoreApplication::translate("orvik-diag", "Device %1, %2: %3")
                           .arg(QString::number(run->device->index), run->test->name, run->outcome.error);
    }
    result.sections["devices"] = DevicesJson(devices);
    result.sections["runs"] = RunsJson(runs);
    result.sections["summary"] = SummaryJson(runs);
    result.text = RunsText(runs, palette);
  }

  std::vector<std::string> deviceNames_;
  std::vector<std::string> testNames_;
  std::string answer_;
};

}  // namespace

std::unique_ptr<Command> MakeTestCommand() {
  return std::make_unique<TestCommand>();
}

}  // namespace orvik::host
