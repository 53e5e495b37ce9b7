#include "tests/host/host_process.h"

#include <gtest/gtest.h>

#include <QFile>
#include <QFileInfo>
#include <QJsonDocument>
#include <QProcessEnvironment>
#include <valijson/adapters/qtjson_adapter.hpp>
#include <valijson/schema.hpp>
#include <valijson/schema_parser.hpp>
#include <valijson/validation_results.hpp>
#include <valijson/validator.hpp>

#include "tests/host/fake_module.h"

namespace orvik::tests {
namespace {

constexpr int kPatienceMilliseconds = 60000;

QByteArray Contents(const QString& path) {
  QFile file(path);
  return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

}  // namespace

HostProcess::HostProcess() {
  EXPECT_TRUE(QFile::copy(HOST_PROGRAM, PathOf(QFileInfo(HOST_PROGRAM).fileName())));
  environment_[kLogEnvironment] = PathOf("log");
  environment_["LANG"] = "C.UTF-8";
}

void HostProcess::InstallModule() const {
  EXPECT_TRUE(QFile::copy(FAKE_MODULE, PathOf("ovk_module_raid." + QFileInfo(FAKE_MODULE).suffix())));
}

void HostProcess::InstallSimulation() const {
  EXPECT_TRUE(QFile::copy(FAKE_SIMULATION, PathOf("orvik_simulation." + QFileInfo(FAKE_SIMULATION).suffix())));
}

void HostProcess::Start(QProcess& process, const QStringList& arguments) const {
  QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
  for (const char* const name : {"ORVIK_MACHINE", "LANGUAGE", "LC_ALL", "NO_COLOR"}) environment.remove(name);
  for (auto entry = environment_.begin(); entry != environment_.end(); ++entry) {
    environment.insert(entry.key(), entry.value());
  }
  process.setProcessEnvironment(environment);
  process.start(PathOf(QFileInfo(HOST_PROGRAM).fileName()), arguments);
  EXPECT_TRUE(process.waitForStarted(kPatienceMilliseconds));
}

Finished HostProcess::Run(const QStringList& arguments) const {
  QProcess process;
  Start(process, arguments);
  EXPECT_TRUE(process.waitForFinished(kPatienceMilliseconds)) << arguments.join(' ').toStdString();
  EXPECT_EQ(process.exitStatus(), QProcess::NormalExit);
  return {process.exitCode(), process.readAllStandardOutput(), process.readAllStandardError()};
}

QStringList HostProcess::LogLines() const {
  return QString::fromUtf8(Contents(PathOf("log"))).split('\n', Qt::SkipEmptyParts);
}

QJsonObject CheckedDocument(const QByteArray& output) {
  QJsonParseError error{};
  const QJsonDocument document = QJsonDocument::fromJson(output, &error);
  EXPECT_TRUE(document.isObject()) << error.errorString().toStdString() << '\n' << output.toStdString();

  const QJsonDocument schemaDocument = QJsonDocument::fromJson(Contents(HOST_SCHEMA));
  EXPECT_TRUE(schemaDocument.isObject());
  const QJsonValue schemaValue(schemaDocument.object());
  valijson::Schema schema;
  valijson::SchemaParser(valijson::SchemaParser::kDraft7)
      .populateSchema(valijson::adapters::QtJsonAdapter(schemaValue), schema);
  const QJsonValue value(document.object());
  valijson::ValidationResults results;
  if (!valijson::Validator().validate(schema, valijson::adapters::QtJsonAdapter(value), &results)) {
    for (const valijson::ValidationResults::Error& each : results) {
      std::string place;
      for (const std::string& step : each.context) place += step;
      ADD_FAILURE() << place << ": " << each.description;
    }
  }
  return document.object();
}

}  // namespace orvik::tests
