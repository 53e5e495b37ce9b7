#pragma once

// The packets of the Common Storage Management Interface that the simulated controllers answer. Offsets count from
// the start of the buffer, header included.

#include <cstddef>
#include <cstdint>

#include "simulation/bytes.h"

namespace orvik::simulation {

// SRB_IO_CONTROL: the header of every packet that travels in IOCTL_SCSI_MINIPORT.
namespace srb_io_control {
inline constexpr Le32 kHeaderLength{0};
inline constexpr Block kSignature{4, 8};
inline constexpr Le32 kControlCode{16};
inline constexpr Le32 kReturnCode{20};
inline constexpr Le32 kLength{24};
inline constexpr std::size_t kSize = 28;
}  // namespace srb_io_control

namespace controller_config {
inline constexpr Le32 kBoardId{40};
inline constexpr U8 kControllerClass{46};
inline constexpr U8 kBusType{47};
inline constexpr U8 kPciDevice{49};
inline constexpr Block kSerialNumber{80, 81};
inline constexpr Le16 kRevision{162};  // major, minor, build and release follow one another
inline constexpr Le32 kControllerFlags{180};
inline constexpr std::size_t kSize = 208;
}  // namespace controller_config

namespace controller_status {
inline constexpr Le32 kStatus{28};
inline constexpr Le32 kOfflineReason{32};
inline constexpr std::size_t kSize = 64;
}  // namespace controller_status

namespace phy_info {
inline constexpr U8 kNumberOfPhys{28};
inline constexpr std::size_t kMaxPhys = 32;
inline constexpr std::size_t kPhySize = 64;
constexpr Block Phy(std::size_t number) {
  return {32 + kPhySize * number, kPhySize};
}
inline constexpr std::size_t kSize = 2080;
}  // namespace phy_info

// CSMI_SAS_PHY_ENTITY: the controller's side, the link, and what is attached.
namespace phy_entity {
inline constexpr Block kIdentify{0, 28};
inline constexpr U8 kPortIdentifier{28};
inline constexpr U8 kNegotiatedLinkRate{29};
inline constexpr U8 kMinimumLinkRate{30};
inline constexpr U8 kMaximumLinkRate{31};
inline constexpr U8 kAutoDiscover{33};
inline constexpr Block kAttached{36, 28};
}  // namespace phy_entity

// CSMI_SAS_IDENTIFY.
namespace sas_identify {
inline constexpr U8 kDeviceType{0};
inline constexpr U8 kInitiatorPortProtocol{2};
inline constexpr U8 kTargetPortProtocol{3};
inline constexpr Be64 kSasAddress{12};
inline constexpr U8 kPhyIdentifier{20};
inline constexpr U8 kSignalClass{21};
}  // namespace sas_identify

namespace raid_info {
inline constexpr Le32 kNumRaidSets{28};
inline constexpr Le32 kMaxDrivesPerSet{32};
inline constexpr Le32 kMaxRaidSets{36};
inline constexpr U8 kMaxRaidTypes{40};
inline constexpr Le32 kMaxPhysicalDrives{64};
inline constexpr Le32 kChangeCount{80};
inline constexpr std::size_t kSize = 128;
}  // namespace raid_info

namespace raid_config {
inline constexpr Le32 kRaidSetIndex{28};
inline constexpr Le32 kCapacity{32};
inline constexpr Le32 kStripeSize{36};
inline constexpr U8 kRaidType{40};
inline constexpr U8 kStatus{41};
inline constexpr U8 kInformation{42};
inline constexpr U8 kDriveCount{43};
inline constexpr Le32 kChangeCount{60};
inline constexpr std::size_t kDriveSize = 136;
constexpr Block Drive(std::size_t number) {
  return {64 + kDriveSize * number, kDriveSize};
}
inline constexpr std::size_t kSize = 64;
}  // namespace raid_config

// CSMI_SAS_RAID_DRIVES.
namespace raid_drive {
inline constexpr Block kModel{0, 40};
inline constexpr Block kFirmware{40, 8};
inline constexpr Block kSerialNumber{48, 40};
inline constexpr Be64 kSasAddress{88};
inline constexpr U8 kDriveStatus{104};
inline constexpr U8 kDriveUsage{105};
inline constexpr Le16 kBlockSize{106};
inline constexpr U8 kDriveType{108};
inline constexpr Le32 kDriveIndex{124};
inline constexpr Le64 kTotalUserBlocks{128};
}  // namespace raid_drive

// What the requests of both pass-through packets have in common.
namespace pass_through {
inline constexpr U8 kPhyIdentifier{28};
inline constexpr U8 kPortIdentifier{29};
inline constexpr Be64 kDestinationSasAddress{32};
inline constexpr std::uint8_t kUsePort = 0xFF;
inline constexpr std::uint8_t kIgnorePort = 0xFF;
inline constexpr std::uint32_t kRead = 0x01;
inline constexpr std::uint32_t kWrite = 0x02;
}  // namespace pass_through

namespace ssp_pass_through {
inline constexpr U8 kCdbLength{48};
inline constexpr Block kCdb{52, 16};
inline constexpr Le32 kFlags{68};
inline constexpr Le32 kDataLength{96};
inline constexpr U8 kConnectionStatus{100};
inline constexpr U8 kSspStatus{101};
inline constexpr U8 kDataPresent{104};
inline constexpr U8 kStatus{105};
inline constexpr Le16 kResponseLength{106};
inline constexpr Block kResponse{108, 256};
inline constexpr Le32 kDataBytes{364};
inline constexpr std::size_t kData = 368;
}  // namespace ssp_pass_through

namespace stp_pass_through {
inline constexpr Block kCommandFis{44, 20};
inline constexpr Le32 kFlags{64};
inline constexpr Le32 kDataLength{68};
inline constexpr U8 kConnectionStatus{72};
inline constexpr Block kStatusFis{76, 20};
inline constexpr Le32 kSStatus{96};
inline constexpr Le32 kSControl{104};
inline constexpr Le32 kDataBytes{160};
inline constexpr std::size_t kData = 164;
}  // namespace stp_pass_through

// ReturnCode of a CSMI packet.
inline constexpr std::uint32_t kCsmiSuccess = 0;
inline constexpr std::uint32_t kCsmiBadControlCode = 2;
inline constexpr std::uint32_t kCsmiInvalidParameter = 3;
inline constexpr std::uint32_t kCsmiRaidSetOutOfRange = 1000;
inline constexpr std::uint32_t kCsmiPhyDoesNotExist = 2003;
inline constexpr std::uint32_t kCsmiPhyDoesNotMatchPort = 2004;
inline constexpr std::uint32_t kCsmiSelectPhyOrPort = 2006;
inline constexpr std::uint32_t kCsmiPortDoesNotExist = 2007;
inline constexpr std::uint32_t kCsmiConnectionFailed = 2009;
inline constexpr std::uint32_t kCsmiNoSataDevice = 2010;
inline constexpr std::uint32_t kCsmiNotAnEndDevice = 2013;

// bConnectionStatus of a pass-through packet.
inline constexpr std::uint8_t kOpenAccepted = 0;
inline constexpr std::uint8_t kOpenRejectNoDestination = 3;
inline constexpr std::uint8_t kOpenRejectProtocolNotSupported = 5;

}  // namespace orvik::simulation
