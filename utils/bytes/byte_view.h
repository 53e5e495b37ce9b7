#pragma once

// The one home of raw byte access: layouts are written down as `Field` constants and read or written through bounded
// views. Nothing here reads or writes outside the bytes that a view was given.

#include <algorithm>
#include <concepts>
#include <cstddef>
#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <type_traits>
#include <vector>

namespace orvik::utils {

enum class ByteOrder { kLittle, kBig };

/// An unsigned number of a layout: `offset` in bytes from the start of the view.
template <std::unsigned_integral T, ByteOrder Order = ByteOrder::kLittle>
struct Field {
  std::size_t offset;
};

using U8 = Field<std::uint8_t>;
using Le16 = Field<std::uint16_t>;
using Le32 = Field<std::uint32_t>;
using Le64 = Field<std::uint64_t>;
using Be16 = Field<std::uint16_t, ByteOrder::kBig>;
using Be32 = Field<std::uint32_t, ByteOrder::kBig>;
using Be64 = Field<std::uint64_t, ByteOrder::kBig>;

/// A run of bytes of a layout: a text, an address, a nested structure.
struct Block {
  std::size_t offset;
  std::size_t size;
};

/// Equal blocks one behind the other, `stride` bytes apart.
struct BlockArray {
  std::size_t offset;
  std::size_t stride;

  constexpr Block At(std::size_t index) const { return {offset + stride * index, stride}; }
};

/// Read access to bytes. A field outside the view reads as 0, a block outside it is empty.
class ByteView {
 public:
  constexpr ByteView() = default;
  constexpr ByteView(std::span<const std::uint8_t> bytes) : bytes_(bytes) {}  // NOLINT(google-explicit-constructor)

  constexpr std::size_t Size() const { return bytes_.size(); }
  constexpr std::span<const std::uint8_t> Bytes() const { return bytes_; }

  constexpr bool Holds(Block block) const {
    return block.offset <= bytes_.size() && block.size <= bytes_.size() - block.offset;
  }

  /// How many blocks of the array lie wholly inside the view.
  constexpr std::size_t Count(BlockArray array) const {
    return array.offset > bytes_.size() ? 0 : (bytes_.size() - array.offset) / array.stride;
  }

  template <typename T, ByteOrder Order>
  constexpr T Get(Field<T, Order> field) const {
    if (!Holds({field.offset, sizeof(T)})) return 0;
    T value = 0;
    for (std::size_t i = 0; i < sizeof(T); ++i) {
      const std::size_t significance = Order == ByteOrder::kLittle ? i : sizeof(T) - 1 - i;
      value = static_cast<T>(value | static_cast<T>(T{bytes_[field.offset + i]} << (8 * significance)));
    }
    return value;
  }

  constexpr ByteView Sub(Block block) const {
    return Holds(block) ? ByteView(bytes_.subspan(block.offset, block.size)) : ByteView();
  }

  /// The blocks of an array, `count` of them or as many as lie wholly inside the view.
  std::vector<ByteView> Entries(BlockArray array, std::size_t count) const {
    std::vector<ByteView> entries;
    count = std::min(count, Count(array));
    entries.reserve(count);
    for (std::size_t i = 0; i < count; ++i) entries.push_back(Sub(array.At(i)));
    return entries;
  }

  /// The block's bytes as they stand: padding and zero bytes included.
  std::string Text(Block block) const {
    const auto bytes = Sub(block).Bytes();
    return {bytes.begin(), bytes.end()};
  }

  /// The block's bytes up to the first zero byte; all of them when there is none.
  std::string ZeroTerminatedText(Block block) const {
    const auto bytes = Sub(block).Bytes();
    return {bytes.begin(), std::find(bytes.begin(), bytes.end(), std::uint8_t{0})};
  }

 private:
  std::span<const std::uint8_t> bytes_;
};

/// Read and write access to bytes. What lies outside the view is not written.
class MutableByteView {
 public:
  constexpr MutableByteView() = default;
  constexpr MutableByteView(std::span<std::uint8_t> bytes) : bytes_(bytes) {}  // NOLINT(google-explicit-constructor)

  constexpr operator ByteView() const { return {bytes_}; }  // NOLINT(google-explicit-constructor)
  constexpr std::span<std::uint8_t> Bytes() const { return bytes_; }

  template <typename T, ByteOrder Order>
  constexpr void Put(Field<T, Order> field, std::type_identity_t<T> value) const {
    if (!ByteView(*this).Holds({field.offset, sizeof(T)})) return;
    for (std::size_t i = 0; i < sizeof(T); ++i) {
      const std::size_t significance = Order == ByteOrder::kLittle ? i : sizeof(T) - 1 - i;
      bytes_[field.offset + i] = static_cast<std::uint8_t>(value >> (8 * significance));
    }
  }

  constexpr MutableByteView Sub(Block block) const {
    return ByteView(*this).Holds(block) ? MutableByteView(bytes_.subspan(block.offset, block.size))
                                        : MutableByteView();
  }

  /// Copies as many of the source's bytes as the block holds.
  constexpr void PutBytes(Block block, std::span<const std::uint8_t> source) const {
    if (!ByteView(*this).Holds(block)) return;
    std::copy_n(source.begin(), std::min(block.size, source.size()), bytes_.begin() + std::ptrdiff_t(block.offset));
  }

 private:
  std::span<std::uint8_t> bytes_;
};

/// The bytes of a text, for `MutableByteView::PutBytes`.
inline std::span<const std::uint8_t> BytesOf(std::string_view text) {
  return {reinterpret_cast<const std::uint8_t*>(text.data()), text.size()};
}

/// The bytes of an array of 16-bit units, for system calls that fill it as bytes.
template <typename Unit>
std::uint8_t* WritableBytesOf(std::vector<Unit>& units) {
  static_assert(sizeof(Unit) == 2);
  return reinterpret_cast<std::uint8_t*>(units.data());
}

/// A system record at the start of a buffer that also holds what follows the record. The buffer must be at least as
/// large as the record and come from `new` (so that it is aligned); a smaller one yields null.
template <typename Record>
Record* RecordIn(std::span<std::uint8_t> buffer) {
  return buffer.size() < sizeof(Record) ? nullptr : reinterpret_cast<Record*>(buffer.data());
}

}  // namespace orvik::utils
