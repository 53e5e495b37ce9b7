// Threads and processors, over POSIX threads.

#include <windows.h>
#include <pthread.h>
#include <sched.h>
#include <unistd.h>

#include "platform/windows/system.h"
#include "simulation/machine/current_machine.h"

namespace windows = orvik::platform::windows;

namespace {

constexpr unsigned kMaskBits = 64;

DWORD_PTR ToMask(const cpu_set_t& processors) {
  DWORD_PTR mask = 0;
  for (unsigned i = 0; i < kMaskBits; ++i) {
    if (CPU_ISSET(i, &processors)) mask |= DWORD_PTR{1} << i;
  }
  return mask;
}

cpu_set_t ToSet(DWORD_PTR mask) {
  cpu_set_t processors;
  CPU_ZERO(&processors);
  for (unsigned i = 0; i < kMaskBits; ++i) {
    if ((mask >> i & 1) != 0) CPU_SET(i, &processors);
  }
  return processors;
}

// The process's processors at the first call.
DWORD_PTR ProcessMask() {
  static const DWORD_PTR mask = [] {
    cpu_set_t processors;
    CPU_ZERO(&processors);
    return sched_getaffinity(getpid(), sizeof(processors), &processors) == 0 ? ToMask(processors) : 0;
  }();
  return mask;
}

}  // namespace

HANDLE WINAPI GetCurrentThread() {
  // The value of the system's pseudo handle.
  return reinterpret_cast<HANDLE>(~ULONG_PTR{1});  // NOLINT(performance-no-int-to-ptr)
}

DWORD_PTR WINAPI SetThreadAffinityMask(HANDLE thread, DWORD_PTR mask) {
  const auto machine = orvik::simulation::CurrentMachine();
  machine->Ledger().RecordAffinityRequest(mask);
  const auto fail = [](DWORD error) -> DWORD_PTR {
    SetLastError(error);
    return 0;
  };
  if (const auto error = windows::InjectedError(*machine, "SetThreadAffinityMask")) return fail(*error);
  if (thread != GetCurrentThread()) return fail(ERROR_INVALID_HANDLE);

  cpu_set_t previous;
  CPU_ZERO(&previous);
  if (pthread_getaffinity_np(pthread_self(), sizeof(previous), &previous) != 0) return fail(ERROR_INVALID_PARAMETER);
  // The mask must be a subset of the process's.
  if (mask == 0 || (mask & ~ProcessMask()) != 0) return fail(ERROR_INVALID_PARAMETER);
  const cpu_set_t wanted = ToSet(mask);
  if (pthread_setaffinity_np(pthread_self(), sizeof(wanted), &wanted) != 0) return fail(ERROR_INVALID_PARAMETER);
  return ToMask(previous);
}
