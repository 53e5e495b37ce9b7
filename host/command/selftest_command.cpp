#include <QCoreApplication>
#include <string>

#include "host/command/command.h"
#include "host/drives/drive_query.h"
#include "host/drives/self_test_run.h"
#include "host/privacy/hide_serials.h"
#include "host/report/device_report.h"
#include "host/report/drive_report.h"
#include "host/text/text.h"

namespace orvik::host {
namespace {

class SelfTestCommand final : public Command {
 public:
  const char* Name() const override { return "selftest"; }

  QString Description() const override {
    return QCoreApplication::translate("orvik-diag", "Start or abort a self-test on a member drive");
  }

  void AddOptions(CLI::App& options) override {
    options
        .add_option("drive", driveName_,
                    QCoreApplication::translate("orvik-diag", "Drive ID, or the indexes DEVICE:DRIVE").toStdString())
        ->type_name(QCoreApplication::translate("orvik-diag", "DRIVE").toStdString())
        ->required();
    // Without a variable: it is the default.
    const std::string aboutShort =
        QCoreApplication::translate("orvik-diag", "Run a short self-test (default)").toStdString();
    CLI::Option* const shortTest = options.add_flag("--short", aboutShort);
    CLI::Option* const extended =
        options.add_flag("--extended", extended_,
                         QCoreApplication::translate("orvik-diag", "Run an extended self-test").toStdString());
    CLI::Option* const abort = options.add_flag(
        "--abort", abort_, QCoreApplication::translate("orvik-diag", "Abort the running self-test").toStdString());
    shortTest->excludes(extended)->excludes(abort);
    extended->excludes(abort);
  }

  Result<Report> Execute(const CommandContext& context) override {
    const Result<std::vector<ListedDevice>> devices = FindDevices(context);
    if (!devices.Ok()) return devices.Error();
    std::vector<const ListedDevice*> all;
    for (const ListedDevice& device : devices.Value()) all.push_back(&device);

    Report report;
    if (devices.Value().empty()) report.notes = NotesOnNoDevice(context);
    const DriveQueryList lists = PlanQueries(all, DriveQuery::Depth::List, context.abortFlag);
    CompleteWithBars(lists, context);
    for (const auto& list : lists) {
      for (const QString& problem : ProblemsOf(*list)) report.errors += DeviceProblem(*list->device, problem);
    }
    const Result<ChosenDrive> chosen = ChooseDrive(lists, driveName_);
    if (!chosen.Ok()) {
      report.errors += chosen.Error().text;
      report.exitCode = ExitCode::NoVerdict;
      return report;
    }
    if (context.format == OutputFormat::Json) report.sections["devices"] = DevicesJson(devices.Value());
    Test(chosen.Value(), context, report);
    return report;
  }

 private:
  SelfTestRequest Request() const {
    if (abort_) return SelfTestRequest::Abort;
    return extended_ ? SelfTestRequest::Extended : SelfTestRequest::Short;
  }

  void Test(const ChosenDrive& chosen, const CommandContext& context, Report& report) const {
    std::vector<std::unique_ptr<SelfTestRun>> runs;
    runs.push_back(std::make_unique<SelfTestRun>(*chosen.device, *chosen.drive, Request(), context.abortFlag));
    CompleteWithBars(runs, context);

    SelfTestRun& run = *runs.front();
    if (context.hideSerials) HideSerials(run.drive);
    for (const QString& note : NotesOn(run.drive)) {
      report.notes += DeviceProblem(*chosen.device, DisplayText(run.drive.entry.id), note);
    }
    if (!run.outcome.Ok()) {
      report.errors += DeviceProblem(*chosen.device, DisplayText(run.drive.entry.id), run.outcome.Error().text);
    }
    report.exitCode = ExitCodeOf(run.outcome);
    if (context.format == OutputFormat::Json) {
      report.sections["selfTest"] = SelfTestJson(run);
    } else {
      report.text = SelfTestText(run, context.palette);
    }
  }

  std::string driveName_;
  bool extended_ = false;
  bool abort_ = false;
};

}  // namespace

std::unique_ptr<Command> MakeSelfTestCommand() {
  return std::make_unique<SelfTestCommand>();
}

}  // namespace orvik::host
