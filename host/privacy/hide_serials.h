#pragma once

#include <vector>

#include "core/run_arguments.h"
#include "host/drives/drive.h"
#include "host/inventory/controller_details.h"

namespace orvik::host {

/// Each puts an X in place of every character of the serial numbers in a record, wherever they stand in it, so that
/// whatever is made of the record may be passed on.
void HideSerials(core::DeviceDescription& description);
void HideSerials(ControllerDetails& details);
void HideSerials(std::vector<core::TestMessage>& messages);
void HideSerials(Drive& drive);

}  // namespace orvik::host
