#pragma once

#include <memory>

#include "simulation/machine/machine.h"

namespace orvik::simulation {

/// The machine that this process runs on. Unless one has been installed, it is the one that the file named by the
/// environment variable ORVIK_MACHINE describes; without one (or when it cannot be loaded, which is reported on the
/// standard error stream) an empty machine. May be called from several threads.
std::shared_ptr<Machine> CurrentMachine();

/// Replaces the current machine. What has been handed out by the old one stays valid.
void InstallMachine(std::shared_ptr<Machine> machine);

}  // namespace orvik::simulation

extern "C" {

/// Loads the machine description at `path` (UTF-8) and installs it. Null on success; otherwise a one-line error
/// text, valid until the calling thread's next call, and the current machine stays.
const char* OrvikSimulationOpen(const char* path);
}
