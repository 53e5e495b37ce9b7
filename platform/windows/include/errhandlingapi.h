#pragma once

#include "windef.h"

extern "C" {

/// The calling thread's last error. Functions that succeed may leave it as it was.
DWORD WINAPI GetLastError();
void WINAPI SetLastError(DWORD code);
}
