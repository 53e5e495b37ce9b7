// The system's "shcore.dll": a library of its own, because programs load it at run time.

#include <windows.h>

#include <shellscalingapi.h>

#include "simulation/machine/current_machine.h"

namespace simulation = orvik::simulation;

HRESULT WINAPI SetProcessDpiAwareness(PROCESS_DPI_AWARENESS awareness) {
  simulation::CurrentMachine()->Desktop().RecordDpiAwareness(static_cast<std::uint32_t>(awareness));
  return S_OK;
}

HRESULT WINAPI GetDpiForMonitor(HMONITOR monitor, MONITOR_DPI_TYPE /*type*/, UINT* dpiX, UINT* dpiY) {
  const auto machine = simulation::CurrentMachine();
  if (machine->Faults().OnCall({"GetDpiForMonitor"}).error) return E_FAIL;
  if (monitor == nullptr || dpiX == nullptr || dpiY == nullptr) return E_INVALIDARG;
  *dpiX = *dpiY = machine->Desktop().State().dpi;
  return S_OK;
}
