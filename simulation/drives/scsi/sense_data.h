#pragma once

#include <cstdint>
#include <optional>
#include <vector>

namespace orvik::simulation {

struct SenseCode {
  std::uint8_t key;
  std::uint8_t asc;
  std::uint8_t ascq;
};

inline constexpr SenseCode kNoSense{0x00, 0x00, 0x00};
inline constexpr SenseCode kFailurePredicted{0x00, 0x5D, 0x10};
inline constexpr SenseCode kSelfTestInProgress{0x02, 0x04, 0x09};
inline constexpr SenseCode kUnrecoveredReadError{0x03, 0x11, 0x00};
inline constexpr SenseCode kSelfTestFailed{0x04, 0x3E, 0x03};
inline constexpr SenseCode kDataPhaseError{0x0B, 0x4B, 0x00};
inline constexpr SenseCode kParameterListLengthError{0x05, 0x1A, 0x00};
inline constexpr SenseCode kInvalidOperationCode{0x05, 0x20, 0x00};
inline constexpr SenseCode kLbaOutOfRange{0x05, 0x21, 0x00};
inline constexpr SenseCode kInvalidFieldInCdb{0x05, 0x24, 0x00};
inline constexpr SenseCode kInvalidFieldInParameters{0x05, 0x26, 0x00};

struct Sense {
  SenseCode code{};
  /// The sector that the sense is about.
  std::optional<std::uint64_t> lba{};
  /// The byte of the CDB, or of the parameter list when the code says so, that was refused.
  std::optional<std::uint16_t> field{};
  /// How far a running operation is, in 65536ths.
  std::optional<std::uint16_t> progress{};
};

enum class SenseFormat : std::uint8_t { Fixed, Descriptor };

/// Sense data of a current error (SPC-4).
std::vector<std::uint8_t> MakeSenseData(const Sense& sense, SenseFormat format);

}  // namespace orvik::simulation
