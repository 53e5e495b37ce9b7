#pragma once

#include <cstdint>
#include <optional>

#include "utils/bytes/byte_view.h"

namespace orvik::module::storage {

/// Where the latest self-test failed, by the SMART self-test log (log 06h, 512 bytes; ACS-3, A.14.3): none when the
/// sector's checksum, revision or descriptor index is wrong.
std::optional<std::uint64_t> FailingLbaOfSelfTestLog(utils::ByteView sector);

/// Where the latest self-test failed, by the extended self-test log (log 07h, all of its pages; ACS-3, A.8): none
/// when the first page or the page of the latest descriptor is damaged, or the index points nowhere.
std::optional<std::uint64_t> FailingLbaOfExtendedSelfTestLog(utils::ByteView pages);

}  // namespace orvik::module::storage
