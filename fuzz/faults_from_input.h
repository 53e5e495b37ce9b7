#pragma once

#include "fuzz/input.h"
#include "simulation/faults/fault_book.h"

namespace orvik::fuzz {

/// Lets the input decide how each packet and each command to the vendor's library is answered: as the machine has it,
/// patched, replaced, cut or not at all. When the input ends, the machine is healthy. The input must outlive the use.
simulation::FaultSource FaultsFrom(Input& input);

}  // namespace orvik::fuzz
