#pragma once

#include "windef.h"

extern "C" {

/// The calling thread's last error. Functions that succeed may leave it unchanged.
DWORD WINAPI GetLastError();
void WINAPI SetLastError(DWORD code);
}
