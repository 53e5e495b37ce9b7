#pragma once

#include <memory>

#include "simulation/machine/machine.h"

namespace orvik::simulation {

/// The machine of this process: the installed one, else the one described by the file that the environment variable
/// ORVIK_MACHINE names, else an empty machine. A file that cannot be loaded is reported on the standard error stream.
/// Thread-safe.
std::shared_ptr<Machine> CurrentMachine();

/// Replaces the current machine. Handles of the old one stay valid.
void InstallMachine(std::shared_ptr<Machine> machine);

}  // namespace orvik::simulation

extern "C" {

/// Loads the machine description at `path` (UTF-8) and installs it. Null on success; otherwise a one-line error
/// text, valid until the calling thread's next call, and the current machine stays.
const char* OrvikSimulationOpen(const char* path);

/// Non-zero unless the vendor's library is missing on the current machine.
int OrvikSimulationHasVendorLibrary();
}
