#pragma once

#include <cstdint>
#include <vector>

#include "simulation/drives/drive_descriptions.h"

namespace orvik::simulation {

/// The 512 bytes that a drive of this description returns to IDENTIFY DEVICE (ACS-3), checksum included.
std::vector<std::uint8_t> MakeIdentifyData(const SataDriveDescription& drive);

}  // namespace orvik::simulation
