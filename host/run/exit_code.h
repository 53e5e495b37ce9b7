#pragma once

#include "host/run/run.h"

namespace orvik::host {

/// What the program ends with.
enum class ExitCode : int {
  AllRight = 0,      ///< everything passed, or nothing applied
  Warning = 1,       ///< a test ended with a warning
  Failed = 2,        ///< a test failed
  CouldNotTell = 3,  ///< usage, no module, no machine, interrupted, or a test that came to no verdict
};

/// The code of one run.
ExitCode ExitCodeOf(const RunOutcome& outcome);

/// Of two codes the one that tells more: a failure, then no verdict, then a warning.
ExitCode Worse(ExitCode first, ExitCode second);

}  // namespace orvik::host
