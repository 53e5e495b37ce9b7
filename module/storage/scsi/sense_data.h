#pragma once

#include <array>
#include <cstdint>
#include <map>

#include "module/storage/status.h"
#include "utils/bytes/byte_view.h"

namespace orvik::module::storage {

namespace sense_key {
inline constexpr std::uint8_t kNoSense = 0x0;
inline constexpr std::uint8_t kRecoveredError = 0x1;
inline constexpr std::uint8_t kNotReady = 0x2;
inline constexpr std::uint8_t kMediumError = 0x3;
inline constexpr std::uint8_t kHardwareError = 0x4;
inline constexpr std::uint8_t kIllegalRequest = 0x5;
inline constexpr std::uint8_t kDataProtect = 0x7;
inline constexpr std::uint8_t kMiscompare = 0xE;
}  // namespace sense_key

/// Additional sense codes.
namespace sense_code {
inline constexpr std::uint8_t kUnrecoveredReadError = 0x11;
inline constexpr std::uint8_t kParityError = 0x47;
inline constexpr std::uint8_t kFailurePredictionExceeded = 0x5D;
}  // namespace sense_code

/// Descriptor type of sense-key specific information.
inline constexpr std::int32_t kSenseKeySpecific = 2;

/// Sense data (SPC-4, 4.5), taken apart.
struct SenseData {
  std::uint8_t responseCode = 0;
  std::uint8_t senseKey = 0;
  std::uint8_t additionalSenseCode = 0;
  std::uint8_t additionalSenseCodeQualifier = 0;
  std::map<std::int32_t, std::array<std::uint8_t, 3>> descriptors;  ///< `kSenseKeySpecific` only

  /// Takes fixed or descriptor format apart; reads nothing outside the given bytes. 0, or 79 for another format.
  Status Decode(utils::ByteView sense);

 private:
  void DecodeFixed(utils::ByteView sense);
  void DecodeDescriptors(utils::ByteView sense);
  void StoreKeySpecific(utils::ByteView bytes);
};

}  // namespace orvik::module::storage
