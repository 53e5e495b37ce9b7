#pragma once

#include <QJsonArray>
#include <QJsonValue>
#include <QString>
#include <QStringList>
#include <cstdint>
#include <exception>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace orvik::host {

/// Text from a device for people: without padding, control characters escaped, invalid UTF-8 replaced.
QString DisplayText(std::string_view text);

/// Text from a device for programs: unchanged except that invalid UTF-8 is replaced.
QString RawText(std::string_view text);

/// The exception's message in one line.
QString CauseOf(const std::exception& exception);

/// One line: what is wrong with the user's choice, then the available choices.
QString WithChoices(const QString& problem, const QStringList& available);

/// A JSON number: exact up to 2^63 - 1, the nearest double above.
QJsonValue JsonNumber(std::uint64_t number);

/// The same, or null without a number.
QJsonValue JsonNumber(const std::optional<std::uint64_t>& number);

/// The text, or null for an empty one.
QJsonValue JsonTextOrNull(const QString& text);

/// Each text as `RawText`.
QJsonArray JsonTexts(const std::vector<std::string>& texts);

}  // namespace orvik::host
