#pragma once

namespace orvik::sweeps {

/// Whether the caller was called from outside the module: by the platform stand-ins, the simulated machine or Qt.
bool CalledFromOutside();

}  // namespace orvik::sweeps
