#pragma once

// The data structures that an NVMe drive hands out (NVM Express 1.2).

#include <cstdint>
#include <vector>

#include "simulation/drives/base/drive_descriptions.h"

namespace orvik::simulation {

inline constexpr std::uint32_t kFirstNamespace = 1;
inline constexpr std::uint32_t kEveryNamespace = 0xFFFFFFFF;

std::vector<std::uint8_t> MakeIdentifyController(const NvmeDriveDescription& drive);
std::vector<std::uint8_t> MakeIdentifyNamespace(const NvmeDriveDescription& drive);
/// The namespaces with a number above `after`.
std::vector<std::uint8_t> MakeNamespaceList(std::uint32_t after);
std::vector<std::uint8_t> MakeHealthLog(const NvmeDriveDescription& drive, std::uint32_t powerOnHours);

}  // namespace orvik::simulation
