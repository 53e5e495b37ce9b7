#include <QCoreApplication>
#include <string>

#include "host/command/command.h"
#include "host/drives/drive_choice.h"
#include "host/drives/drive_query.h"
#include "host/drives/self_test_run.h"
#include "host/privacy/hide_serials.h"
#include "host/report/device_json.h"
#include "host/report/drive_json.h"
#include "host/report/drive_text.h"
#include "host/run/run_plan.h"
#include "host/run/run_scheduler.h"
#include "host/terminal/progress_bars.h"
#include "host/text/display_text.h"

namespace orvik::host {
namespace {

class SelfTestCommand final : public Command {
 public:
  const char* Name() const override { return "selftest"; }

  QString Description() const override {
    return QCoreApplication::translate("orvik-diag", "Let a member drive test itself, or abort what it has begun");
  }

  void AddOptions(CLI::App& options) override {
    options
        .add_option("drive", driveName_,
                    QCoreApplication::translate("orvik-diag", "Id of the drive, or DEVICE:DRIVE by their indexes")
                        .toStdString())
        ->type_name(QCoreApplication::translate("orvik-diag", "DRIVE").toStdString())
        ->required();
    CLI::Option* const shortTest =
        AddFlag(options, "--short", short_,
                QCoreApplication::translate("orvik-diag", "A short self-test; what is done without an option"));
    CLI::Option* const extended =
        AddFlag(options, "--extended", extended_, QCoreApplication::translate("orvik-diag", "An extended self-test"));
    CLI::Option* const abort = AddFlag(options, "--abort", abort_,
                                       QCoreApplication::translate("orvik-diag", "Abort the self-test under way"));
    shortTest->excludes(extended)->excludes(abort);
    extended->excludes(abort);
  }

  CommandResult Execute(const CommandContext& context) override {
    std::vector<ListedDevice> devices;
    QString error;
    if (!FindDevices(context, devices, error)) return CouldNotTell(error);
    const auto all = SelectDevices(devices, {}, error);

    CommandResult result;
    const DriveQueryList lists = PlanQueries(*all, DriveQuery::Depth::List, context.abortFlag);
    {
      ProgressBars bars;
      RunScheduler(*context.module.GetDispatcher(), context.abortFlag, bars).Complete(lists);
    }
    for (const auto& list : lists) {
      for (const QString& problem : ProblemsOf(*list)) {
        result.errors +=
            QCoreApplication::translate("orvik-diag", "Device %1: %2").arg(list->device->index).arg(problem);
      }
    }
    const std::optional<ChosenDrive> chosen = ChooseDrive(lists, driveName_, error);
    if (!chosen) {
      result.errors += error;
      result.exitCode = ExitCode::CouldNotTell;
      return result;
    }
    result.sections["devices"] = DevicesJson(devices);
    Test(*chosen, context, result);
    return result;
  }

 private:
  static CLI::Option* AddFlag(CLI::App& options, const char* name, bool& value, const QString& description) {
    return options.add_flag(name, value, description.toStdString());
  }

  SelfTestRequest Request() const {
    if (abort_) return SelfTestRequest::Abort;
    return extended_ ? SelfTestRequest::Extended : SelfTestRequest::Short;
  }

  void Test(const ChosenDrive& chosen, const CommandContext& context, CommandResult& result) const {
    std::vector<std::unique_ptr<SelfTestRun>> runs;
    runs.push_back(std::make_unique<SelfTestRun>(*chosen.device, *chosen.drive, Request(), context.abortFlag));
    {
      ProgressBars bars;
      RunScheduler(*context.module.GetDispatcher(), context.abortFlag, bars).Complete(runs);
    }
    SelfTestRun& run = *runs.front();
    if (context.hideSerials) HideSerials(run.drive);
    QString problem = run.outcome.error.isEmpty() ? run.report.problem : run.outcome.error;
    if (run.outcome.result == core::TestResult::Invalid) {
      problem = QCoreApplication::translate("orvik-diag", "The device has gone since the scan");
    }
    if (!problem.isEmpty()) {
      result.errors += QCoreApplication::translate("orvik-diag", "Device %1, %2: %3")
                           .arg(QString::number(chosen.device->index), DisplayText(run.drive.entry.id), problem);
    }
    result.exitCode = ExitCodeOf(run.outcome);
    result.sections["selfTest"] = SelfTestJson(run);
    result.text = SelfTestText(run, context.palette);
  }

  std::string driveName_;
  bool short_ = false;
  bool extended_ = false;
  bool abort_ = false;
};

}  // namespace

std::unique_ptr<Command> MakeSelfTestCommand() {
  return std::make_unique<SelfTestCommand>();
}

}  // namespace orvik::host
