#pragma once

#include <cstdint>
#include <string>

#include "module/raid/csmi/csmi_packet.h"
#include "module/raid/device_records.h"

namespace orvik::module::raid {

/// One RAID set of a controller, as its RAID configuration describes it.
LogicalDrive DescribeRaidSet(std::uint32_t index, const RaidConfigurationPacket& set);

/// The drive entry (136 bytes) is of an NVMe drive: nothing but its model text tells.
bool IsNvmeMember(utils::ByteView driveEntry);

}  // namespace orvik::module::raid
