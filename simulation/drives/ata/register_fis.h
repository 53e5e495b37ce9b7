#pragma once

#include <cstdint>
#include <optional>
#include <span>

#include "simulation/drives/ata/ata_drive.h"

namespace orvik::simulation {

/// The command in a host-to-device register FIS (Serial ATA, 20 bytes); nothing when `fis` is none.
std::optional<AtaTaskFile> ReadCommandFis(std::span<const std::uint8_t> fis);

/// Fills `fis` (20 bytes) with the device-to-host register FIS that ends a command.
void WriteStatusFis(std::span<std::uint8_t> fis, const AtaCompletion& completion);

}  // namespace orvik::simulation
