#pragma once

// Raw packets, put together byte by byte: offsets are written out, so that an error in the layouts of the simulated
// controllers cannot cancel itself out.

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdint>
#include <initializer_list>
#include <string>
#include <string_view>
#include <vector>

namespace orvik::simulation {

using Bytes = std::vector<std::uint8_t>;

/// A little-endian number of `width` bytes.
struct PacketField {
  std::size_t offset, width;
  std::uint64_t value;
};

inline void Put(Bytes& packet, const PacketField& field) {
  for (std::size_t i = 0; i < field.width; ++i) {
    packet.at(field.offset + i) = static_cast<std::uint8_t>(field.value >> (8 * i));
  }
}

inline void PutLe(Bytes& packet, std::size_t offset, std::size_t width, std::uint64_t value) {
  Put(packet, {offset, width, value});
}

inline std::uint64_t Le(const Bytes& packet, std::size_t offset, std::size_t width) {
  std::uint64_t value = 0;
  for (std::size_t i = width; i-- > 0;) value = value << 8 | packet.at(offset + i);
  return value;
}

inline void ExpectFields(const Bytes& packet, std::initializer_list<PacketField> fields, std::size_t base = 0) {
  for (const auto& [offset, width, expected] : fields) {
    EXPECT_EQ(Le(packet, base + offset, width), expected) << "at " << base + offset;
  }
}

inline std::string Text(const Bytes& packet, std::size_t offset, std::size_t size) {
  return std::string(packet.begin(), packet.end()).substr(offset, size);
}

inline Bytes Slice(const Bytes& packet, std::size_t offset, std::size_t size) {
  const std::string text = Text(packet, offset, size);
  return {text.begin(), text.end()};
}

inline Bytes Packet(std::string_view signature, std::uint32_t controlCode, std::size_t size) {
  Bytes packet(size);
  Put(packet, {0, 4, 28});
  std::ranges::copy(signature, packet.begin() + 4);
  Put(packet, {16, 4, controlCode});
  Put(packet, {24, 4, size - 28});
  return packet;
}

}  // namespace orvik::simulation
