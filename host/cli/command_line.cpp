#include "host/cli/command_line.h"

#include <CLI/Config.hpp>
#include <CLI/Formatter.hpp>
#include <QCoreApplication>
#include <algorithm>
#include <string>

namespace orvik::host {
namespace {

struct GlobalOptions {
  std::optional<std::string> machineFile;
  std::string moduleFile;
  bool hideSerials = false;
};

// The help text in the user's language. The group is set first, because options take it when they are added.
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
  app.add_option(
         "--machine", options.machineFile,
         QCoreApplication::translate("orvik-diag", "Use the simulated machine described in this file").toStdString())
      ->type_name(file);
  app.add_option("--module", options.moduleFile,
                 QCoreApplication::translate("orvik-diag", "Use this module library instead of the installed one")
                     .toStdString())
      ->type_name(file);
  app.add_flag(
      "--hide-serials", options.hideSerials,
      QCoreApplication::translate("orvik-diag", "Mask serial numbers and drive labels with X").toStdString());
  // Without variables: `WantsJson` and `WantedLanguage` have read these two.
  const std::string aboutJson = QCoreApplication::translate("orvik-diag", "Print output as JSON").toStdString();
  app.add_flag("--json", aboutJson);
  const std::string aboutLanguage =
      QCoreApplication::translate("orvik-diag", "Language of the output, for example de").toStdString();
  app.add_option("--lang", aboutLanguage)->type_name(QCoreApplication::translate("orvik-diag", "CODE").toStdString());
}

void AddCommands(CLI::App& app, const std::vector<std::unique_ptr<Command>>& commands, Command*& chosen) {
  const std::string group = QCoreApplication::translate("orvik-diag", "Commands").toStdString();
  const QString footer = QCoreApplication::translate("orvik-diag", "Run %1 --help for the common options")
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

// The parser expects the last argument first.
std::vector<std::string> Reversed(const QStringList& arguments) {
  std::vector<std::string> reversed;
  for (const QString& argument : arguments) reversed.push_back(argument.toStdString());
  std::reverse(reversed.begin(), reversed.end());
  return reversed;
}

Error UsageError(const QString& problem) {
  const QString help = QCoreApplication::translate("orvik-diag", "(see %1 --help)");
  return {QStringLiteral("%1 %2").arg(problem.simplified(), help.arg(QCoreApplication::applicationName()))};
}

// The first argument that gives a value to an option that takes none, such as "--json=true"; empty without one.
QString FlagWithValue(const CLI::App& app, const QStringList& arguments) {
  std::vector<const CLI::App*> parsers = app.get_subcommands([](const CLI::App*) { return true; });
  parsers.push_back(&app);
  for (const QString& argument : arguments) {
    const qsizetype end = argument.indexOf(u'=');
    if (end < 0 || !argument.startsWith(u'-')) continue;
    const std::string name = argument.left(end).toStdString();
    for (const CLI::App* const parser : parsers) {
      const CLI::Option* const option = parser->get_option_no_throw(name);
      if (option != nullptr && option->get_items_expected_max() == 0) return argument.left(end);
    }
  }
  return {};
}

}  // namespace

Result<ParsedCommandLine> ParseCommandLine(const QStringList& arguments,
                                           const std::vector<std::unique_ptr<Command>>& commands) {
  GlobalOptions options;
  Request request;
  CLI::App app(QCoreApplication::translate("orvik-diag", "Finds and tests RAID controllers.").toStdString(),
               QCoreApplication::applicationName().toStdString());
  DescribeHelp(app);
  AddGlobalOptions(app, options);
  AddCommands(app, commands, request.command);
  if (const QString flag = FlagWithValue(app, arguments); !flag.isEmpty()) {
    return UsageError(QCoreApplication::translate("orvik-diag", "%1 takes no value").arg(flag));
  }
  try {
    app.parse(Reversed(arguments));
  } catch (const CLI::CallForVersion& version) {
    return ParsedCommandLine(Information{QString::fromStdString(version.what()) + u'\n'});
  } catch (const CLI::CallForHelp&) {
    return ParsedCommandLine(Information{QString::fromStdString(app.help())});
  } catch (const CLI::ParseError& error) {
    return UsageError(QString::fromStdString(error.what()));
  }
  if (request.command == nullptr) return UsageError(QCoreApplication::translate("orvik-diag", "No command given"));
  if (options.machineFile) request.machineFile = QString::fromStdString(*options.machineFile);
  request.moduleFile = QString::fromStdString(options.moduleFile);
  request.hideSerials = options.hideSerials;
  return ParsedCommandLine(request);
}

bool WantsJson(const QStringList& arguments) {
  return std::any_of(arguments.begin(), arguments.end(), [](const QString& argument) {
    return argument == QLatin1String("--json") || argument.startsWith(QLatin1String("--json="));
  });
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
