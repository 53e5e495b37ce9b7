#pragma once

// The vendor library's command packet, its commands and the data blocks, as far as they are used. Offsets are from
// the start of the packet, the block or the entry named.

#include <cstddef>
#include <cstdint>

#include "utils/bytes/byte_view.h"

namespace orvik::module::raid::lsi {

using utils::Block;
using utils::BlockArray;
using utils::Le16;
using utils::Le32;
using utils::Le64;
using utils::U8;

/// The argument of `ProcessLibCommand`.
namespace packet {
inline constexpr U8 kType{0};
inline constexpr U8 kCommand{1};
inline constexpr Le32 kControllerId{4};
inline constexpr Le16 kDeviceId{8};  // at the same offset as kSequenceNumber
inline constexpr Le16 kSequenceNumber{8};
inline constexpr U8 kTargetId{10};
inline constexpr Le32 kDataSize{28};
inline constexpr Le64 kDataAddress{32};
inline constexpr std::size_t kSize = 40;
}  // namespace packet

/// Type and command bytes, and the size of the data block.
struct Code {
  std::uint8_t type;
  std::uint8_t command;
  std::size_t dataSize;
};

namespace code {
inline constexpr Code kInitialise{0, 0, 260};
inline constexpr Code kListControllers{0, 3, 260};
inline constexpr Code kClose{0, 9, 0};
inline constexpr Code kControllerInformation{1, 0, 2480};
inline constexpr Code kPhysicalDriveList{1, 4, 6152};
inline constexpr Code kEnclosureList{1, 5, 4616};
inline constexpr Code kLogicalDriveList{1, 13, 4104};
inline constexpr Code kBatteryStatus{1, 20, 2070};
inline constexpr Code kPhysicalDriveInformation{2, 0, 512};
inline constexpr Code kLogicalDriveInformation{3, 0, 384};
inline constexpr Code kCancelCheck{3, 6, 0};
inline constexpr Code kStartCheck{3, 7, 0};
inline constexpr Code kCheckProgress{3, 8, 36};
inline constexpr Code kMemberList{3, 11, 516};
inline constexpr Code kScsiPassThrough{6, 0, 0};  // frame and data
inline constexpr Code kSataPassThrough{6, 2, 0};  // frame and data
}  // namespace code

namespace controller_list {
inline constexpr Le16 kCount{0};
inline constexpr BlockArray kEntries{4, 4};
inline constexpr Le32 kEntryControllerId{0};
}  // namespace controller_list

namespace controller_information {
inline constexpr U8 kDriveInterfaces{104};
inline constexpr Block kProductName{1344, 80};
inline constexpr Block kSerialNumber{1424, 76};
inline constexpr Le32 kRaidLevels{1500};
inline constexpr Le32 kAdapterOperations{1504};
inline constexpr std::uint32_t kBatterySupported = 0x80;
}  // namespace controller_information

namespace logical_drive_list {
inline constexpr Le32 kCount{0};
inline constexpr BlockArray kEntries{8, 16};
inline constexpr U8 kEntryTargetId{0};
inline constexpr Le16 kEntrySequenceNumber{2};
}  // namespace logical_drive_list

namespace member_list {
inline constexpr Le32 kCount{0};
}  // namespace member_list

namespace logical_drive_information {
inline constexpr Le16 kSequenceNumber{2};
inline constexpr U8 kPrimaryLevel{32};
inline constexpr U8 kSecondaryLevel{34};
inline constexpr U8 kState{38};
inline constexpr U8 kConsistent{40};
inline constexpr std::uint8_t kIsConsistent = 1;
inline constexpr Le64 kSizeInBlocks{256};
}  // namespace logical_drive_information

namespace physical_drive_list {
inline constexpr Le32 kCount{4};
inline constexpr BlockArray kEntries{8, 24};
inline constexpr Le16 kEntryDeviceId{0};
inline constexpr U8 kEntryDeviceType{6};
inline constexpr std::uint8_t kDirectAccessDevice = 0x00;  // SPC: peripheral device type
}  // namespace physical_drive_list

namespace physical_drive_information {
inline constexpr Block kVendor{12, 8};
inline constexpr Block kProduct{20, 16};
inline constexpr Le64 kSizeInBlocks{232};
inline constexpr U8 kInterface{401};
inline constexpr std::uint8_t kParallelScsi = 1;
inline constexpr std::uint8_t kSas = 2;
inline constexpr std::uint8_t kSata = 3;
}  // namespace physical_drive_information

namespace enclosure_list {
inline constexpr Le32 kCount{0};
inline constexpr BlockArray kEntries{8, 144};
inline constexpr Le16 kEntryEnclosureId{0};
inline constexpr U8 kEntryFault{9};
}  // namespace enclosure_list

namespace battery_status {
inline constexpr Le16 kType{2064};
inline constexpr std::uint16_t kNoBattery = 0;
inline constexpr Le16 kStatus{2066};
inline constexpr std::uint16_t kPackMissing = 0x01;
inline constexpr std::uint16_t kVoltageLow = 0x02;
inline constexpr std::uint16_t kTemperatureHigh = 0x04;
}  // namespace battery_status

namespace check_progress {
inline constexpr U8 kFlags{0};
inline constexpr std::uint8_t kRunning = 0x01;
inline constexpr Le16 kProgress{4};
inline constexpr double kComplete = 65535;
}  // namespace check_progress

namespace direction {
inline constexpr std::uint8_t kNone = 0;
inline constexpr std::uint8_t kOut = 1;
inline constexpr std::uint8_t kIn = 2;
}  // namespace direction

inline constexpr std::uint8_t kTimeoutSeconds = 30;

/// Frame of the SCSI pass-through, in front of the data.
namespace scsi_frame {
inline constexpr Le16 kDeviceId{0};
inline constexpr U8 kUnit{2};  // always 1
inline constexpr U8 kDirection{4};
inline constexpr U8 kTimeout{8};
inline constexpr U8 kScsiStatus{10};
inline constexpr U8 kCdbLength{11};
inline constexpr Block kCdb{12, 16};
inline constexpr Block kSense{28, 32};
inline constexpr Le32 kDataLength{60};
inline constexpr std::size_t kData = 64;
}  // namespace scsi_frame

/// Frame of the SATA pass-through, in front of the data.
namespace sata_frame {
inline constexpr U8 kDeviceId{0};
inline constexpr U8 kDirection{1};
inline constexpr U8 kTimeout{2};
inline constexpr Le32 kFlags{4};
inline constexpr std::uint32_t kDataIn = 0x001;
inline constexpr std::uint32_t kDataOut = 0x002;
inline constexpr std::uint32_t kNoData = 0x004;
inline constexpr std::uint32_t kIdentify = 0x010;
inline constexpr std::uint32_t kOffLineImmediate = 0x100;
inline constexpr Block kCommandFis{8, 20};
inline constexpr U8 kCompletionStatus{28};
inline constexpr Le32 kFisAreaLength{32};
inline constexpr Le32 kDataLength{36};
inline constexpr Block kStatusFis{40, 20};
inline constexpr std::size_t kData = 60;
}  // namespace sata_frame

}  // namespace orvik::module::raid::lsi
