#include <windows.h>

#include "platform/hostkit/services.h"

namespace hostkit {

std::uint32_t MachineTimer::Now() const {
  return static_cast<std::uint32_t>(GetTickCount64());
}

// The difference is taken modulo 2^32, so that a wrap between the two times does no harm.
double MachineTimer::Elapsed(std::uint32_t start, std::uint32_t end) const {
  return (end - start) / 1000.0;
}

}  // namespace hostkit
