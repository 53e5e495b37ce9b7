#include <QApplication>
#include <exception>
#include <optional>

#include "host/cli/command_line.h"
#include "host/cli/process.h"
#include "host/library/libraries.h"
#include "host/terminal/terminal.h"
#include "host/text/text.h"

namespace orvik::host {
namespace {

// What a call prints.
struct Output {
  QString command;
  QJsonValue module = QJsonValue::Null;
  Report report;
};

std::optional<QString> MachineFile(const Request& request) {
  if (request.machineFile) return request.machineFile;
  const QString fromEnvironment = qEnvironmentVariable("ORVIK_MACHINE");
  return fromEnvironment.isEmpty() ? std::nullopt : std::optional<QString>(fromEnvironment);
}

Result<Report> LoadAndExecute(const Request& request, const Translations& translations, OutputFormat format,
                              QJsonValue& module) {
  // First the machine: the module looks for it when it is loaded.
  const std::optional<QString> machineFile = MachineFile(request);
  if (machineFile) {
    if (const Result<void> opened = OpenSimulatedMachine(*machineFile); !opened.Ok()) return opened.Error();
  }
  const Result<std::unique_ptr<ModuleLibrary>> library =
      ModuleLibrary::Open(request.moduleFile, machineFile.has_value());
  if (!library.Ok()) return library.Error();
  module = ModuleJson(library.Value()->Module());
  return request.command->Execute({library.Value()->Module(), translations, InterruptFlag(), format,
                                   Palette(OutputTakesColours()), request.hideSerials,
                                   MissingVendorLibrary(machineFile.has_value())});
}

Output Answer(const Request& request, const Translations& translations, OutputFormat format) {
  Output output;
  output.command = QLatin1String(request.command->Name());
  CatchInterrupts();
  try {
    Result<Report> report = LoadAndExecute(request, translations, format, output.module);
    output.report = report.Ok() ? std::move(report).Value() : ReportOf(report.Error());
  } catch (const std::exception& exception) {
    output.report = ReportOf({CauseOf(exception)});
  }
  if (InterruptFlag().load() != 0) {
    output.report.errors += QCoreApplication::translate("orvik-diag", "Interrupted");
    output.report.exitCode = ExitCode::NoVerdict;
  }
  return output;
}

void WriteError(const QString& error) {
  Write(Stream::Error, QStringLiteral("%1: %2\n").arg(QCoreApplication::applicationName(), error).toUtf8());
}

QByteArray TextWithNotes(const Report& report) {
  QString text = report.text;
  for (const QString& note : report.notes) {
    text += QCoreApplication::translate("orvik-diag", "Note: %1").arg(note) + u'\n';
  }
  return text.toUtf8();
}

int Print(const Output& output, OutputFormat format) {
  const Report& report = output.report;
  for (const QString& error : report.errors) WriteError(error);
  const QByteArray text =
      format == OutputFormat::Json ? JsonDocument(output.command, output.module, report) : TextWithNotes(report);
  if (Write(Stream::Output, text)) return static_cast<int>(report.exitCode);
  WriteError(QCoreApplication::translate("orvik-diag", "Could not write the output"));
  return static_cast<int>(ExitCode::NoVerdict);
}

int RunProgram(const QStringList& arguments) {
  PrepareConsole();
  const OutputFormat format = WantsJson(arguments) ? OutputFormat::Json : OutputFormat::Text;
  const Translations translations(WantedLanguage(arguments));
  const std::vector<std::unique_ptr<Command>> commands = AllCommands();
  const Result<ParsedCommandLine> parsed = ParseCommandLine(arguments, commands);
  if (!parsed.Ok()) {
    Output output;
    output.report = ReportOf(parsed.Error());
    return Print(output, format);
  }
  if (const auto* const information = std::get_if<Information>(&parsed.Value())) {
    return Write(Stream::Output, information->text.toUtf8()) ? 0 : static_cast<int>(ExitCode::NoVerdict);
  }
  return Print(Answer(std::get<Request>(parsed.Value()), translations, format), format);
}

}  // namespace
}  // namespace orvik::host

int main(int argc, char** argv) {
  orvik::host::PrepareToolkit();
  // Widgets, because the module asks its questions in windows.
  const QApplication application(argc, argv);
  QCoreApplication::setApplicationName(QStringLiteral("orvik-diag"));
  QCoreApplication::setApplicationVersion(QStringLiteral(ORVIK_DIAG_VERSION));
  return orvik::host::RunProgram(QCoreApplication::arguments().mid(1));
}
