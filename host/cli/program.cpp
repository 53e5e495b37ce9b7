#include "host/cli/program.h"

#include <QCoreApplication>
#include <exception>
#include <variant>

#include "host/cli/command_line.h"
#include "host/library/module_library.h"
#include "host/library/simulation_library.h"
#include "host/report/document.h"
#include "host/run/interrupt.h"
#include "host/terminal/terminal.h"

namespace orvik::host {
namespace {

struct Answer {
  QString command;
  QJsonValue module = QJsonValue::Null;
  CommandResult result;
};

std::optional<QString> MachineFile(const Request& request) {
  if (request.machineFile) return request.machineFile;
  const QString fromEnvironment = qEnvironmentVariable("ORVIK_MACHINE");
  return fromEnvironment.isEmpty() ? std::nullopt : std::optional<QString>(fromEnvironment);
}

void Perform(const Request& request, const Translations& translations, Answer& answer) {
  // The module looks at its machine while it is being loaded.
  const std::optional<QString> machineFile = MachineFile(request);
  if (machineFile) {
    if (const std::optional<QString> error = OpenSimulatedMachine(*machineFile)) {
      answer.result = CouldNotTell(*error);
      return;
    }
  }

  QString error;
  const std::unique_ptr<ModuleLibrary> library =
      ModuleLibrary::Open(request.moduleFile, machineFile.has_value(), error);
  if (library == nullptr) {
    answer.result = CouldNotTell(error);
    return;
  }
  answer.module = ModuleJson(library->Module());
  answer.result = request.command->Execute(
      {library->Module(), translations, InterruptFlag(), Palette::ForOutput(), request.hideSerials});
}

Answer Perform(const Request& request, const Translations& translations) {
  Answer answer;
  answer.command = QLatin1String(request.command->Name());
  CatchInterrupts();
  try {
    Perform(request, translations, answer);
  } catch (const std::exception& exception) {
    answer.result = CouldNotTell(QString::fromUtf8(exception.what()).simplified());
  }
  if (InterruptFlag().load() != 0) {
    answer.result.errors += QCoreApplication::translate("orvik-diag", "Interrupted");
    answer.result.exitCode = ExitCode::CouldNotTell;
  }
  return answer;
}

int Deliver(const Answer& answer, bool asJson) {
  const CommandResult& result = answer.result;
  for (const QString& error : result.errors) {
    Write(Stream::Error, QStringLiteral("%1: %2\n").arg(QCoreApplication::applicationName(), error).toUtf8());
  }
  const QByteArray output = asJson ? JsonDocument(answer.command, answer.module, result) : result.text.toUtf8();
  if (Write(Stream::Output, output)) return static_cast<int>(result.exitCode);
  Write(Stream::Error, QStringLiteral("%1: %2\n")
                           .arg(QCoreApplication::applicationName(),
                                QCoreApplication::translate("orvik-diag", "The output could not be written"))
                           .toUtf8());
  return static_cast<int>(ExitCode::CouldNotTell);
}

}  // namespace

int RunProgram(const QStringList& arguments) {
  PrepareConsole();
  const Translations translations(WantedLanguage(arguments));
  const std::vector<std::unique_ptr<Command>> commands = AllCommands();
  const ParsedCommandLine parsed = ParseCommandLine(arguments, commands);

  if (const auto* const information = std::get_if<Information>(&parsed)) {
    return Write(Stream::Output, information->text.toUtf8()) ? 0 : static_cast<int>(ExitCode::CouldNotTell);
  }
  Answer answer;
  if (const auto* const request = std::get_if<Request>(&parsed)) {
    answer = Perform(*request, translations);
  } else {
    answer.result = CouldNotTell(std::get<UsageError>(parsed).message);
  }
  return Deliver(answer, WantsJson(arguments));
}

}  // namespace orvik::host
