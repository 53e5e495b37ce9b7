#include <QCoreApplication>

#include "host/command/command.h"
#include "host/drives/drive_query.h"
#include "host/privacy/hide_serials.h"
#include "host/report/device_report.h"
#include "host/report/drive_report.h"
#include "host/text/text.h"
#include "host/text/words.h"

namespace orvik::host {
namespace {

// Why the drive could not be identified or read completely; empty if it was.
QString ProblemOf(const Drive& drive) {
  if (!drive.problem.isEmpty() || !drive.status || drive.IsIdentified()) return drive.problem;
  return QCoreApplication::translate("orvik-diag", "Could not identify the drive (%1)")
      .arg(StatusText(*drive.status));
}

class DrivesCommand final : public Command {
 public:
  const char* Name() const override { return "drives"; }

  QString Description() const override {
    return QCoreApplication::translate("orvik-diag", "Show identity and health of the member drives");
  }

  void AddOptions(CLI::App& options) override { AddDeviceOption(options, deviceNames_); }

  Result<Report> Execute(const CommandContext& context) override {
    const Result<std::vector<ListedDevice>> devices = FindDevices(context);
    if (!devices.Ok()) return devices.Error();
    const auto chosen = SelectDevices(devices.Value(), deviceNames_);
    if (!chosen.Ok()) return chosen.Error();

    const DriveQueryList queries = PlanQueries(chosen.Value(), DriveQuery::Depth::Read, context.abortFlag);
    CompleteWithBars(queries, context);

    Report report;
    if (devices.Value().empty()) report.notes = NotesOnNoDevice(context);
    for (const auto& query : queries) {
      if (context.hideSerials) {
        for (Drive& drive : query->drives) HideSerials(drive);
      }
      AddErrors(*query, report);
      report.exitCode = Worse(report.exitCode, ExitCodeOf(query->outcome));
    }
    if (!report.errors.isEmpty()) report.exitCode = ExitCode::NoVerdict;
    if (context.format == OutputFormat::Json) {
      report.sections["devices"] = DevicesJson(devices.Value());
      report.sections["drives"] = DrivesJson(queries);
    } else {
      report.text = DrivesText(queries, context.palette);
    }
    return report;
  }

 private:
  // One line for each drive or list that could not be read.
  static void AddErrors(const DriveQuery& query, Report& report) {
    for (const QString& problem : ProblemsOf(query)) report.errors += DeviceProblem(*query.device, problem);
    for (const Drive& drive : query.drives) {
      for (const QString& note : NotesOn(drive)) {
        report.notes += DeviceProblem(*query.device, DisplayText(drive.entry.id), note);
      }
      const QString problem = ProblemOf(drive);
      if (problem.isEmpty()) continue;
      report.errors += DeviceProblem(*query.device, DisplayText(drive.entry.id), problem);
    }
  }

  std::vector<std::string> deviceNames_;
};

}  // namespace

std::unique_ptr<Command> MakeDrivesCommand() {
  return std::make_unique<DrivesCommand>();
}

}  // namespace orvik::host
