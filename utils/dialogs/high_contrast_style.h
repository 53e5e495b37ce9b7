#pragma once

// Rewrites a style sheet for high contrast, as text.

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

/// Called with the value of an "image" or "icon" property and the path in it. Returns the new value, or nothing to
/// keep the old one.
using IconReplacement = std::function<std::optional<QString>(const QString& value, const QString& path)>;

/// The rules of `styleSheet`, ordered by selector, in high contrast. Accepts any text and drops what is neither a
/// rule nor a declaration.
QString HighContrastStyleSheet(const QString& styleSheet, const HighContrastColors& colors,
                               const IconReplacement& replaceIcon);

}  // namespace orvik::utils
