#pragma once

#include "windef.h"

using HKEY = struct HKEY__*;
using LSTATUS = LONG;

#define HKEY_LOCAL_MACHINE (reinterpret_cast<HKEY>(static_cast<ULONG_PTR>(std::int64_t{-0x7FFFFFFE})))

inline constexpr DWORD REG_SZ = 1;
inline constexpr DWORD RRF_RT_REG_SZ = 0x00000002;

extern "C" {

/// `size` counts bytes, the terminating zero of a text included.
LSTATUS WINAPI RegGetValueW(HKEY key, LPCWSTR subKey, LPCWSTR value, DWORD flags, LPDWORD type, PVOID data,
                            LPDWORD size);
}
