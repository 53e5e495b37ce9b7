#include "tests/host/checked_document.h"

#include <gtest/gtest.h>

#include <QFile>
#include <QJsonDocument>
#include <valijson/adapters/qtjson_adapter.hpp>
#include <valijson/schema.hpp>
#include <valijson/schema_parser.hpp>
#include <valijson/validation_results.hpp>
#include <valijson/validator.hpp>

namespace orvik::tests {
namespace {

QByteArray Contents(const QString& path) {
  QFile file(path);
  return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

}  // namespace

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
