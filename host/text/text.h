#pragma once

#include <QJsonArray>
#include <QJsonValue>
#include <QString>
#include <QStringList>
#include <QTranslator>
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

/// Installs the program's translations while it exists: English, and above it the requested language. Main thread.
class Translations {
 public:
  /// `language` is a code such as "de" or "de_AT"; empty selects the system's language. An unknown language leaves
  /// English.
  explicit Translations(const QString& language);

  /// The English text of a module's key in any language; the key itself if it has none.
  QString English(const std::string& key) const;

 private:
  QTranslator english_;
  QTranslator chosen_;
};

/// A message of the module taken apart: its upper-case key, the separator (": ", one space, or nothing) and the
/// value.
struct MessageParts {
  std::string_view key;
  std::string_view separator;
  std::string_view value;
};

/// Parts of `text`, which must outlive them. A text that does not begin with a key is all key.
MessageParts SplitMessage(std::string_view text);

/// The module's key in the user's language; an unknown key unchanged.
QString TranslateKey(std::string_view key);

/// The whole message in the user's language: key translated, value kept.
QString TranslateMessage(std::string_view text);

}  // namespace orvik::host
