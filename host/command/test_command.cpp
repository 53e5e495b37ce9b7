#include <QCoreApplication>
#include <string>

#include "host/command/command.h"
#include "host/inventory/device_list.h"
#include "host/inventory/test_list.h"
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
    AddList(options, "--device", deviceNames_,
            QCoreApplication::translate("orvik-diag", "Only devices with this id, or the one with this index"))
        ->type_name(QCoreApplication::translate("orvik-diag", "DEVICE").toStdString());
    AddList(options, "--only", testNames_,
            QCoreApplication::translate("orvik-diag", "Only the test with this id, key or name"))
        ->type_name(QCoreApplication::translate("orvik-diag", "TEST").toStdString());
  }

  CommandResult Execute(const CommandContext& context) override {
    std::vector<ListedDevice> devices;
    QString error;
    if (!ScanDevices(*context.module.GetDeviceScanner(), devices, error)) return CouldNotTell(error);

    CommandResult result;
    const std::vector<ListedTest> tests = ListTests(context.module, context.translations, result.errors);
    if (!result.errors.isEmpty()) result.exitCode = ExitCode::CouldNotTell;
    const auto chosenDevices = SelectDevices(devices, deviceNames_, error);
    if (!chosenDevices) return CouldNotTell(error);
    const auto chosenTests = SelectTests(tests, testNames_, error);
    if (!chosenTests) return CouldNotTell(error);

    RunList runs = PlanRuns(*chosenDevices, *chosenTests, context.abortFlag);
    {
      ProgressBars bars;
      RunScheduler(*context.module.GetDispatcher(), context.abortFlag, bars).Complete(runs);
    }
    Report(runs, devices, context.palette, result);
    return result;
  }

 private:
  // One value each time the option is given, so that the option can stand before the subcommand's name.
  static CLI::Option* AddList(CLI::App& options, const char* name, std::vector<std::string>& values,
                              const QString& description) {
    return options.add_option(name, values, description.toStdString())->expected(1, -1)->allow_extra_args(false);
  }

  static void Report(const RunList& runs, const std::vector<ListedDevice>& devices, const Palette& palette,
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
};

}  // namespace

std::unique_ptr<Command> MakeTestCommand() {
  return std::make_unique<TestCommand>();
}

}  // namespace orvik::host
