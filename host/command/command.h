#pragma once

#include <CLI/App.hpp>
#include <QByteArray>
#include <QJsonObject>
#include <QJsonValue>
#include <QString>
#include <QStringList>
#include <memory>
#include <string>
#include <vector>

#include "core/module.h"
#include "host/inventory/inventory.h"
#include "host/result.h"
#include "host/run/run.h"
#include "host/run/run_scheduler.h"
#include "host/terminal/progress_bars.h"
#include "host/text/text.h"
#include "host/text/words.h"

namespace orvik::host {

enum class OutputFormat { Text, Json };

/// What a command works with.
struct CommandContext {
  const core::Module& module;
  const Translations& translations;
  const core::AbortFlag& abortFlag;
  OutputFormat format = OutputFormat::Text;
  Palette palette;
  bool hideSerials = false;
  QString whyNoneFound;  ///< a note on why there may be no device; empty if there is nothing to say
};

/// What a command reports, which may be a part of what was asked for.
struct Report {
  QString text;          ///< standard output for people; empty with `OutputFormat::Json`
  QJsonObject sections;  ///< members of the JSON document; empty with `OutputFormat::Text`
  QStringList errors;    ///< one line each
  QStringList notes;     ///< what the user must know but is no error, one line each
  ExitCode exitCode = ExitCode::AllRight;
};

/// The report of a command that could not do its work.
Report ReportOf(const Error& error);

/// A subcommand: parses its options, calls the inventory, the runs or the drives, and reports. To add one, define it
/// and add it to `AllCommands`.
class Command {
 public:
  Command() = default;
  Command(const Command&) = delete;
  Command& operator=(const Command&) = delete;
  virtual ~Command() = default;

  virtual const char* Name() const = 0;
  virtual QString Description() const = 0;
  virtual void AddOptions(CLI::App& /*options*/) {}
  virtual Result<Report> Execute(const CommandContext& context) = 0;
};

std::unique_ptr<Command> MakeScanCommand();
std::unique_ptr<Command> MakePresenceCommand();
std::unique_ptr<Command> MakeListTestsCommand();
std::unique_ptr<Command> MakeRunTestsCommand();
std::unique_ptr<Command> MakeDrivesCommand();
std::unique_ptr<Command> MakeSelfTestCommand();

/// Every subcommand, in the order of the help text.
std::vector<std::unique_ptr<Command>> AllCommands();

/// An option that takes one value each time it is given, so that it can precede the subcommand's name.
CLI::Option* AddListOption(CLI::App& options, const char* name, std::vector<std::string>& values,
                           const QString& description);

/// The option of the commands that work on chosen devices.
void AddDeviceOption(CLI::App& options, std::vector<std::string>& values);

/// Scans with the module's scanner; hides serial numbers if the user wants that.
Result<std::vector<ListedDevice>> FindDevices(const CommandContext& context);

/// What to add to a report if no device was found.
QStringList NotesOnNoDevice(const CommandContext& context);

/// Executes the runs with progress bars and returns when all have ended.
template <typename Kind>
void CompleteWithBars(const std::vector<std::unique_ptr<Kind>>& runs, const CommandContext& context) {
  ProgressBars bars;
  RunScheduler(*context.module.GetDispatcher(), context.abortFlag, bars).Complete(runs);
}

/// "Device 0: problem" and "Device 0, part: problem", for a report's errors.
QString DeviceProblem(const ListedDevice& device, const QString& problem);
QString DeviceProblem(const ListedDevice& device, const QString& part, const QString& problem);

/// The members of "module" in the JSON document.
QJsonObject ModuleJson(const core::Module& module);

/// The JSON document of a call. `command` is empty if none was recognised; `module` is null if none was loaded.
QByteArray JsonDocument(const QString& command, const QJsonValue& module, const Report& report);

}  // namespace orvik::host
