#pragma once

#include <QByteArray>
#include <QJsonObject>

namespace orvik::tests {

/// The one JSON document in `output`, held against the schema; a failed expectation and an empty object otherwise.
QJsonObject CheckedDocument(const QByteArray& output);

}  // namespace orvik::tests
