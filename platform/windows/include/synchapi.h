#pragma once

#include "windef.h"

inline constexpr DWORD READ_CONTROL = 0x00020000;

extern "C" {

/// Null when there is no such mutex.
HANDLE WINAPI OpenMutexW(DWORD access, BOOL inherit, LPCWSTR name);
}
