#include "utils/dialogs/narrator.h"

#include <windows.h>

#include "utils/windows/unique_handle.h"

bool IsNarratorRunning() {
  BOOL screenReader = FALSE;
  if (SystemParametersInfoW(SPI_GETSCREENREADER, 0, &screenReader, 0) != FALSE && screenReader != FALSE) return true;
  HANDLE mutex = OpenMutexW(READ_CONTROL, FALSE, TEXT("NarratorRunning"));
  if (mutex == nullptr) return false;
  const orvik::utils::UniqueHandle closes(mutex);
  return true;
}
