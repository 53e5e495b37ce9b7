#pragma once

#include <vector>

#include "core/run_arguments.h"
#include "host/drives/drive.h"
#include "host/inventory/controller_details.h"

namespace orvik::host {

/// Each masks every character of the serial numbers in a record with X, wherever they occur, so that output made from
/// the record can be shared.
void HideSerials(core::DeviceDescription& description);
void HideSerials(ControllerDetails& details);
void HideSerials(std::vector<core::TestMessage>& messages);
void HideSerials(Drive& drive);

}  // namespace orvik::host
