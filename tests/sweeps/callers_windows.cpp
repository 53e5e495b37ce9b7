#include "tests/sweeps/callers.h"

namespace orvik::sweeps {

// On Windows each library has its own allocation functions, so only the program's own code gets here.
bool CalledFromOutside() {
  return false;
}

}  // namespace orvik::sweeps
