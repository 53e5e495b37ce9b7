#pragma once

#include <cstddef>
#include <cstdint>
#include <string_view>
#include <vector>

namespace orvik::simulation {

/// The vendor's log with the text of the label that is glued on the drive.
inline constexpr std::uint8_t kLabelLog = 0xDF;

std::vector<std::uint8_t> MakeLabelLog(std::string_view label);

}  // namespace orvik::simulation
