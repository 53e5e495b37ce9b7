#pragma once

namespace orvik::sweeps {

/// Whether the calling code was called by what stands for the outside: the stand-ins, the machine behind them, Qt.
bool CalledFromOutside();

}  // namespace orvik::sweeps
