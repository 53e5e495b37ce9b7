#pragma once

#include "windef.h"

inline constexpr UINT WM_THEMECHANGED = 0x031A;

inline constexpr UINT SPI_GETHIGHCONTRAST = 0x0042;
inline constexpr UINT SPI_GETSCREENREADER = 0x0046;

inline constexpr DWORD HCF_HIGHCONTRASTON = 0x00000001;
inline constexpr DWORD HCF_AVAILABLE = 0x00000002;

inline constexpr int COLOR_BACKGROUND = 1;
inline constexpr int COLOR_WINDOWTEXT = 8;
inline constexpr int COLOR_HIGHLIGHT = 13;
inline constexpr int COLOR_HIGHLIGHTTEXT = 14;
inline constexpr int COLOR_BTNFACE = 15;
inline constexpr int COLOR_GRAYTEXT = 17;
inline constexpr int COLOR_BTNTEXT = 18;
inline constexpr int COLOR_INFOTEXT = 23;

inline constexpr DWORD INPUT_KEYBOARD = 1;
inline constexpr DWORD KEYEVENTF_KEYUP = 0x0002;
inline constexpr WORD VK_LEFT = 0x25;
inline constexpr WORD VK_NUMPAD1 = 0x61;

inline constexpr DWORD MONITOR_DEFAULTTOPRIMARY = 0x00000001;

struct MSG {
  HWND hwnd;
  UINT message;
  WPARAM wParam;
  LPARAM lParam;
  DWORD time;
  POINT pt;
};

struct HIGHCONTRASTW {
  UINT cbSize;
  DWORD dwFlags;
  LPWSTR lpszDefaultScheme;
};

struct MOUSEINPUT {
  LONG dx;
  LONG dy;
  DWORD mouseData;
  DWORD dwFlags;
  DWORD time;
  ULONG_PTR dwExtraInfo;
};

struct KEYBDINPUT {
  WORD wVk;
  WORD wScan;
  DWORD dwFlags;
  DWORD time;
  ULONG_PTR dwExtraInfo;
};

struct INPUT {
  DWORD type;
  union {
    MOUSEINPUT mi;
    KEYBDINPUT ki;
  };
};
using LPINPUT = INPUT*;

extern "C" {

BOOL WINAPI SystemParametersInfoW(UINT action, UINT parameter, PVOID value, UINT profile);
/// 0x00bbggrr; 0 for an index that has no colour.
DWORD WINAPI GetSysColor(int index);
/// The number of accepted records.
UINT WINAPI SendInput(UINT count, LPINPUT inputs, int size);
BOOL WINAPI SetForegroundWindow(HWND window);
HWND WINAPI GetDesktopWindow();
HMONITOR WINAPI MonitorFromWindow(HWND window, DWORD flags);
}
