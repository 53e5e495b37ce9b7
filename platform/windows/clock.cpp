#include <windows.h>

#include "simulation/machine/current_machine.h"

ULONGLONG WINAPI GetTickCount64() {
  return orvik::simulation::CurrentMachine()->Clock().Milliseconds();
}
