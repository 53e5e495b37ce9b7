#pragma once

#include "windef.h"

extern "C" {

/// Releases memory that a shell function allocated; ignores null.
void WINAPI CoTaskMemFree(LPVOID memory);
}
