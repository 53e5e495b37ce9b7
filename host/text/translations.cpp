#include "host/text/translations.h"

#include <QCoreApplication>
#include <QLocale>
#include <algorithm>
#include <iterator>

#include "host/text/format.h"

namespace orvik::host {
namespace {

constexpr QLatin1String kFolder(":/i18n");

bool IsKeyCharacter(char character) {
  return (character >= 'A' && character <= 'Z') || (character >= '0' && character <= '9') || character == '_';
}

}  // namespace

Translations::Translations(const QString& language) {
  if (english_.load(QStringLiteral("orvik_en"), kFolder)) QCoreApplication::installTranslator(&english_);

  const QLocale locale = language.isEmpty() ? QLocale::system() : QLocale(language);
  if (chosen_.load(locale, QStringLiteral("orvik"), QStringLiteral("_"), kFolder))
    QCoreApplication::installTranslator(&chosen_);
}

QString Translations::English(const std::string& key) const {
  const QString text = english_.translate("RAID", key.c_str());
  return text.isEmpty() ? QString::fromStdString(key) : text;
}

MessageParts SplitMessage(std::string_view text) {
  const auto keyEnd = std::find_if_not(text.begin(), text.end(), IsKeyCharacter);
  const auto keySize = static_cast<std::size_t>(std::distance(text.begin(), keyEnd));
  if (keySize == 0 || keySize == text.size()) return {text, {}, {}};

  const std::string_view rest = text.substr(keySize);
  for (const std::string_view separator : {std::string_view(": "), std::string_view(" ")}) {
    if (rest.starts_with(separator)) {
      return {text.substr(0, keySize), rest.substr(0, separator.size()), rest.substr(separator.size())};
    }
  }
  return {text, {}, {}};
}

QString TranslateKey(std::string_view key) {
  if (!std::all_of(key.begin(), key.end(), IsKeyCharacter)) return DisplayText(key);
  return QCoreApplication::translate("RAID", std::string(key).c_str());
}

QString TranslateMessage(std::string_view text) {
  const MessageParts parts = SplitMessage(text);
  return TranslateKey(parts.key) + RawText(parts.separator) + DisplayText(parts.value);
}

}  // namespace orvik::host
