#pragma once

#include "utils/bytes/byte_view.h"

namespace orvik::module::storage {

/// Standard INQUIRY data (SPC-4, 6.6.2).
namespace inquiry_data {
inline constexpr utils::Block kVendor{8, 8};
inline constexpr utils::Block kProduct{16, 16};
inline constexpr std::int32_t kMinimumSize = 36;
}  // namespace inquiry_data

/// READ CAPACITY (16) data (SBC-3, 5.16.2).
namespace read_capacity16_data {
inline constexpr utils::Be64 kLastLba{0};
inline constexpr utils::Be32 kBlockLength{8};
}  // namespace read_capacity16_data

}  // namespace orvik::module::storage
