#pragma once

// What the registers of a SMART command mean (ACS-3).

#include <cstdint>

#include "simulation/drives/ata/ata_drive.h"

namespace orvik::simulation {

namespace smart_feature {
inline constexpr std::uint8_t kReadData = 0xD0;
inline constexpr std::uint8_t kExecuteOffline = 0xD4;
inline constexpr std::uint8_t kReadLog = 0xD5;
inline constexpr std::uint8_t kEnable = 0xD8;
inline constexpr std::uint8_t kDisable = 0xD9;
inline constexpr std::uint8_t kReturnStatus = 0xDA;
}  // namespace smart_feature

inline std::uint8_t SmartFeature(const AtaTaskFile& command) {
  return static_cast<std::uint8_t>(command.features);
}

inline bool IsSmartRead(const AtaTaskFile& command) {
  return SmartFeature(command) == smart_feature::kReadData || SmartFeature(command) == smart_feature::kReadLog;
}

}  // namespace orvik::simulation
