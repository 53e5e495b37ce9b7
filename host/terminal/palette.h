#pragma once

#include <QString>

namespace orvik::host {

enum class Colour { Plain, Bold, Green, Yellow, Red, Cyan };

/// Colours text for a terminal, or leaves it as it is.
class Palette {
 public:
  explicit Palette(bool coloured) : coloured_(coloured) {}

  /// For standard output as it is now: coloured on a terminal, unless NO_COLOR asks otherwise.
  static Palette ForOutput();

  QString Paint(Colour colour, const QString& text) const;

 private:
  bool coloured_;
};

}  // namespace orvik::host
