#pragma once

#include <cstdint>

namespace orvik::host {

/// How a self-test ended, as far as ATA and SCSI agree on the meaning of their codes.
enum class SelfTestEnd { Passed, Aborted, Failed, InProgress, Unknown };

/// Of a 4-bit result code of ATA or else SCSI.
SelfTestEnd EndOf(std::uint8_t code, bool isAta);

}  // namespace orvik::host
