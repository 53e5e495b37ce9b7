#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace orvik::module::raid {

/// "RAID 5", or "UNKNOWN" for levels that have no name.
std::string RaidLevelName(std::uint8_t primaryLevel, std::uint8_t secondaryLevel);

/// The names of the levels whose bits are set in the RAID level word of a controller.
void AppendRaidLevelNames(std::uint32_t levels, std::vector<std::string>& names);

/// The names of the interfaces whose bits are set in the interface byte of a controller.
void AppendInterfaceNames(std::uint8_t interfaces, std::vector<std::string>& names);

}  // namespace orvik::module::raid
