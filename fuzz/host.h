#pragma once

// What a host does with devices and drives, all of it.

#include <memory>

#include "module/raid/device_records.h"
#include "module/storage/protocol.h"
#include "simulation/machine/machine.h"

namespace orvik::fuzz {

/// A controller of each family with drives of every kind, and drives of the system.
simulation::MachineDescription WholeMachine();

/// Keeps the vendor's library in memory: the engine does not bear libraries that come and go.
void KeepVendorLibrary();

/// Every operation of a drive.
void UseDrive(module::storage::Protocol& drive);

/// The queries of a device, the six tests on it, and every operation of some of its drives.
void UseDevice(const std::shared_ptr<module::raid::RaidDevice>& device);

}  // namespace orvik::fuzz
