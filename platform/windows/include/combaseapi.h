#pragma once

#include "windef.h"

extern "C" {

/// Releases what a function of the shell handed out; null is nothing.
void WINAPI CoTaskMemFree(LPVOID memory);
}
