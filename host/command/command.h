#pragma once

#include <CLI/App.hpp>
#include <QJsonObject>
#include <QString>
#include <QStringList>
#include <memory>
#include <string>
#include <vector>

#include "core/module.h"
#include "host/inventory/device_list.h"
#include "host/run/exit_code.h"
#include "host/terminal/palette.h"
#include "host/text/translations.h"

namespace orvik::host {

/// What a command works with.
struct CommandContext {
  const core::Module& module;
  const Translations& translations;
  const core::AbortFlag& abortFlag;
  Palette palette;
  bool hideSerials = false;
};

/// What a command found out, for people and for programs.
struct CommandResult {
  QString text;
  QJsonObject sections;  ///< members of the JSON document
  QStringList errors;
  ExitCode exitCode = ExitCode::AllRight;
};

/// A subcommand. A new one is a file that defines one and its line in `AllCommands`.
class Command {
 public:
  Command() = default;
  Command(const Command&) = delete;
  Command& operator=(const Command&) = delete;
  virtual ~Command() = default;

  virtual const char* Name() const = 0;
  virtual QString Description() const = 0;
  virtual void AddOptions(CLI::App& /*options*/) {}
  virtual CommandResult Execute(const CommandContext& context) = 0;
};

std::unique_ptr<Command> MakeScanCommand();
std::unique_ptr<Command> MakePresenceCommand();
std::unique_ptr<Command> MakeTestsCommand();
std::unique_ptr<Command> MakeTestCommand();
std::unique_ptr<Command> MakeDrivesCommand();
std::unique_ptr<Command> MakeSelfTestCommand();

/// Every subcommand, in the order of the help text.
std::vector<std::unique_ptr<Command>> AllCommands();

/// The result of a command that could not do its work.
CommandResult CouldNotTell(const QString& error);

/// An option that takes one value each time it is given, so that it can stand before the subcommand's name.
CLI::Option* AddListOption(CLI::App& options, const char* name, std::vector<std::string>& values,
                           const QString& description);

/// The option of the commands that work on chosen devices.
void AddDeviceOption(CLI::App& options, std::vector<std::string>& values);

/// `ScanDevices` with the module's scanner, serial numbers hidden where the user wants it.
bool FindDevices(const CommandContext& context, std::vector<ListedDevice>& devices, QString& error);

}  // namespace orvik::host
