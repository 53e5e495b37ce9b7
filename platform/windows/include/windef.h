#pragma once

// Basic Windows types with their 64-bit Windows widths (LLP64), whatever the widths of this platform's own types.

#include <cstddef>
#include <cstdint>

using BYTE = unsigned char;
using PBYTE = BYTE*;
using WORD = std::uint16_t;
using DWORD = std::uint32_t;
using PDWORD = DWORD*;
using LPDWORD = DWORD*;
using LONG = std::int32_t;
using ULONG = std::uint32_t;
using UINT = std::uint32_t;
using BOOL = int;
using LPBOOL = BOOL*;
using ULONGLONG = std::uint64_t;
using ULONG_PTR = std::uint64_t;
using DWORD_PTR = ULONG_PTR;
using WCHAR = char16_t;
using LPWSTR = WCHAR*;
using PWSTR = WCHAR*;
using PCWSTR = const WCHAR*;
using LPCWSTR = const WCHAR*;
using LPSTR = char*;
using LPCSTR = const char*;
using LPCCH = const char*;
using LPCWCH = const WCHAR*;
using PVOID = void*;
using LPVOID = void*;
using HRESULT = LONG;
using WPARAM = std::uint64_t;
using LPARAM = std::int64_t;
using HANDLE = void*;
using HWND = struct HWND__*;
using HMONITOR = struct HMONITOR__*;
using HMODULE = struct HINSTANCE__*;
using FARPROC = void (*)();
using errno_t = int;

static_assert(sizeof(void*) == 8, "the stand-ins follow 64-bit Windows");

#define WINAPI
#define TEXT(literal) u##literal

inline constexpr BOOL FALSE = 0;
inline constexpr BOOL TRUE = 1;

struct POINT {
  LONG x;
  LONG y;
};

struct GUID {
  std::uint32_t Data1;
  std::uint16_t Data2;
  std::uint16_t Data3;
  std::uint8_t Data4[8];

  friend bool operator==(const GUID&, const GUID&) = default;
};
