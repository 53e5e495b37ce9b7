#pragma once

#include <QByteArray>
#include <QJsonObject>

namespace orvik::tests {

/// Parses the JSON document in `output` and validates it against the schema. Fails the test and returns an empty
/// object if it is not JSON.
QJsonObject CheckedDocument(const QByteArray& output);

}  // namespace orvik::tests
