// The registry and the clock of the machine.

#include <windows.h>

#include <algorithm>

#include "platform/windows/system.h"
#include "platform/windows/wide_text.h"
#include "simulation/machine/current_machine.h"

namespace windows = orvik::platform::windows;

namespace {

std::string Narrow(LPCWSTR text) {
  return text == nullptr ? std::string() : windows::ToUtf8(text);
}

LSTATUS Status(DWORD error) {
  return static_cast<LSTATUS>(error);
}

}  // namespace

LSTATUS WINAPI RegGetValueW(HKEY key, LPCWSTR subKey, LPCWSTR value, DWORD flags, LPDWORD type, PVOID data,
                            LPDWORD size) {
  const auto machine = orvik::simulation::CurrentMachine();
  if (const auto error = windows::InjectedError(*machine, "RegGetValueW")) return Status(*error);
  if (key != HKEY_LOCAL_MACHINE) return Status(ERROR_INVALID_HANDLE);
  if (data != nullptr && size == nullptr) return Status(ERROR_INVALID_PARAMETER);
  const auto found = machine->Registry().Find(Narrow(subKey), Narrow(value));
  if (!found) return Status(ERROR_FILE_NOT_FOUND);
  if ((flags & RRF_RT_REG_SZ) == 0) return Status(ERROR_UNSUPPORTED_TYPE);

  const windows::WideString text = windows::ToWide(*found);
  const auto required = static_cast<DWORD>((text.size() + 1) * sizeof(WCHAR));
  if (type != nullptr) *type = REG_SZ;
  if (size == nullptr) return ERROR_SUCCESS;
  const DWORD room = *size;
  *size = required;
  if (data == nullptr) return ERROR_SUCCESS;
  if (room < required) return Status(ERROR_MORE_DATA);
  std::copy_n(text.c_str(), text.size() + 1, static_cast<WCHAR*>(data));
  return ERROR_SUCCESS;
}

ULONGLONG WINAPI GetTickCount64() {
  return orvik::simulation::CurrentMachine()->Clock().Milliseconds();
}
