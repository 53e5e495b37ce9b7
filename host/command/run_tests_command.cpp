#include <QCoreApplication>
#include <string>

#include "host/command/command.h"
#include "host/privacy/hide_serials.h"
#include "host/question/question_desk.h"
#include "host/report/device_report.h"
#include "host/report/run_report.h"
#include "host/text/text.h"

namespace orvik::host {
namespace {

class RunTestsCommand final : public Command {
 public:
  const char* Name() const override { return "test"; }

  QString Description() const override {
    return QCoreApplication::translate("orvik-diag", "Run tests; by default every test on every device");
  }

  void AddOptions(CLI::App& options) override {
    AddDeviceOption(options, deviceNames_);
    AddListOption(options, "--only", testNames_,
                  QCoreApplication::translate("orvik-diag", "Run only the test with this ID, key or name"))
        ->type_name(QCoreApplication::translate("orvik-diag", "TEST").toStdString());
    options
        .add_option(
            "--answer", answer_,
            QCoreApplication::translate("orvik-diag", "Answer questions of tests with this button").toStdString())
        ->type_name(QCoreApplication::translate("orvik-diag", "BUTTON").toStdString())
        ->check(CLI::IsMember({"ok", "cancel", "yes", "no"}, CLI::ignore_case));
  }

  Result<Report> Execute(const CommandContext& context) override {
    const Result<std::vector<ListedDevice>> devices = FindDevices(context);
    if (!devices.Ok()) return devices.Error();
    const TestList list = ListTests(context.module, context.translations);
    const auto chosenDevices = SelectDevices(devices.Value(), deviceNames_);
    if (!chosenDevices.Ok()) return chosenDevices.Error();
    const auto chosenTests = SelectTests(list.tests, testNames_);
    if (!chosenTests.Ok()) return chosenTests.Error();

    const TestRunList runs = PlanRuns(chosenDevices.Value(), chosenTests.Value(), context.abortFlag);
    {
      ProgressBars bars;
      QuestionDesk desk(AnswerNamed(QString::fromStdString(answer_)), [&bars](bool used) { bars.SetHidden(used); });
      for (const auto& run : runs) run->log.SetQuestionPresenter(desk);
      RunScheduler(*context.module.GetDispatcher(), context.abortFlag, bars).Complete(runs);
    }

    Report report;
    if (devices.Value().empty()) report.notes = NotesOnNoDevice(context);
    report.errors = list.errors;
    if (!list.errors.isEmpty()) report.exitCode = ExitCode::NoVerdict;
    for (const auto& run : runs) {
      if (context.hideSerials) HideSerials(run->log.Messages());
      report.exitCode = Worse(report.exitCode, ExitCodeOf(run->outcome));
      for (const AskedQuestion& question : run->log.Questions()) CheckAnswer(question, *run, report);
      if (!run->outcome.Ok()) {
        report.errors += DeviceProblem(*run->device, run->test->name, run->outcome.Error().text);
      }
    }
    if (context.format == OutputFormat::Json) {
      report.sections["devices"] = DevicesJson(devices.Value());
      report.sections["runs"] = RunsJson(runs);
      report.sections["summary"] = SummaryJson(runs);
    } else {
      report.text = RunsText(runs, context.palette);
    }
    return report;
  }

 private:
  // A question without the button of `--answer` was closed, so the user did not get what was asked for.
  void CheckAnswer(const AskedQuestion& question, const TestRun& run, Report& report) const {
    const QString answer = QString::fromStdString(answer_).toLower();
    if (answer.isEmpty() || question.choices.contains(answer)) return;
    const QString problem = QCoreApplication::translate("orvik-diag", "The question has no button \"%1\"");
    report.errors += DeviceProblem(*run.device, run.test->name, WithChoices(problem.arg(answer), question.choices));
    report.exitCode = Worse(report.exitCode, ExitCode::NoVerdict);
  }

  std::vector<std::string> deviceNames_;
  std::vector<std::string> testNames_;
  std::string answer_;
};

}  // namespace

std::unique_ptr<Command> MakeRunTestsCommand() {
  return std::make_unique<RunTestsCommand>();
}

}  // namespace orvik::host
