#pragma once

#include <QJsonArray>
#include <QJsonValue>
#include <cstdint>
#include <limits>
#include <optional>
#include <string>
#include <vector>

#include "host/text/display_text.h"

namespace orvik::host {

/// A whole number; exact up to 2^63, the nearest one beyond.
inline QJsonValue JsonNumber(std::uint64_t number) {
  constexpr auto kLargestExact = static_cast<std::uint64_t>(std::numeric_limits<qint64>::max());
  return number <= kLargestExact ? QJsonValue(static_cast<qint64>(number)) : QJsonValue(static_cast<double>(number));
}

inline QJsonValue JsonNumber(const std::optional<std::uint64_t>& number) {
  return number ? JsonNumber(*number) : QJsonValue(QJsonValue::Null);
}

inline QJsonArray JsonTexts(const std::vector<std::string>& texts) {
  QJsonArray array;
  for (const std::string& text : texts) array.append(RawText(text));
  return array;
}

}  // namespace orvik::host
