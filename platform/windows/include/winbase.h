#pragma once

#include "windef.h"

extern "C" {

/// `size` counts characters, the terminating zero included: the room before the call, what is needed after it.
BOOL WINAPI GetUserNameW(LPWSTR buffer, LPDWORD size);
}
