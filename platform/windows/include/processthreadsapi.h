#pragma once

#include "windef.h"

extern "C" {

HANDLE WINAPI GetCurrentThread();

/// The previous mask; 0 on failure (the mask names no processor of the process).
DWORD_PTR WINAPI SetThreadAffinityMask(HANDLE thread, DWORD_PTR mask);
}
