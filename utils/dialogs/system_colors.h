#pragma once

#include <QColor>
#include <QList>

#include "utils/dialogs/high_contrast_style.h"

namespace orvik::utils {

/// Whether the user wants windows in high contrast.
bool IsHighContrastOn();

/// The system's colours by index: entry k is that of index k for k up to 24 and of index k + 1 after it, because
/// index 25 has none. 30 entries, opaque.
QList<QColor> SystemColors();

/// Those of them that a style sheet in high contrast uses; `colors` as `SystemColors` returns it.
HighContrastColors ColorsForHighContrast(const QList<QColor>& colors);

}  // namespace orvik::utils
