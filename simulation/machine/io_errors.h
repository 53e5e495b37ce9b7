#pragma once

#include <cstdint>

namespace orvik::simulation {

// Windows error codes that the devices of the machine answer with.
inline constexpr std::uint32_t kErrorInvalidFunction = 1;
inline constexpr std::uint32_t kErrorAccessDenied = 5;
inline constexpr std::uint32_t kErrorDeviceNotExist = 55;
inline constexpr std::uint32_t kErrorInvalidParameter = 87;
inline constexpr std::uint32_t kErrorTimeout = 121;
inline constexpr std::uint32_t kErrorInsufficientBuffer = 122;
inline constexpr std::uint32_t kErrorIoDevice = 1117;
inline constexpr std::uint32_t kErrorRevisionMismatch = 1306;

}  // namespace orvik::simulation
