#pragma once

#include "utils/bytes/byte_view.h"

// Log and mode pages (SPC-4, 7.3 and 7.5). Numbers are big-endian.

namespace orvik::module::storage {

/// What all log pages begin with.
namespace log_page {
inline constexpr utils::Be16 kPageLength{2};
inline constexpr std::size_t kHeaderSize = 4;
}  // namespace log_page

/// Informational exceptions log page, its first parameter.
namespace informational_exceptions_page {
inline constexpr utils::Be16 kParameterCode{4};
inline constexpr utils::U8 kAdditionalSenseCode{8};
inline constexpr std::uint16_t kMinimumPageLength = 7;
}  // namespace informational_exceptions_page

/// Self-test results log page, its first (latest) parameter.
namespace self_test_page {
inline constexpr utils::U8 kResult{8};  // low half
inline constexpr utils::Be64 kFirstFailure{12};
inline constexpr std::uint64_t kNoFailure = ~std::uint64_t{0};
}  // namespace self_test_page

/// Temperature log page, its first parameter.
namespace temperature_page {
inline constexpr utils::U8 kTemperature{9};  // degrees Celsius
inline constexpr std::uint8_t kNotAvailable = 0xFF;
}  // namespace temperature_page

/// Informational exceptions control mode page.
namespace informational_exceptions_control {
inline constexpr std::uint8_t kDisabled = 0x08;      // DEXCPT, in the flags byte
inline constexpr std::uint8_t kReportMethod = 0x06;  // MRIE: report on request only
}  // namespace informational_exceptions_control

}  // namespace orvik::module::storage
