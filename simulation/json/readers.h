#pragma once

// Readers of the parts of a machine description.

#include "simulation/csmi/csmi_description.h"
#include "simulation/desktop/desktop_description.h"
#include "simulation/drives/drive_descriptions.h"
#include "simulation/faults/fault.h"
#include "simulation/json/node.h"
#include "simulation/machine/machine_description.h"
#include "simulation/storelib/storelib_description.h"

namespace orvik::simulation {

MachineDescription ReadMachine(const Node& node);
CsmiControllerDescription ReadCsmiController(const Node& node);
DriveDescription ReadDrive(const Node& node);
PhysicalDriveDescription ReadPhysicalDrive(const Node& node);
StorelibDescription ReadStorelib(const Node& node);
DesktopDescription ReadDesktop(const Node& node);
FaultRule ReadFault(const Node& node);

}  // namespace orvik::simulation
