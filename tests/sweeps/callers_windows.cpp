#include "tests/sweeps/callers.h"

namespace orvik::sweeps {

// Each library of Windows has allocation functions of its own, so that none but the program's own code comes here.
bool CalledFromOutside() {
  return false;
}

}  // namespace orvik::sweeps
