#pragma once

#include <cstddef>
#include <cstdint>

#include "utils/bytes/byte_view.h"

// The packets of the Common Storage Management Interface (CSMI rev. 0.81) that this module exchanges with a
// controller's driver. Offsets count from the start of the buffer, the header included; fields are little-endian.

namespace orvik::module::raid::csmi {

using utils::Block;
using utils::BlockArray;
using utils::Le16;
using utils::Le32;
using utils::U8;

/// SRB_IO_CONTROL of the Windows SCSI miniport interface, which CSMI calls the IOCTL header.
namespace header {
inline constexpr Le32 kHeaderLength{0};
inline constexpr Block kSignature{4, 8};
inline constexpr Le32 kTimeout{12};  // seconds
inline constexpr Le32 kControlCode{16};
inline constexpr Le32 kReturnCode{20};
inline constexpr Le32 kLength{24};  // what follows the header
inline constexpr std::uint32_t kSize = 28;
}  // namespace header

inline constexpr std::uint32_t kTimeoutSeconds = 60;

/// CSMI_SAS_RAID_SET_OUT_OF_RANGE: the set index is past the last set.
inline constexpr std::uint32_t kRaidSetOutOfRange = 1000;

/// CSMI_SAS_CNTLR_CONFIG.
namespace controller_configuration {
inline constexpr std::uint32_t kControlCode = 2;  // CC_CSMI_SAS_GET_CNTLR_CONFIG
inline constexpr std::size_t kSize = 208;
inline constexpr U8 kControllerFlags{180};  // low byte of uControllerFlags
inline constexpr std::uint8_t kSasRaid = 0x02;
inline constexpr std::uint8_t kSataRaid = 0x08;
}  // namespace controller_configuration

/// CSMI_SAS_CNTLR_STATUS.
namespace controller_status {
inline constexpr std::uint32_t kControlCode = 3;  // CC_CSMI_SAS_GET_CNTLR_STATUS
inline constexpr std::size_t kSize = 64;
inline constexpr Le32 kStatus{28};  // uStatus: 1 good, 2 failed, 3 offline, 4 powered off
inline constexpr Le32 kOfflineReason{32};
}  // namespace controller_status

/// CSMI_SAS_PHY_INFO with its CSMI_SAS_PHY_ENTITY entries.
namespace phy_information {
inline constexpr std::uint32_t kControlCode = 20;  // CC_CSMI_SAS_GET_PHY_INFO
inline constexpr std::size_t kSize = 2080;
inline constexpr U8 kNumberOfPhys{28};
inline constexpr BlockArray kPhys{32, 64};
inline constexpr std::size_t kMaximumPhys = 32;
static_assert(kPhys.At(kMaximumPhys).offset == kSize);
}  // namespace phy_information

/// One CSMI_SAS_PHY_ENTITY; offsets within the entry.
namespace phy {
inline constexpr U8 kPhyIdentifier{20};
inline constexpr U8 kPortIdentifier{28};
inline constexpr U8 kAttachedDeviceType{36};
inline constexpr U8 kAttachedTargetProtocol{39};
inline constexpr Block kAttachedSasAddress{48, 8};
inline constexpr std::uint8_t kEndDevice = 0x10;
inline constexpr std::uint8_t kTargetSsp = 0x08;
inline constexpr std::uint8_t kTargetSmp = 0x02;
}  // namespace phy

/// CSMI_SAS_RAID_INFO.
namespace raid_information {
inline constexpr std::uint32_t kControlCode = 10;  // CC_CSMI_SAS_GET_RAID_INFO
inline constexpr std::size_t kSize = 128;
inline constexpr Le32 kNumRaidSets{28};
inline constexpr Le32 kMaxDrivesPerSet{32};
}  // namespace raid_information

/// CSMI_SAS_RAID_CONFIG with its CSMI_SAS_RAID_DRIVES entries.
namespace raid_configuration {
inline constexpr std::uint32_t kControlCode = 11;  // CC_CSMI_SAS_GET_RAID_CONFIG
inline constexpr Le32 kRaidSetIndex{28};
inline constexpr Le32 kCapacity{32};  // MiB
inline constexpr U8 kRaidType{40};
inline constexpr U8 kStatus{41};
inline constexpr U8 kInformation{42};  // degraded set: index of the failed drive
inline constexpr U8 kDriveCount{43};
inline constexpr BlockArray kDrives{64, 136};
inline constexpr std::uint8_t kStatusDegraded = 1;
}  // namespace raid_configuration

/// One CSMI_SAS_RAID_DRIVES; offsets within the entry.
namespace raid_drive {
inline constexpr Block kModel{0, 40};
inline constexpr Block kSerialNumber{48, 40};
}  // namespace raid_drive

/// uFlags of both pass-through packets.
namespace pass_through {
inline constexpr std::uint32_t kRead = 0x01;
inline constexpr std::uint32_t kWrite = 0x02;
inline constexpr std::uint32_t kUnspecified = 0x04;
inline constexpr std::uint32_t kPio = 0x10;
}  // namespace pass_through

/// The drive's address, common to SSP and STP requests.
namespace pass_through_address {
inline constexpr U8 kPhyIdentifier{28};
inline constexpr U8 kPortIdentifier{29};
inline constexpr U8 kConnectionRate{30};  // 0: negotiated
inline constexpr Block kDestinationSasAddress{32, 8};
}  // namespace pass_through_address

/// CSMI_SAS_SSP_PASSTHRU: request, status at 100, data at 368.
namespace ssp {
inline constexpr std::uint32_t kControlCode = 24;  // CC_CSMI_SAS_SSP_PASSTHRU
inline constexpr U8 kCdbLength{48};
inline constexpr Block kCdb{52, 16};
inline constexpr Le32 kFlags{68};
inline constexpr Le32 kDataLength{96};
inline constexpr U8 kSspStatus{101};
inline constexpr U8 kDataPresent{104};
inline constexpr std::uint8_t kSensePresent = 2;
inline constexpr U8 kScsiStatus{105};
inline constexpr Le16 kResponseLength{106};
inline constexpr Block kResponse{108, 256};
inline constexpr std::size_t kData = 368;
inline constexpr std::size_t kSizeWithoutData = 372;
}  // namespace ssp

/// CSMI_SAS_STP_PASSTHRU: request, status at 72, data at 164.
namespace stp {
inline constexpr std::uint32_t kControlCode = 25;  // CC_CSMI_SAS_STP_PASSTHRU
inline constexpr Block kCommandFis{44, 20};
inline constexpr Le32 kFlags{64};
inline constexpr Le32 kDataLength{68};
inline constexpr Block kStatusFis{76, 20};
inline constexpr std::size_t kData = 164;
inline constexpr std::size_t kSizeWithoutData = 168;
}  // namespace stp

}  // namespace orvik::module::raid::csmi
