#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace orvik::module::storage {

/// Appends the names of the standards in the major version word of identify data (word 80), the latest first;
/// "VERSION_NOT_REPORTED" when the list would stay empty.
void AppendAtaMajorVersions(std::uint16_t versions, std::vector<std::string>& names);

/// The document that the minor version word of identify data (word 81) stands for. The text lives as long as the
/// process.
std::string_view AtaMinorVersionName(std::uint16_t code);

}  // namespace orvik::module::storage
