#pragma once

#include <random>

#include "simulation/machine/machine.h"

namespace orvik::benchmarks {

/// A machine of any size from none to some controllers of either family, in any state of health, on which some calls
/// fail. Its clock runs so fast that a consistency check ends in a millisecond.
simulation::MachineDescription RandomMachine(std::minstd_rand& random);

}  // namespace orvik::benchmarks
