#pragma once

#include <cstdint>

#include "host/report/words.h"
#include "module/storage/status.h"

namespace orvik::host {

Word StatusWord(module::storage::Status status);

/// For people: the word and the number.
QString StatusText(module::storage::Status status);

Word HealthWord(std::uint8_t health);
Word PowerModeWord(std::uint32_t mode);

/// Of a result code of ATA or else SCSI.
Word SelfTestWord(std::uint8_t code, bool isAta);

}  // namespace orvik::host
