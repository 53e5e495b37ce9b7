#pragma once

#include <cstddef>
#include <cstdint>

#include "utils/bytes/byte_view.h"

// The words of identify data (ACS-4, 7.13.6) that this layer reads.

namespace orvik::module::storage::identify_data {

constexpr utils::Le16 Word(std::size_t number) {
  return {2 * number};
}
constexpr utils::Le32 DoubleWord(std::size_t number) {
  return {2 * number};
}
constexpr utils::Le64 QuadWord(std::size_t number) {
  return {2 * number};
}

/// A text: first word and number of words.
struct Words {
  std::size_t first;
  std::size_t count;
};

inline constexpr std::size_t kSize = 512;
inline constexpr utils::U8 kChecksumSignature{510};
inline constexpr std::uint8_t kChecksumPresent = 0xA5;

inline constexpr auto kGeneral = Word(0);
inline constexpr std::uint16_t kNotAnAtaDevice = 1U << 15;
inline constexpr Words kSerialNumber{10, 10};
inline constexpr auto kBufferSize = Word(21);
inline constexpr Words kFirmwareRevision{23, 4};
inline constexpr Words kModel{27, 20};
inline constexpr auto kSectorCount28 = DoubleWord(60);
inline constexpr auto kMajorVersion = Word(80);
inline constexpr auto kMinorVersion = Word(81);

inline constexpr auto kCommandSets1 = Word(82);
inline constexpr auto kCommandSets1Enabled = Word(85);
inline constexpr std::uint16_t kSmart = 1U << 0;
inline constexpr std::uint16_t kSecurity = 1U << 1;
inline constexpr auto kCommandSets2 = Word(83);
inline constexpr std::uint16_t kLba48 = 1U << 10;

inline constexpr auto kSectorCount48 = QuadWord(100);
inline constexpr auto kSectorSizes = Word(106);
inline constexpr std::uint16_t kSectorSizesInvalid = 1U << 15;
inline constexpr std::uint16_t kSectorSizesValid = 1U << 14;
inline constexpr std::uint16_t kLargePhysicalSectors = 1U << 13;
inline constexpr std::uint16_t kLongLogicalSectors = 1U << 12;
inline constexpr std::uint16_t kSectorsPerPhysicalExponent = 0x000F;
inline constexpr auto kLogicalSectorSize = DoubleWord(117);

inline constexpr auto kSecurityStatus = Word(128);
inline constexpr std::uint16_t kSecurityLocked = 1U << 2;

inline constexpr auto kCacheFlags = Word(214);
inline constexpr std::uint16_t kCacheSizeReported = 1U << 0 | 1U << 4;
inline constexpr auto kCacheSizeHigh = Word(215);
inline constexpr auto kCacheSizeLow = Word(216);

inline constexpr auto kRotationRate = Word(217);
inline constexpr std::uint16_t kNonRotating = 1;
inline constexpr std::uint16_t kSlowestRotation = 1025;
inline constexpr std::uint16_t kFastestRotation = 65534;

}  // namespace orvik::module::storage::identify_data
