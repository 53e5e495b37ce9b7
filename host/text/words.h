#pragma once

#include <QString>

#include "module/storage/status.h"

namespace orvik::host {

enum class Colour { Plain, Bold, Green, Yellow, Red, Cyan };

/// A value of an enumeration in words.
struct Word {
  const char* stable;  ///< for programs: the same in every language and version
  QString shown;       ///< for people, translated
  Colour colour = Colour::Plain;
};

/// Colours text with escape sequences, or returns it unchanged.
class Palette {
 public:
  explicit Palette(bool coloured) : coloured_(coloured) {}

  QString Paint(Colour colour, const QString& text) const {
    if (!coloured_ || colour == Colour::Plain) return text;
    return QStringLiteral("\x1b[%1m%2\x1b[0m").arg(QString::number(CodeOf(colour)), text);
  }

  QString Paint(const Word& word) const { return Paint(word.colour, word.shown); }

 private:
  static int CodeOf(Colour colour) {
    switch (colour) {
      case Colour::Bold: return 1;
      case Colour::Red: return 31;
      case Colour::Green: return 32;
      case Colour::Yellow: return 33;
      case Colour::Cyan: return 36;
      case Colour::Plain: break;
    }
    return 0;
  }

  bool coloured_;
};

/// The status code in words.
Word StatusWord(module::storage::Status status);

/// For people: the word and the number.
QString StatusText(module::storage::Status status);

}  // namespace orvik::host
