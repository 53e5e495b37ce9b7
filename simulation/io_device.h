#pragma once

// What a file of the simulated machine leads to: a device that takes I/O control requests.

#include <cstddef>
#include <cstdint>
#include <span>
#include <string_view>

namespace orvik::simulation {

/// Windows error code (0: success) and the count of bytes that come back.
struct IoResult {
  std::uint32_t error{};
  std::size_t returned{};
};

/// Thread-safe.
class IoDevice {
 public:
  IoDevice() = default;
  IoDevice(const IoDevice&) = delete;
  IoDevice& operator=(const IoDevice&) = delete;
  virtual ~IoDevice() = default;

  /// The name under which a fault rule knows the packet in `buffer`; empty when it has none.
  virtual std::string_view PacketName(std::uint32_t controlCode, std::span<const std::uint8_t> buffer) const = 0;
  /// Executes a request in place. `buffer` holds the request in its first `inputSize` bytes and takes up to
  /// `outputSize` bytes of answer.
  virtual IoResult Control(std::uint32_t controlCode, std::span<std::uint8_t> buffer, std::size_t inputSize,
                           std::size_t outputSize) = 0;
};

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
