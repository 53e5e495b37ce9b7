#pragma once

#include <cstdint>
#include <string_view>

namespace orvik::module::storage {

/// The standard that a version descriptor of standard INQUIRY data stands for (SPC-4, 6.6.2); empty for an unknown
/// code. The text lives as long as the process.
std::string_view VersionDescriptorName(std::uint16_t code);

}  // namespace orvik::module::storage
