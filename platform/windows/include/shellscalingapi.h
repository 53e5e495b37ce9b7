#pragma once

// Declared here, exported by "shcore.dll", which programs load at run time because old systems lack it.

#include "windef.h"

enum MONITOR_DPI_TYPE { MDT_EFFECTIVE_DPI = 0, MDT_ANGULAR_DPI = 1, MDT_RAW_DPI = 2 };
enum PROCESS_DPI_AWARENESS {
  PROCESS_DPI_UNAWARE = 0,
  PROCESS_SYSTEM_DPI_AWARE = 1,
  PROCESS_PER_MONITOR_DPI_AWARE = 2
};

extern "C" {

HRESULT WINAPI GetDpiForMonitor(HMONITOR monitor, MONITOR_DPI_TYPE type, UINT* dpiX, UINT* dpiY);
HRESULT WINAPI SetProcessDpiAwareness(PROCESS_DPI_AWARENESS awareness);
}
