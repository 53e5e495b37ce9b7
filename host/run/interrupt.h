#pragma once

#include "core/run_arguments.h"

namespace orvik::host {

/// Non-zero once the user has asked the program to stop. Every run gets it as its abort flag.
const core::AbortFlag& InterruptFlag();

/// Lets Ctrl-C (and a termination request) set the flag; a second one ends the program at once.
void CatchInterrupts();

}  // namespace orvik::host
