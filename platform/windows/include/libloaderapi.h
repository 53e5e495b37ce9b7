#pragma once

#include "windef.h"

inline constexpr DWORD GET_MODULE_HANDLE_EX_FLAG_UNCHANGED_REFCOUNT = 0x2;
inline constexpr DWORD GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS = 0x4;

extern "C" {

/// Takes '\' and '/' as separators.
HMODULE WINAPI LoadLibraryW(LPCWSTR path);
FARPROC WINAPI GetProcAddress(HMODULE library, LPCSTR name);
BOOL WINAPI FreeLibrary(HMODULE library);
BOOL WINAPI GetModuleHandleExW(DWORD flags, LPCWSTR nameOrAddress, HMODULE* library);
DWORD WINAPI GetModuleFileNameW(HMODULE library, LPWSTR path, DWORD size);
}
