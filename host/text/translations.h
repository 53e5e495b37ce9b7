#pragma once

#include <QString>
#include <QTranslator>
#include <string>

namespace orvik::host {

/// Installs the program's texts for as long as it lives: English, and above it the language asked for.
class Translations {
 public:
  /// `language` is a code such as "de" or "de_AT"; empty takes the system's. One that there is not leaves English.
  explicit Translations(const QString& language);

  /// The English text of a key of the module, whatever language is chosen; the key when there is none.
  QString English(const std::string& key) const;

 private:
  QTranslator english_;
  QTranslator chosen_;
};

}  // namespace orvik::host
