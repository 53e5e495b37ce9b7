#include "host/text/display_text.h"

#include <QList>

namespace orvik::host {
namespace {

bool IsPadding(QChar character) {
  return character.isSpace() || character.isNull();
}

// What could move the cursor, change colours or reorder the line that it stands in.
bool IsUnsafe(char32_t character) {
  switch (QChar::category(character)) {
    case QChar::Other_Control:
    case QChar::Other_Format:
    case QChar::Separator_Line:
    case QChar::Separator_Paragraph: return true;
    default: return false;
  }
}

QString Spelt(char32_t character) {
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
    // Blanks that pad one part of a text stand in the middle of the whole.
    if (character == U' ' && shown.endsWith(QLatin1Char(' '))) continue;
    shown += IsUnsafe(character) ? Spelt(character) : QString::fromUcs4(&character, 1);
  }
  return shown;
}

}  // namespace orvik::host
