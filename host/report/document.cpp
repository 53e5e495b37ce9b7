#include "host/report/document.h"

#include <QCoreApplication>
#include <QJsonArray>
#include <QJsonDocument>

#include "host/text/display_text.h"

namespace orvik::host {
namespace {

constexpr int kFormat = 1;

QString VersionText(const core::ModuleVersion& version) {
  return QStringLiteral("%1.%2.%3%4")
      .arg(QString::number(version.major), QString::number(version.minor), QString::number(version.patch),
           RawText(version.suffix));
}

}  // namespace

QJsonObject ModuleJson(const core::Module& module) {
  return {
      {"shortName", RawText(module.GetShortName())},
      {"name", RawText(module.GetName())},
      {"version", VersionText(module.GetVersion())},
  };
}

QByteArray JsonDocument(const QString& command, const QJsonValue& module, const CommandResult& result) {
  QJsonObject document = result.sections;
  document["format"] = kFormat;
  document["program"] =
      QJsonObject{{"name", QCoreApplication::applicationName()}, {"version", QCoreApplication::applicationVersion()}};
  document["command"] = command.isEmpty() ? QJsonValue(QJsonValue::Null) : QJsonValue(command);
  document["module"] = module;
  QJsonArray errors;
  for (const QString& error : result.errors) errors.append(QJsonObject{{"message", error}});
  document["errors"] = errors;
  document["exitCode"] = static_cast<int>(result.exitCode);
  return QJsonDocument(document).toJson();
}

}  // namespace orvik::host
