// The user's session: its look and colours, and synthetic input and window activation by programs.

#include <windows.h>

#include <algorithm>
#include <bit>
#include <span>

#include "platform/windows/system.h"
#include "platform/windows/wide_text.h"
#include "simulation/machine/current_machine.h"

namespace windows = orvik::platform::windows;
namespace simulation = orvik::simulation;

namespace {

// The machine has one desktop window on one monitor.
constexpr ULONG_PTR kDesktopWindow = 0x10010;
constexpr ULONG_PTR kMonitor = 0x10001;

}  // namespace

BOOL WINAPI SystemParametersInfoW(UINT action, UINT /*parameter*/, PVOID value, UINT /*profile*/) {
  const auto machine = simulation::CurrentMachine();
  if (const auto error = windows::InjectedError(*machine, "SystemParametersInfoW")) return windows::Fail(*error);
  if (value == nullptr) return windows::Fail(ERROR_INVALID_PARAMETER);
  const simulation::DesktopDescription desktop = machine->Desktop().State();
  if (action == SPI_GETSCREENREADER) {
    *static_cast<BOOL*>(value) = desktop.screenReader ? TRUE : FALSE;
    return TRUE;
  }
  if (action != SPI_GETHIGHCONTRAST) return windows::Fail(ERROR_INVALID_PARAMETER);
  auto* const highContrast = static_cast<HIGHCONTRASTW*>(value);
  if (highContrast->cbSize != sizeof(HIGHCONTRASTW)) return windows::Fail(ERROR_INVALID_PARAMETER);
  highContrast->dwFlags = HCF_AVAILABLE | (desktop.highContrast ? HCF_HIGHCONTRASTON : 0U);
  highContrast->lpszDefaultScheme = nullptr;
  return TRUE;
}

DWORD WINAPI GetSysColor(int index) {
  const std::uint32_t color = simulation::CurrentMachine()->Desktop().Color(static_cast<std::uint32_t>(index));
  return (color & 0xFFU) << 16 | (color & 0xFF00U) | (color >> 16 & 0xFFU);
}

UINT WINAPI SendInput(UINT count, LPINPUT inputs, int size) {
  const auto fail = [](DWORD error) -> UINT {
    SetLastError(error);
    return 0;
  };
  const auto machine = simulation::CurrentMachine();
  if (const auto error = windows::InjectedError(*machine, "SendInput")) return fail(*error);
  if (count == 0 || inputs == nullptr || size != int{sizeof(INPUT)}) return fail(ERROR_INVALID_PARAMETER);
  for (const INPUT& input : std::span(inputs, count)) {
    if (input.type != INPUT_KEYBOARD) continue;
    machine->Desktop().RecordKey({input.ki.wVk, input.ki.wScan, input.ki.dwFlags});
  }
  return count;
}

BOOL WINAPI SetForegroundWindow(HWND window) {
  const auto machine = simulation::CurrentMachine();
  if (const auto error = windows::InjectedError(*machine, "SetForegroundWindow")) return windows::Fail(*error);
  machine->Desktop().RecordForeground(std::bit_cast<ULONG_PTR>(window));
  return TRUE;
}

HWND WINAPI GetDesktopWindow() {
  return reinterpret_cast<HWND>(kDesktopWindow);  // NOLINT(performance-no-int-to-ptr): a name, not an address
}

HMONITOR WINAPI MonitorFromWindow(HWND window, DWORD flags) {
  const bool known = window == GetDesktopWindow() || flags == MONITOR_DEFAULTTOPRIMARY;
  // NOLINTNEXTLINE(performance-no-int-to-ptr): a name, not an address
  return reinterpret_cast<HMONITOR>(known ? kMonitor : 0);
}

BOOL WINAPI GetUserNameW(LPWSTR buffer, LPDWORD size) {
  const auto machine = simulation::CurrentMachine();
  if (const auto error = windows::InjectedError(*machine, "GetUserNameW")) return windows::Fail(*error);
  if (size == nullptr) return windows::Fail(ERROR_INVALID_PARAMETER);
  const windows::WideString name = windows::ToWide(machine->Desktop().State().userName);
  const DWORD room = *size;
  *size = static_cast<DWORD>(name.size() + 1);
  if (buffer == nullptr || room < *size) return windows::Fail(ERROR_INSUFFICIENT_BUFFER);
  std::copy_n(name.c_str(), name.size() + 1, buffer);
  return TRUE;
}
