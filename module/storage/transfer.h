#pragma once

#include <cstdint>
#include <span>

#include "utils/bytes/byte_view.h"

namespace orvik::module::storage {

/// Which way a command's data goes, seen from the host.
enum class Direction : std::uint32_t { kNone = 0, kIn = 1, kOut = 2 };

inline constexpr std::uint32_t kDefaultTimeoutSeconds = 30;

/// The most bytes that one command moves: every pass-through packet counts its data and its header in 32 bits.
inline constexpr std::uint64_t kMaximumTransfer = 0xFFFF'FFFF - 4096;

/// The buffer and the data that go through it can be carried by a pass-through packet.
inline bool IsTransferable(const std::uint8_t* buffer, std::uint64_t length) {
  return buffer != nullptr && length <= kMaximumTransfer;
}

/// The caller's data of a command, `length` bytes; none without a buffer.
template <typename Command>
std::span<std::uint8_t> DataOf(const Command& command) {
  if (command.buffer == nullptr) return {};
  return {command.buffer, static_cast<std::size_t>(command.length)};
}

/// Copies returned data to the caller, at most the command's length.
template <typename Command>
void DeliverData(const Command& command, utils::ByteView data) {
  const auto area = DataOf(command);
  utils::MutableByteView(area).PutBytes({0, area.size()}, data.Bytes());
}

/// A sector size doubled `exponent` times; 0 when 32 bits don't hold it.
constexpr std::uint32_t DoubledSize(std::uint32_t size, std::uint32_t exponent) {
  if (exponent > 31) return 0;
  const std::uint64_t doubled = std::uint64_t{size} << exponent;
  return doubled > 0xFFFF'FFFF ? 0 : static_cast<std::uint32_t>(doubled);
}

}  // namespace orvik::module::storage
