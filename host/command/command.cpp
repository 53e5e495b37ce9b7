#include "host/command/command.h"

#include <QCoreApplication>
#include <QJsonArray>
#include <QJsonDocument>

#include "host/privacy/hide_serials.h"
#include "host/text/text.h"

namespace orvik::host {
namespace {

constexpr int kFormatVersion = 1;

QString VersionText(const core::ModuleVersion& version) {
  return QStringLiteral("%1.%2.%3%4")
      .arg(QString::number(version.major), QString::number(version.minor), QString::number(version.patch),
           RawText(version.suffix));
}

}  // namespace

Report ReportOf(const Error& error) {
  Report report;
  report.errors += error.text;
  report.exitCode = ExitCode::NoVerdict;
  return report;
}

std::vector<std::unique_ptr<Command>> AllCommands() {
  std::vector<std::unique_ptr<Command>> commands;
  commands.push_back(MakeScanCommand());
  commands.push_back(MakePresenceCommand());
  commands.push_back(MakeListTestsCommand());
  commands.push_back(MakeRunTestsCommand());
  commands.push_back(MakeDrivesCommand());
  commands.push_back(MakeSelfTestCommand());
  return commands;
}

CLI::Option* AddListOption(CLI::App& options, const char* name, std::vector<std::string>& values,
                           const QString& description) {
  return options.add_option(name, values, description.toStdString())->expected(1, -1)->allow_extra_args(false);
}

void AddDeviceOption(CLI::App& options, std::vector<std::string>& values) {
  AddListOption(options, "--device", values,
                QCoreApplication::translate("orvik-diag", "Use only devices with this ID or index"))
      ->type_name(QCoreApplication::translate("orvik-diag", "DEVICE").toStdString());
}

Result<std::vector<ListedDevice>> FindDevices(const CommandContext& context) {
  Result<std::vector<ListedDevice>> devices = ScanDevices(*context.module.GetDeviceScanner());
  if (devices.Ok() && context.hideSerials) {
    for (ListedDevice& device : devices.Value()) HideSerials(device.description);
  }
  return devices;
}

QStringList NotesOnNoDevice(const CommandContext& context) {
  return context.whyNoneFound.isEmpty() ? QStringList() : QStringList(context.whyNoneFound);
}

QString DeviceProblem(const ListedDevice& device, const QString& problem) {
  return QCoreApplication::translate("orvik-diag", "Device %1: %2").arg(QString::number(device.index), problem);
}

QString DeviceProblem(const ListedDevice& device, const QString& part, const QString& problem) {
  return QCoreApplication::translate("orvik-diag", "Device %1, %2: %3")
      .arg(QString::number(device.index), part, problem);
}

QJsonObject ModuleJson(const core::Module& module) {
  return {
      {"shortName", RawText(module.GetShortName())},
      {"name", RawText(module.GetName())},
      {"version", VersionText(module.GetVersion())},
  };
}

QByteArray JsonDocument(const QString& command, const QJsonValue& module, const Report& report) {
  QJsonObject document = report.sections;
  document["format"] = kFormatVersion;
  document["program"] =
      QJsonObject{{"name", QCoreApplication::applicationName()}, {"version", QCoreApplication::applicationVersion()}};
  document["command"] = JsonTextOrNull(command);
  document["module"] = module;
  QJsonArray errors;
  for (const QString& error : report.errors) errors.append(QJsonObject{{"message", error}});
  document["errors"] = errors;
  document["notes"] = QJsonArray::fromStringList(report.notes);
  document["exitCode"] = static_cast<int>(report.exitCode);
  return QJsonDocument(document).toJson();
}

}  // namespace orvik::host
