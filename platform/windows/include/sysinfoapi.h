#pragma once

#include "windef.h"

extern "C" {

/// Milliseconds since the machine started, by its own clock, which may run faster than real time.
ULONGLONG WINAPI GetTickCount64();
}
