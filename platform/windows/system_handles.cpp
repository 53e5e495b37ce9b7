#include "platform/windows/system_handles.h"

// There is no Windows beneath the machine here, so nothing but the machine's.
bool orvik::platform::windows::CloseSystemHandle(HANDLE /*handle*/) {
  return false;
}

bool orvik::platform::windows::FreeSystemMemory(void* /*memory*/) {
  return false;
}
