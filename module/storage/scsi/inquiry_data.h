#pragma once

#include "utils/bytes/byte_view.h"

// What drives answer to INQUIRY and READ CAPACITY. Numbers are big-endian.

namespace orvik::module::storage {

/// Standard INQUIRY data (SPC-4, 6.6.2).
namespace inquiry_data {
inline constexpr utils::U8 kRemovable{1};
inline constexpr std::uint8_t kFlagged = 1;  ///< of the whole byte, reserved bits included
inline constexpr utils::U8 kVersion{2};
inline constexpr utils::Block kVendor{8, 8};
inline constexpr utils::Block kProduct{16, 16};
inline constexpr utils::Block kRevision{32, 4};
inline constexpr utils::BlockArray kVersionDescriptors{58, 2};
inline constexpr std::size_t kVersionDescriptorCount = 8;
inline constexpr std::int32_t kMinimumSize = 36;
}  // namespace inquiry_data

/// Header of a vital product data page (SPC-4, 7.8.1).
namespace vital_product_data {
inline constexpr utils::U8 kPageCode{1};
inline constexpr utils::U8 kPageLength{3};
inline constexpr std::size_t kHeaderSize = 4;
inline constexpr std::uint8_t kUnitSerialNumber = 0x80;
inline constexpr std::uint8_t kBlockDeviceCharacteristics = 0xB1;
}  // namespace vital_product_data

/// Block device characteristics page (SBC-3, 6.6.2).
namespace block_device_characteristics {
inline constexpr utils::Be16 kRotationRate{4};
inline constexpr std::size_t kMinimumSize = 6;
inline constexpr std::uint16_t kNonRotating = 1;
inline constexpr std::uint16_t kSlowestRotation = 1025;
inline constexpr std::uint16_t kFastestRotation = 65534;
}  // namespace block_device_characteristics

/// READ CAPACITY (10) data (SBC-3, 5.15.2).
namespace read_capacity10_data {
inline constexpr utils::Be32 kLastLba{0};
inline constexpr std::uint32_t kTooLarge = 0xFFFF'FFFF;
inline constexpr utils::Be32 kBlockLength{4};
}  // namespace read_capacity10_data

/// READ CAPACITY (16) data (SBC-3, 5.16.2).
namespace read_capacity16_data {
inline constexpr utils::Be64 kLastLba{0};
inline constexpr utils::Be32 kBlockLength{8};
inline constexpr std::size_t kMinimumSize = 12;
inline constexpr utils::U8 kExponents{13};
inline constexpr std::uint8_t kBlocksPerPhysicalExponent = 0x0F;
}  // namespace read_capacity16_data

}  // namespace orvik::module::storage
