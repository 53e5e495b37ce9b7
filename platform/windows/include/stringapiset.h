#pragma once

#include "windef.h"

inline constexpr UINT CP_UTF8 = 65001;

extern "C" {

int WINAPI WideCharToMultiByte(UINT codePage, DWORD flags, LPCWCH wide, int wideLength, LPSTR narrow, int narrowSize,
                               LPCCH defaultCharacter, LPBOOL usedDefault);
}
