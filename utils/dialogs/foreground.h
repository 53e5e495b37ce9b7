#pragma once

// The system lets a program come forward that has just had input, so the program gives itself some.

#include <QWidget>

#include <windows.h>

namespace orvik::utils {

/// One synthetic key event; `flags`: 0 is a press, KEYEVENTF_KEYUP a release.
void SendKey(WORD virtualKey, DWORD flags);

/// Asks the system to bring the window forward; it may decline. GUI thread only.
void BringForward(const QWidget& window);

}  // namespace orvik::utils
