#pragma once

// The part of the Windows API that this project uses, for platforms that are not Windows: same names, signatures,
// widths and values as the real headers, implemented over the simulated machine.

#include "bounded_runtime.h"
#include "errhandlingapi.h"
#include "fileapi.h"
#include "libloaderapi.h"
#include "processthreadsapi.h"
#include "stringapiset.h"
#include "synchapi.h"
#include "sysinfoapi.h"
#include "winbase.h"
#include "windef.h"
#include "winerror.h"
#include "winreg.h"
#include "winuser.h"
