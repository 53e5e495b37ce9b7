#pragma once

/// Whether someone reads the screen to the user: what the system says about it, or its own screen reader's mutex.
bool IsNarratorRunning();
