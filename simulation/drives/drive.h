#pragma once

// A drive of any kind, as its controller holds it.

#include <cstdint>
#include <memory>
#include <string>
#include <variant>

#include "simulation/clock.h"
#include "simulation/drives/ata/ata_drive.h"
#include "simulation/drives/base/drive_descriptions.h"
#include "simulation/drives/nvme/nvme_drive.h"
#include "simulation/drives/scsi/scsi_drive.h"

namespace orvik::simulation {

using Drive = std::variant<std::shared_ptr<AtaDrive>, std::shared_ptr<ScsiDrive>, std::shared_ptr<NvmeDrive>>;

/// `clock` times the drive's self-tests.
Drive MakeDrive(const DriveDescription& description, const std::shared_ptr<const Clock>& clock);

/// What a controller records about a drive on discovery.
struct DriveIdentity {
  std::string model{};
  std::string firmware{};
  std::string serial{};
  std::uint64_t sectors{};
  std::uint32_t sectorSize{};
};

DriveIdentity IdentityOf(const Drive& drive);

}  // namespace orvik::simulation
