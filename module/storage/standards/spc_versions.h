#pragma once

#include <cstdint>
#include <string_view>

namespace orvik::module::storage {

/// The standard in the VERSION field of standard INQUIRY data (byte 2); empty for any other value.
constexpr std::string_view SpcVersionName(std::uint8_t version) {
  switch (version) {
    case 3: return "SCSI Primary Commands - SPC";
    case 4: return "SCSI Primary Commands 2 - SPC-2";
    case 5: return "SCSI Primary Commands 3 - SPC-3";
    case 6: return "SCSI Primary Commands 4 - SPC-4";
    default: return {};
  }
}

}  // namespace orvik::module::storage
