#include "host/display/display.h"

namespace orvik::host {

// There always is a desktop.
void ChooseDisplay() {
  LeaveScalingToDialogs();
}

}  // namespace orvik::host
