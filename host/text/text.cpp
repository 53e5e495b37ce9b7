#include "host/text/text.h"

#include <QCoreApplication>
#include <QList>
#include <QLocale>
#include <algorithm>
#include <iterator>
#include <limits>

namespace orvik::host {
namespace {

constexpr QLatin1String kFolder(":/i18n");

bool IsKeyCharacter(char character) {
  return (character >= 'A' && character <= 'Z') || (character >= '0' && character <= '9') || character == '_';
}

bool IsPadding(QChar character) {
  return character.isSpace() || character.isNull();
}

// Characters that could move the cursor, change colours or reorder the line.
bool IsUnsafe(char32_t character) {
  switch (QChar::category(character)) {
    case QChar::Other_Control:
    case QChar::Other_Format:
    case QChar::Separator_Line:
    case QChar::Separator_Paragraph: return true;
    default: return false;
  }
}

QString Escaped(char32_t character) {
  const bool fitsByte = character <= 0xFF;
  return (fitsByte ? QStringLiteral("\\x%1") : QStringLiteral("\\u{%1}"))
      .arg(static_cast<uint>(character), fitsByte ? 2 : 4, 16, QLatin1Char('0'));
}

}  // namespace

QString RawText(std::string_view text) {
  return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

QString DisplayText(std::string_view text) {
  const QString raw = RawText(text);
  qsizetype begin = 0;
  qsizetype end = raw.size();
  while (begin < end && IsPadding(raw[begin])) ++begin;
  while (end > begin && IsPadding(raw[end - 1])) --end;

  QString shown;
  for (const char32_t character : raw.mid(begin, end - begin).toUcs4()) {
    // A text of several padded fields has runs of blanks in the middle.
    if (character == U' ' && shown.endsWith(QLatin1Char(' '))) continue;
    shown += IsUnsafe(character) ? Escaped(character) : QString::fromUcs4(&character, 1);
  }
  return shown;
}

QString CauseOf(const std::exception& exception) {
  return QString::fromUtf8(exception.what()).simplified();
}

QString WithChoices(const QString& problem, const QStringList& available) {
  const QString list =
      available.isEmpty()
          ? QCoreApplication::translate("orvik-diag", "none available")
          : QCoreApplication::translate("orvik-diag", "available: %1").arg(available.join(QStringLiteral(", ")));
  return QStringLiteral("%1; %2").arg(problem, list);
}

QJsonValue JsonNumber(std::uint64_t number) {
  constexpr auto kLargestExact = static_cast<std::uint64_t>(std::numeric_limits<qint64>::max());
  return number <= kLargestExact ? QJsonValue(static_cast<qint64>(number)) : QJsonValue(static_cast<double>(number));
}

QJsonValue JsonNumber(const std::optional<std::uint64_t>& number) {
  return number ? JsonNumber(*number) : QJsonValue(QJsonValue::Null);
}

QJsonValue JsonTextOrNull(const QString& text) {
  return text.isEmpty() ? QJsonValue(QJsonValue::Null) : QJsonValue(text);
}

QJsonArray JsonTexts(const std::vector<std::string>& texts) {
  QJsonArray array;
  for (const std::string& text : texts) array.append(RawText(text));
  return array;
}

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
