#include <QCoreApplication>

#include "host/command/command.h"
#include "host/drives/drive_query.h"
#include "host/privacy/hide_serials.h"
#include "host/report/device_json.h"
#include "host/report/drive_json.h"
#include "host/report/drive_text.h"
#include "host/report/drive_words.h"
#include "host/run/run_plan.h"
#include "host/run/run_scheduler.h"
#include "host/terminal/progress_bars.h"
#include "host/text/display_text.h"

namespace orvik::host {
namespace {

class DrivesCommand final : public Command {
 public:
  const char* Name() const override { return "drives"; }

  QString Description() const override {
    return QCoreApplication::translate("orvik-diag", "Ask the member drives for their identification and condition");
  }

  void AddOptions(CLI::App& options) override { AddDeviceOption(options, deviceNames_); }

  CommandResult Execute(const CommandContext& context) override {
    std::vector<ListedDevice> devices;
    QString error;
    if (!FindDevices(context, devices, error)) return CouldNotTell(error);
    const auto chosen = SelectDevices(devices, deviceNames_, error);
    if (!chosen) return CouldNotTell(error);

    const DriveQueryList queries = PlanQueries(*chosen, DriveQuery::Depth::Ask, context.abortFlag);
    {
      ProgressBars bars;
      RunScheduler(*context.module.GetDispatcher(), context.abortFlag, bars).Complete(queries);
    }
    CommandResult result;
    for (const auto& query : queries) {
      if (context.hideSerials) {
        for (Drive& drive : query->drives) HideSerials(drive);
      }
      Complain(*query, result);
    }
    result.sections["devices"] = DevicesJson(devices);
    result.sections["drives"] = DrivesJson(queries);
    result.text = DrivesText(queries, context.palette);
    return result;
  }

 private:
  // One line for everything that the user asked for and did not get.
  static void Complain(const DriveQuery& query, CommandResult& result) {
    const QString number = QString::number(query.device->index);
    for (const QString& problem : ProblemsOf(query)) {
      result.errors += QCoreApplication::translate("orvik-diag", "Device %1: %2").arg(number, problem);
    }
    for (const Drive& drive : query.drives) {
      QString problem = drive.problem;
      if (problem.isEmpty() && drive.status && !drive.IsIdentified()) {
        problem = QCoreApplication::translate("orvik-diag", "No identification (%1)").arg(StatusText(*drive.status));
      }
      if (problem.isEmpty()) continue;
      result.errors += QCoreApplication::translate("orvik-diag", "Device %1, %2: %3")
                           .arg(number, DisplayText(drive.entry.id), problem);
    }
    const bool isComplete = query.outcome.result == core::TestResult::Passed;
    if (!isComplete || !result.errors.isEmpty()) result.exitCode = ExitCode::CouldNotTell;
  }

  std::vector<std::string> deviceNames_;
};

}  // namespace

std::unique_ptr<Command> MakeDrivesCommand() {
  return std::make_unique<DrivesCommand>();
}

}  // namespace orvik::host
