#pragma once

#include <QString>
#include <QTranslator>
#include <string>
#include <string_view>

namespace orvik::host {

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
