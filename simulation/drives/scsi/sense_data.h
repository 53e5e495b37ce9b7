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

inline constexpr SenseCode kInvalidOperationCode{0x05, 0x20, 0x00};
inline constexpr SenseCode kInvalidFieldInCdb{0x05, 0x24, 0x00};

/// 18 bytes of fixed-format sense data (SPC-4, current error). `field` is the CDB byte that was refused.
std::vector<std::uint8_t> MakeFixedSense(SenseCode code, std::optional<std::uint16_t> field = {});

}  // namespace orvik::simulation
