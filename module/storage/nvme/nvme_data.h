#pragma once

#include "utils/bytes/byte_view.h"

// What NVMe drives return (NVM Express 1.4, 5.14.1 and 5.15.2). Numbers are little-endian.

namespace orvik::module::storage {

/// Identify Controller.
namespace identify_controller {
inline constexpr utils::Block kSerialNumber{4, 20};
inline constexpr utils::Block kModel{24, 40};
inline constexpr utils::Block kFirmwareRevision{64, 8};
inline constexpr utils::Le16 kOptionalAdminCommands{256};
inline constexpr std::uint16_t kNamespaceManagement = 1U << 3;
}  // namespace identify_controller

/// Identify Namespace.
namespace identify_namespace {
inline constexpr utils::Le64 kSize{0};      // NSZE, logical blocks
inline constexpr utils::Le64 kCapacity{8};  // NCAP, logical blocks
inline constexpr utils::U8 kFormattedSize{26};
inline constexpr std::uint8_t kFormatIndex = 0x0F;
inline constexpr utils::BlockArray kFormats{128, 4};
inline constexpr utils::U8 kBlockSizeExponent{2};  // within a format
}  // namespace identify_namespace

/// Active Namespace ID list.
namespace active_namespaces {
inline constexpr std::size_t kCount = 1024;
constexpr utils::Le32 Entry(std::size_t index) {
  return {4 * index};
}
}  // namespace active_namespaces

/// SMART / Health Information log.
namespace nvme_health {
inline constexpr utils::U8 kTemperatureLow{1};        // of the composite temperature, kelvin
inline constexpr std::uint8_t kKelvinOffsetLow = 17;  // 273 modulo 256
inline constexpr utils::U8 kPercentageUsed{5};
}  // namespace nvme_health

/// The vendor log with the label.
namespace nvme_label {
inline constexpr utils::Block kLabel{110, 30};
}  // namespace nvme_label

}  // namespace orvik::module::storage
