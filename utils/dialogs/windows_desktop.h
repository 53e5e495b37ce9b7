#pragma once

// The Windows desktop as dialogs use it: colours, high contrast, screen readers, the foreground and the user's
// folders. GUI thread only.

#include <QColor>
#include <QList>
#include <QWidget>
#include <cstdint>
#include <string>

#include <windows.h>

#include "utils/dialogs/high_contrast_style.h"

/// Whether a screen reader is running: one that the system reports, or the system's own, which holds a named mutex.
bool IsNarratorRunning();

namespace orvik::utils {

bool IsHighContrastOn();

/// The system's colours, opaque. Entry k is the colour of system index k up to 24, and of index k + 1 from there on,
/// because index 25 is unused: 30 entries.
QList<QColor> SystemColors();

/// Picks the colours of a high-contrast style sheet from `colors`, which `SystemColors` returned.
HighContrastColors ColorsForHighContrast(const QList<QColor>& colors);

/// Sends one synthetic key event, because the system lets only programs with recent input come to the foreground.
/// `flags`: 0 for a press, KEYEVENTF_KEYUP for a release.
void SendKey(WORD virtualKey, DWORD flags);

/// Asks the system to bring the window to the foreground; it may refuse.
void BringForward(const QWidget& window);

/// The framework's folder kinds; only the temporary one is needed here.
enum class FolderKind : std::uint32_t { Temporary = 9 };

/// UTF-8 path of a folder of the current user, ending in a backslash; empty when the system does not report it. The
/// folder need not exist.
std::string FolderPath(FolderKind kind);

}  // namespace orvik::utils
