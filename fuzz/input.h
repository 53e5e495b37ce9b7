#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <span>

namespace orvik::fuzz {

/// What the engine came up with, taken from front to back; zeros when nothing is left.
class Input {
 public:
  Input(const std::uint8_t* data, std::size_t size) : rest_(data, size) {}

  bool IsEmpty() const { return rest_.empty(); }

  std::uint8_t Byte() {
    const auto byte = Bytes(1);
    return byte.empty() ? std::uint8_t{0} : byte.front();
  }

  std::uint16_t Word() {
    const std::uint8_t low = Byte();
    return static_cast<std::uint16_t>(Byte() << 8 | low);
  }

  /// As many of `count` bytes as are left.
  std::span<const std::uint8_t> Bytes(std::size_t count) {
    const auto taken = rest_.first(std::min(count, rest_.size()));
    rest_ = rest_.subspan(taken.size());
    return taken;
  }

 private:
  std::span<const std::uint8_t> rest_;
};

/// Something that must never be, whatever comes in.
inline void Demand(bool holds) {
  if (!holds) __builtin_trap();
}

}  // namespace orvik::fuzz
