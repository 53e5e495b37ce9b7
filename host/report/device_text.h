#pragma once

#include <QString>

#include "host/inventory/controller_details.h"
#include "host/inventory/device_list.h"
#include "host/terminal/palette.h"

namespace orvik::host {

/// One line: index, name, id.
QString DeviceHeading(const ListedDevice& device, const Palette& palette);

/// A tree: heading, properties, logical disks, physical disks, and what the controller did not tell.
QString DeviceTree(const ListedDevice& device, const ControllerDetails& details, const Palette& palette);

}  // namespace orvik::host
