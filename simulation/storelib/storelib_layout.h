#pragma once

// The command packet of the vendor's library and the data blocks that it fills. Offsets count from the start of the
// packet or block.

#include <cstddef>
#include <cstdint>

#include "simulation/bytes.h"

namespace orvik::simulation {

namespace command_packet {
inline constexpr U8 kType{0};
inline constexpr U8 kCommand{1};
inline constexpr Block kReserved{2, 2};
inline constexpr Le32 kControllerId{4};
inline constexpr Le16 kDeviceId{8};
inline constexpr Le16 kSequenceNumber{8};
inline constexpr U8 kTargetId{10};
inline constexpr Block kMoreReserved{11, 17};
inline constexpr Le32 kDataSize{28};
inline constexpr Le64 kDataAddress{32};
inline constexpr std::size_t kSize = 40;

// Types.
inline constexpr std::uint8_t kLibrary = 0;
inline constexpr std::uint8_t kController = 1;
inline constexpr std::uint8_t kPhysicalDrive = 2;
inline constexpr std::uint8_t kLogicalDrive = 3;
inline constexpr std::uint8_t kPassThrough = 6;
}  // namespace command_packet

namespace library_data {
inline constexpr std::size_t kSize = 260;
}  // namespace library_data

namespace controller_list {
inline constexpr Le16 kCount{0};
constexpr Le32 Id(std::size_t number) {
  return {4 + 4 * number};
}
inline constexpr std::size_t kMost = 64;
}  // namespace controller_list

namespace controller_info {
inline constexpr U8 kInterfaces{104};
inline constexpr Block kProduct{1344, 80};
inline constexpr Block kSerial{1424, 32};
inline constexpr Le32 kRaidLevels{1500};
inline constexpr Le32 kAdapterOperations{1504};
inline constexpr std::uint32_t kBatteryUnit = 0x80;
inline constexpr std::size_t kSize = 2480;
}  // namespace controller_info

namespace physical_drive_list {
inline constexpr Le32 kSizeUsed{0};
inline constexpr Le32 kCount{4};
inline constexpr std::size_t kHeaderSize = 8;
inline constexpr std::size_t kEntrySize = 24;
constexpr Block Entry(std::size_t number) {
  return {kHeaderSize + kEntrySize * number, kEntrySize};
}
// Of an entry.
inline constexpr Le16 kDeviceId{0};
inline constexpr U8 kScsiDeviceType{6};
inline constexpr std::size_t kMost = 256;
}  // namespace physical_drive_list

// The standard INQUIRY data begin at offset 4.
namespace physical_drive_info {
inline constexpr Le16 kDeviceId{0};
inline constexpr U8 kScsiDeviceType{4};
inline constexpr Block kVendor{12, 8};
inline constexpr Block kProduct{20, 16};
inline constexpr Block kRevision{36, 4};
inline constexpr Le64 kBlocks{232};
inline constexpr U8 kInterface{401};
inline constexpr std::size_t kSize = 512;

// Interfaces.
inline constexpr std::uint8_t kUnknown = 0;
inline constexpr std::uint8_t kSas = 2;
inline constexpr std::uint8_t kSata = 3;
}  // namespace physical_drive_info

namespace enclosure_list {
inline constexpr Le32 kCount{0};
inline constexpr std::size_t kEntrySize = 144;
constexpr Block Entry(std::size_t number) {
  return {8 + kEntrySize * number, kEntrySize};
}
// Of an entry.
inline constexpr Le16 kEnclosureId{0};
inline constexpr U8 kFault{9};
inline constexpr std::size_t kMost = 32;
inline constexpr std::size_t kSize = 4616;
}  // namespace enclosure_list

namespace logical_drive_list {
inline constexpr Le32 kCount{0};
inline constexpr std::size_t kEntrySize = 16;
constexpr Block Entry(std::size_t number) {
  return {8 + kEntrySize * number, kEntrySize};
}
// Of an entry.
inline constexpr U8 kTargetId{0};
inline constexpr Le16 kSequenceNumber{2};
inline constexpr std::size_t kMost = 256;
inline constexpr std::size_t kSize = 4104;
}  // namespace logical_drive_list

namespace logical_drive_info {
inline constexpr U8 kTargetId{0};
inline constexpr Le16 kSequenceNumber{2};
inline constexpr U8 kPrimaryLevel{32};
inline constexpr U8 kSecondaryLevel{34};
inline constexpr U8 kState{38};
inline constexpr U8 kConsistent{40};
inline constexpr Le64 kBlocks{256};
inline constexpr std::size_t kSize = 384;
}  // namespace logical_drive_info

namespace member_list {
inline constexpr Le32 kCount{0};
constexpr Le16 DeviceId(std::size_t number) {
  return {4 + 2 * number};
}
inline constexpr std::size_t kMost = 256;
inline constexpr std::size_t kSize = 516;
}  // namespace member_list

namespace battery_status {
inline constexpr Le16 kType{2064};
inline constexpr Le16 kStatus{2066};
inline constexpr std::uint16_t kPackMissing = 0x01;
inline constexpr std::uint16_t kLowVoltage = 0x02;
inline constexpr std::uint16_t kTemperatureHigh = 0x04;
inline constexpr std::size_t kSize = 2070;
}  // namespace battery_status

namespace check_progress {
inline constexpr U8 kFlags{0};
inline constexpr Le16 kProgress{4};
inline constexpr std::uint8_t kRunning = 0x01;
inline constexpr std::size_t kSize = 36;
}  // namespace check_progress

// Data direction, in the frames of both pass-through commands.
namespace frame_direction {
inline constexpr std::uint8_t kNone = 0;
inline constexpr std::uint8_t kOut = 1;
inline constexpr std::uint8_t kIn = 2;
}  // namespace frame_direction

namespace scsi_frame {
inline constexpr Le16 kDeviceId{0};
inline constexpr U8 kDirection{4};
inline constexpr U8 kScsiStatus{10};
inline constexpr U8 kCdbLength{11};
inline constexpr Block kCdb{12, 16};
inline constexpr Block kSense{28, 32};
inline constexpr Le32 kDataLength{60};
inline constexpr std::size_t kData = 64;
}  // namespace scsi_frame

namespace sata_frame {
inline constexpr U8 kDeviceId{0};
inline constexpr U8 kDirection{1};
inline constexpr Le32 kFlags{4};
inline constexpr Block kCommandFis{8, 20};
inline constexpr U8 kCompletionStatus{28};
inline constexpr Le32 kFisLength{32};
inline constexpr Le32 kDataLength{36};
inline constexpr Block kStatusFis{40, 20};
inline constexpr std::size_t kData = 60;

// Flags: the data direction again.
inline constexpr std::uint32_t kDirections = 0x07;
inline constexpr std::uint32_t kIn = 0x01;
inline constexpr std::uint32_t kOut = 0x02;
inline constexpr std::uint32_t kNone = 0x04;
// Completion status of a command that the drive ended with an error.
inline constexpr std::uint8_t kDeviceError = 0x01;
}  // namespace sata_frame

}  // namespace orvik::simulation
