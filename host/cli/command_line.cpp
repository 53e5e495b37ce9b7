#include "host/cli/command_line.h"

#include <CLI/Config.hpp>
#include <CLI/Formatter.hpp>
#include <QCoreApplication>
#include <algorithm>
#include <string>

namespace orvik::host {
namespace {

struct GlobalOptions {
  std::string machineFile;
  std::string moduleFile;
  std::string language;
  bool json = false;
  bool hideSerials = false;
};

CLI::Option* AddTextOption(CLI::App& app, const char* name, std::string& value, const QString& description) {
  return app.add_option(name, value, description.toStdString());
}

// Help in the user's language; the group comes first, because options take it when they are added.
void DescribeHelp(CLI::App& app) {
  app.option_defaults()->group(QCoreApplication::translate("orvik-diag", "Options").toStdString());
  app.set_help_flag("-h,--help", QCoreApplication::translate("orvik-diag", "Show this help").toStdString());
  const auto formatter = app.get_formatter();
  formatter->label("Usage", QCoreApplication::translate("orvik-diag", "Usage").toStdString());
  formatter->label("OPTIONS", QCoreApplication::translate("orvik-diag", "OPTIONS").toStdString());
  formatter->label("Positionals", QCoreApplication::translate("orvik-diag", "Arguments").toStdString());
  formatter->label("REQUIRED", QCoreApplication::translate("orvik-diag", "(required)").toStdString());
  formatter->label("Excludes", QCoreApplication::translate("orvik-diag", "not with").toStdString());
  formatter->label("SUBCOMMAND", QCoreApplication::translate("orvik-diag", "COMMAND").toStdString());
}

void AddGlobalOptions(CLI::App& app, GlobalOptions& options) {
  const QString version = QCoreApplication::applicationName() + u' ' + QCoreApplication::applicationVersion();
  const std::string file = QCoreApplication::translate("orvik-diag", "FILE").toStdString();
  app.set_version_flag("--version", version.toStdString(),
                       QCoreApplication::translate("orvik-diag", "Show the version").toStdString());
  AddTextOption(app, "--machine", options.machineFile,
                QCoreApplication::translate("orvik-diag", "Diagnose the simulated machine that this file describes"))
      ->type_name(file);
  AddTextOption(app, "--module", options.moduleFile,
                QCoreApplication::translate("orvik-diag", "Use this module library instead of the installed one"))
      ->type_name(file);
  app.add_flag("--json", options.json,
               QCoreApplication::translate("orvik-diag", "Print one JSON document").toStdString());
  app.add_flag(
      "--hide-serials", options.hideSerials,
      QCoreApplication::translate("orvik-diag", "Show an X for each character of a serial number").toStdString());
  AddTextOption(app, "--lang", options.language,
                QCoreApplication::translate("orvik-diag", "Language of the texts, for example de"))
      ->type_name(QCoreApplication::translate("orvik-diag", "CODE").toStdString());
}

void AddCommands(CLI::App& app, const std::vector<std::unique_ptr<Command>>& commands, Command*& chosen) {
  const std::string group = QCoreApplication::translate("orvik-diag", "Commands").toStdString();
  const QString footer = QCoreApplication::translate("orvik-diag", "For the options of all commands see %1 --help")
                             .arg(QCoreApplication::applicationName());
  for (const auto& command : commands) {
    CLI::App* const subcommand = app.add_subcommand(command->Name(), command->Description().toStdString());
    subcommand->group(group)->fallthrough();
    DescribeHelp(*subcommand);
    subcommand->footer(footer.toStdString());
    command->AddOptions(*subcommand);
    subcommand->callback([&chosen, command = command.get()] { chosen = command; });
  }
  app.require_subcommand(0, 1);
}

// The parser takes the arguments last one first.
std::vector<std::string> Reversed(const QStringList& arguments) {
  std::vector<std::string> reversed;
  for (const QString& argument : arguments) reversed.push_back(argument.toStdString());
  std::reverse(reversed.begin(), reversed.end());
  return reversed;
}

UsageError Misused(const QString& problem) {
  const QString help = QCoreApplication::translate("orvik-diag", "(see %1 --help)");
  return {QStringLiteral("%1 %2").arg(problem.simplified(), help.arg(QCoreApplication::applicationName()))};
}

}  // namespace

ParsedCommandLine ParseCommandLine(const QStringList& arguments,
                                   const std::vector<std::unique_ptr<Command>>& commands) {
  GlobalOptions options;
  Request request;
  CLI::App app(QCoreApplication::translate("orvik-diag", "Finds RAID controllers and tests them.").toStdString(),
               QCoreApplication::applicationName().toStdString());
  DescribeHelp(app);
  AddGlobalOptions(app, options);
  AddCommands(app, commands, request.command);
  try {
    app.parse(Reversed(arguments));
  } catch (const CLI::CallForVersion& version) {
    return Information{QString::fromStdString(version.what()) + u'\n'};
  } catch (const CLI::CallForHelp&) {
    return Information{QString::fromStdString(app.help())};
  } catch (const CLI::ParseError& error) {
    return Misused(QString::fromStdString(error.what()));
  }
  if (request.command == nullptr) return Misused(QCoreApplication::translate("orvik-diag", "No command was given"));
  if (app.count("--machine") > 0) request.machineFile = QString::fromStdString(options.machineFile);
  request.moduleFile = QString::fromStdString(options.moduleFile);
  request.hideSerials = options.hideSerials;
  return request;
}

bool WantsJson(const QStringList& arguments) {
  return arguments.contains(QLatin1String("--json"));
}

QString WantedLanguage(const QStringList& arguments) {
  const QLatin1String option("--lang");
  const QLatin1String withValue("--lang=");
  for (qsizetype i = 0; i < arguments.size(); ++i) {
    if (arguments[i].startsWith(withValue)) return arguments[i].mid(withValue.size());
    if (arguments[i] == option && i + 1 < arguments.size()) return arguments[i + 1];
  }
  return {};
}

}  // namespace orvik::host
