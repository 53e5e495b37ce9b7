#pragma once

#include <cstdint>

#include "module/raid/csmi/csmi_packet.h"
#include "module/raid/device_records.h"

namespace orvik::module::raid {

/// Identifies the SATA drive on a phy (64-byte entry) with IDENTIFY DEVICE through STP: manufacturer and model (both
/// from the model text, untrimmed) and size. Returns kIoctlFailed, kCsmiReturnCode, or kAtaError when the drive
/// reports an error; the record is filled on success only.
storage::Status IdentifySataDrive(HANDLE port, utils::ByteView phyEntry, PhysicalDrive& drive);

/// Identifies the SAS drive on a phy (64-byte entry) with INQUIRY and READ CAPACITY (16) through SSP. Returns
/// kIoctlFailed, kCsmiReturnCode, or kScsiStatusNotGood when a command fails; the record is filled on success only.
storage::Status IdentifySasDrive(HANDLE port, utils::ByteView phyEntry, PhysicalDrive& drive);

/// Describes one RAID set from its RAID configuration.
LogicalDrive DescribeRaidSet(std::uint32_t index, const RaidConfigurationPacket& set);

/// The drive entry (136 bytes) belongs to an NVMe drive; only its model text shows that.
bool IsNvmeMember(utils::ByteView driveEntry);

}  // namespace orvik::module::raid
