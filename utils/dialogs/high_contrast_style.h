#pragma once

// Rewriting of a style sheet into the system's high-contrast colours: text in, text out.

#include <QString>
#include <functional>
#include <optional>

namespace orvik::utils {

/// Colours as "#rrggbb".
struct HighContrastColors {
  QString windowText;
  QString highlight;
  QString highlightText;
  QString buttonFace;
  QString buttonText;
  QString grayText;
  QString infoText;
  QString background;
};

/// Gets the value of an "image" or "icon" property and the path in it; returns the value to take its place, or
/// nothing to leave it as it is.
using IconReplacement = std::function<std::optional<QString>(const QString& value, const QString& path)>;

/// The rules of `styleSheet`, ordered by selector, in high contrast. Takes any text: what is not a declaration or a
/// rule is dropped.
QString HighContrastStyleSheet(const QString& styleSheet, const HighContrastColors& colors,
                               const IconReplacement& replaceIcon);

}  // namespace orvik::utils
