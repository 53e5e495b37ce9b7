#pragma once

// Readers of the parts of a machine description.

#include "simulation/adapters/adapter.h"
#include "simulation/csmi/csmi_description.h"
#include "simulation/desktop/desktop.h"
#include "simulation/drives/base/drive_descriptions.h"
#include "simulation/faults/fault.h"
#include "simulation/json/node.h"
#include "simulation/storelib/storelib_description.h"

namespace orvik::simulation {

AdapterDescription ReadAdapter(const Node& node);
CsmiControllerDescription ReadCsmiController(const Node& node);
DriveDescription ReadDrive(const Node& node);
PhysicalDriveDescription ReadPhysicalDrive(const Node& node);
StorelibDescription ReadStorelib(const Node& node);
DesktopDescription ReadDesktop(const Node& node);
FaultRule ReadFault(const Node& node);

}  // namespace orvik::simulation
