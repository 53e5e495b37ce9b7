#pragma once

// The bounded functions of the Windows runtime library. On Windows <stdio.h>, <stdlib.h>, <string.h> and <time.h>
// declare them; elsewhere <windows.h> does.

#include <cstdarg>
#include <cstdio>
#include <ctime>

#include "windef.h"

using __time64_t = std::int64_t;

inline constexpr std::size_t _TRUNCATE = static_cast<std::size_t>(-1);
/// The destination holds as much as fits.
inline constexpr errno_t STRUNCATE = 80;

extern "C" {

int vsprintf_s(char* buffer, std::size_t size, const char* format, std::va_list arguments);
int vfprintf_s(std::FILE* file, const char* format, std::va_list arguments);
errno_t strncpy_s(char* destination, std::size_t size, const char* source, std::size_t count);
errno_t strncat_s(char* destination, std::size_t size, const char* source, std::size_t count);
char* strtok_s(char* text, const char* delimiters, char** next);
errno_t wcstombs_s(std::size_t* converted, char* destination, std::size_t size, const WCHAR* source,
                   std::size_t count);
errno_t mbstowcs_s(std::size_t* converted, WCHAR* destination, std::size_t size, const char* source,
                   std::size_t count);
errno_t _localtime64_s(std::tm* result, const __time64_t* time);
}
