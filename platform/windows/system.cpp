// What the system itself does on Windows: the last error and text conversion.

#include "platform/windows/system.h"

#include <algorithm>

#include "platform/windows/wide_text.h"

namespace windows = orvik::platform::windows;

namespace {

thread_local DWORD lastError = NO_ERROR;

}  // namespace

DWORD WINAPI GetLastError() {
  return lastError;
}

void WINAPI SetLastError(DWORD code) {
  lastError = code;
}

// Without Windows beneath the machine, it owns every handle and all memory.
bool windows::CloseSystemHandle(HANDLE /*handle*/) {
  return false;
}

bool windows::FreeSystemMemory(void* /*memory*/) {
  return false;
}

// NOLINTBEGIN(readability-non-const-parameter): the signature is the documented one
int WINAPI WideCharToMultiByte(UINT codePage, DWORD flags, LPCWCH wide, int wideLength, LPSTR narrow, int narrowSize,
                               LPCCH defaultCharacter, LPBOOL usedDefault) {
  // NOLINTEND(readability-non-const-parameter)
  const bool badText = wide == nullptr || wideLength == 0 || wideLength < -1;
  const bool badBuffer = narrowSize < 0 || (narrow == nullptr && narrowSize != 0);
  const bool badDefault = defaultCharacter != nullptr || usedDefault != nullptr;
  if (codePage != CP_UTF8 || badText || badBuffer || badDefault) return windows::Fail(ERROR_INVALID_PARAMETER);
  if (flags != 0) return windows::Fail(ERROR_INVALID_FLAGS);

  windows::WideView text(wide, wideLength < 0 ? 0 : static_cast<std::size_t>(wideLength));
  if (wideLength < 0) text = {wide, windows::WideView(wide).size() + 1};
  const std::string converted = windows::ToUtf8(text);
  if (narrowSize == 0) return static_cast<int>(converted.size());
  if (converted.size() > static_cast<std::size_t>(narrowSize)) return windows::Fail(ERROR_INSUFFICIENT_BUFFER);
  std::ranges::copy(converted, narrow);
  return static_cast<int>(converted.size());
}
