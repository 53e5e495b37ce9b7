#pragma once

#include "core/run_arguments.h"

namespace orvik::host {

/// Prepares the toolkit for a command-line program: no remarks on standard error, dialogs that scale themselves, and
/// windows on the user's display or, without one, on none. Call before the application object is created.
void PrepareToolkit();

/// Non-zero once the user has asked the program to stop. Passed to every run as its abort flag.
const core::AbortFlag& InterruptFlag();

/// Makes Ctrl-C, termination requests and a closed console set the flag. A second one ends the program at once.
void CatchInterrupts();

}  // namespace orvik::host
