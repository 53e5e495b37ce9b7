#pragma once

// The pass-through requests of Windows, as its disk and port drivers check and answer them. `buffer` is the system
// buffer of a METHOD_BUFFERED request: it comes with `inputSize` bytes and leaves with up to `outputSize`.

#include <cstddef>
#include <cstdint>
#include <span>

#include "simulation/drives/ata/ata_drive.h"
#include "simulation/drives/scsi/scsi_drive.h"
#include "simulation/machine/io_device.h"

namespace orvik::simulation {

IoResult AnswerAtaPassThrough(AtaDrive& drive, std::span<std::uint8_t> buffer, std::size_t inputSize,
                              std::size_t outputSize);
IoResult AnswerScsiPassThrough(ScsiDrive& drive, std::span<std::uint8_t> buffer, std::size_t inputSize,
                               std::size_t outputSize);

}  // namespace orvik::simulation
