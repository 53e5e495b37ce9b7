#pragma once

// Fields of packet buffers: a field is an offset, a width and a byte order in one constant, and every access stays
// inside the buffer. What lies outside reads as zero and cannot be written.

#include <algorithm>
#include <bit>
#include <concepts>
#include <cstddef>
#include <cstdint>
#include <span>
#include <string_view>

namespace orvik::simulation {

template <std::unsigned_integral Value, std::endian Order>
struct Field {
  std::size_t offset;
};

using U8 = Field<std::uint8_t, std::endian::little>;
using Le16 = Field<std::uint16_t, std::endian::little>;
using Le32 = Field<std::uint32_t, std::endian::little>;
using Le64 = Field<std::uint64_t, std::endian::little>;
using Be16 = Field<std::uint16_t, std::endian::big>;
using Be32 = Field<std::uint32_t, std::endian::big>;
using Be64 = Field<std::uint64_t, std::endian::big>;

/// A run of bytes that is no number: a text, an address, a table.
struct Block {
  std::size_t offset;
  std::size_t size;
};

/// The bytes of `block` that lie inside `buffer`.
template <typename Byte>
std::span<Byte> Inside(std::span<Byte> buffer, Block block) {
  const std::size_t start = std::min(block.offset, buffer.size());
  return buffer.subspan(start, std::min(block.size, buffer.size() - start));
}

inline bool Holds(std::size_t bufferSize, Block block) {
  return block.offset <= bufferSize && block.size <= bufferSize - block.offset;
}

template <std::unsigned_integral Value, std::endian Order>
Value Get(std::span<const std::uint8_t> buffer, Field<Value, Order> field) {
  if (!Holds(buffer.size(), {field.offset, sizeof(Value)})) return 0;
  std::uint64_t value = 0;
  for (std::size_t i = 0; i < sizeof(Value); ++i) {
    const std::size_t position = Order == std::endian::big ? i : sizeof(Value) - 1 - i;
    value = (value << 8) | buffer[field.offset + position];
  }
  return static_cast<Value>(value);
}

template <std::unsigned_integral Value, std::endian Order>
void Set(std::span<std::uint8_t> buffer, Field<Value, Order> field, std::type_identity_t<Value> value) {
  if (!Holds(buffer.size(), {field.offset, sizeof(Value)})) return;
  for (std::size_t i = 0; i < sizeof(Value); ++i) {
    const std::size_t position = Order == std::endian::little ? i : sizeof(Value) - 1 - i;
    buffer[field.offset + position] = static_cast<std::uint8_t>(std::uint64_t{value} >> (8 * i));
  }
}

inline void SetBytes(std::span<std::uint8_t> buffer, Block block, std::span<const std::uint8_t> bytes) {
  const auto target = Inside(buffer, block);
  std::ranges::copy(bytes.first(std::min(bytes.size(), target.size())), target.begin());
}

/// Writes `text`, cut to the block, and fills the rest of the block with `padding`.
inline void SetText(std::span<std::uint8_t> buffer, Block block, std::string_view text, char padding) {
  const auto target = Inside(buffer, block);
  for (std::size_t i = 0; i < target.size(); ++i) {
    target[i] = static_cast<std::uint8_t>(i < text.size() ? text[i] : padding);
  }
}

}  // namespace orvik::simulation
