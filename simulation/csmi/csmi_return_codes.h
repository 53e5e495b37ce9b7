#pragma once

#include <cstdint>

namespace orvik::simulation {

// ReturnCode of a CSMI packet.
inline constexpr std::uint32_t kCsmiSuccess = 0;
inline constexpr std::uint32_t kCsmiBadControlCode = 2;
inline constexpr std::uint32_t kCsmiInvalidParameter = 3;
inline constexpr std::uint32_t kCsmiRaidSetOutOfRange = 1000;
inline constexpr std::uint32_t kCsmiPhyDoesNotExist = 2003;
inline constexpr std::uint32_t kCsmiPhyDoesNotMatchPort = 2004;
inline constexpr std::uint32_t kCsmiSelectPhyOrPort = 2006;
inline constexpr std::uint32_t kCsmiPortDoesNotExist = 2007;
inline constexpr std::uint32_t kCsmiConnectionFailed = 2009;
inline constexpr std::uint32_t kCsmiNoSataDevice = 2010;
inline constexpr std::uint32_t kCsmiNotAnEndDevice = 2013;

// bConnectionStatus of a pass-through packet.
inline constexpr std::uint8_t kOpenAccepted = 0;
inline constexpr std::uint8_t kOpenRejectNoDestination = 3;
inline constexpr std::uint8_t kOpenRejectProtocolNotSupported = 5;

}  // namespace orvik::simulation
