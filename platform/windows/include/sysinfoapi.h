#pragma once

#include "windef.h"

extern "C" {

/// Milliseconds since the machine started; the machine's time, which may run faster than a wall clock.
ULONGLONG WINAPI GetTickCount64();
}
