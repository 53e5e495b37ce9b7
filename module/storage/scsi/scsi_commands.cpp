#include "module/storage/scsi/scsi_commands.h"

namespace orvik::module::storage {

namespace {

using utils::Be16;
using utils::ByteView;
using utils::U8;

namespace opcode {
constexpr std::uint8_t kRequestSense = 0x03;
constexpr std::uint8_t kInquiry = 0x12;
constexpr std::uint8_t kModeSelect6 = 0x15;
constexpr std::uint8_t kModeSense6 = 0x1A;
constexpr std::uint8_t kSendDiagnostic = 0x1D;
constexpr std::uint8_t kReadCapacity10 = 0x25;
constexpr std::uint8_t kLogSense = 0x4D;
constexpr std::uint8_t kModeSelect10 = 0x55;
constexpr std::uint8_t kModeSense10 = 0x5A;
constexpr std::uint8_t kServiceActionIn16 = 0x9E;
}  // namespace opcode

/// Lengths of CDBs by their group.
constexpr std::uint8_t kCdb6 = 6;
constexpr std::uint8_t kCdb10 = 10;
constexpr std::uint8_t kCdb16 = 16;

namespace inquiry_cdb {
constexpr U8 kFlags{1};
constexpr std::uint8_t kVitalProductData = 0x01;  // EVPD
constexpr U8 kPageCode{2};
constexpr Be16 kAllocationLength{3};
}  // namespace inquiry_cdb

namespace read_capacity16_cdb {
constexpr U8 kServiceAction{1};
constexpr std::uint8_t kReadCapacity = 0x10;
constexpr U8 kAllocationLength{13};  // the low byte of a 32-bit field
}  // namespace read_capacity16_cdb

/// The allocation or parameter list length of 6-byte CDBs, and of REQUEST SENSE.
constexpr U8 kLength6{4};
/// The allocation or parameter list length of 10-byte CDBs.
constexpr Be16 kLength10{7};

namespace log_sense_cdb {
constexpr U8 kPage{2};
constexpr std::uint8_t kCumulativeValues = 0x40;
constexpr std::uint8_t kTemperature = kCumulativeValues | 0x0D;
constexpr std::uint8_t kSelfTest = kCumulativeValues | 0x10;
constexpr std::uint8_t kInformationalExceptions = kCumulativeValues | 0x2F;
}  // namespace log_sense_cdb

namespace mode_sense_cdb {
constexpr U8 kFlags{1};
constexpr std::uint8_t kNoBlockDescriptors = 0x08;  // DBD
constexpr U8 kPage{2};
constexpr std::uint8_t kInformationalExceptionsControl = 0x1C;  // current values
}  // namespace mode_sense_cdb

namespace mode_select_cdb {
constexpr U8 kFlags{1};
constexpr std::uint8_t kPageFormat = 0x10;  // PF
constexpr std::uint8_t kSavePages = 0x01;   // SP
// PS of the page's first byte, behind the mode parameter header: the page can be saved.
constexpr U8 kPageCode6{4};
constexpr U8 kPageCode10{8};
constexpr std::uint8_t kSavable = 0x80;
}  // namespace mode_select_cdb

namespace send_diagnostic_cdb {
constexpr U8 kFlags{1};
constexpr std::uint8_t kSelfTest = 0x04;  // SELFTEST: the default self-test
constexpr unsigned kCodeShift = 5;
}  // namespace send_diagnostic_cdb

std::uint8_t ModeSelectFlags(ByteView data, U8 pageCode) {
  const bool savable = (data.Get(pageCode) & mode_select_cdb::kSavable) != 0;
  return savable ? mode_select_cdb::kPageFormat | mode_select_cdb::kSavePages : mode_select_cdb::kPageFormat;
}

}  // namespace

Inquiry::Inquiry(std::uint8_t* data, std::int32_t size, bool vitalProductData, std::uint8_t pageCode) {
  const auto view = StartCdb(opcode::kInquiry, kCdb6);
  if (vitalProductData) {
    view.Put(inquiry_cdb::kFlags, inquiry_cdb::kVitalProductData);
    view.Put(inquiry_cdb::kPageCode, pageCode);
  }
  view.Put(inquiry_cdb::kAllocationLength, static_cast<std::uint16_t>(size));
  TakeIn(data, static_cast<std::uint16_t>(size));
}

ReadCapacity10::ReadCapacity10(std::uint8_t* data) {
  StartCdb(opcode::kReadCapacity10, kCdb10);
  TakeIn(data, kDataSize);
}

ReadCapacity16::ReadCapacity16(std::uint8_t* data) {
  const auto view = StartCdb(opcode::kServiceActionIn16, kCdb16);
  view.Put(read_capacity16_cdb::kServiceAction, read_capacity16_cdb::kReadCapacity);
  view.Put(read_capacity16_cdb::kAllocationLength, kDataSize);
  TakeIn(data, kDataSize);
}

RequestSense::RequestSense(std::uint8_t* data, std::uint8_t size) {
  // The CDB has 6 bytes by the standard; drives take it with 10, the last ones zero.
  StartCdb(opcode::kRequestSense, kCdb10).Put(kLength6, size);
  TakeIn(data, size);
}

LogSenseIECPage::LogSenseIECPage(std::uint8_t* data, std::uint16_t size) {
  const auto view = StartCdb(opcode::kLogSense, kCdb10);
  view.Put(log_sense_cdb::kPage, log_sense_cdb::kInformationalExceptions);
  view.Put(kLength10, size);
  TakeIn(data, size);
}

LogSenseSelfTestPage::LogSenseSelfTestPage(std::uint8_t* data, std::uint16_t size) {
  const auto view = StartCdb(opcode::kLogSense, kCdb10);
  view.Put(log_sense_cdb::kPage, log_sense_cdb::kSelfTest);
  view.Put(kLength10, size);
  Transfer(Direction::kIn, data, size);
}

LogSenseTemperaturePage::LogSenseTemperaturePage(std::uint8_t* data, std::uint16_t size) {
  const auto view = StartCdb(opcode::kLogSense, kCdb10);
  view.Put(log_sense_cdb::kPage, log_sense_cdb::kTemperature);
  view.Put(kLength10, size);
  Transfer(Direction::kIn, data, size);
}

ModeSense6IECPage::ModeSense6IECPage(std::uint8_t* data, std::uint8_t size) {
  const auto view = StartCdb(opcode::kModeSense6, kCdb6);
  view.Put(mode_sense_cdb::kFlags, mode_sense_cdb::kNoBlockDescriptors);
  view.Put(mode_sense_cdb::kPage, mode_sense_cdb::kInformationalExceptionsControl);
  view.Put(kLength6, size);
  Transfer(Direction::kIn, data, size);
}

ModeSense10IECPage::ModeSense10IECPage(std::uint8_t* data, std::uint16_t size) {
  const auto view = StartCdb(opcode::kModeSense10, kCdb10);
  view.Put(mode_sense_cdb::kFlags, mode_sense_cdb::kNoBlockDescriptors);
  view.Put(mode_sense_cdb::kPage, mode_sense_cdb::kInformationalExceptionsControl);
  view.Put(kLength10, size);
  Transfer(Direction::kIn, data, size);
}

ModeSelect6IecPage::ModeSelect6IecPage(std::uint8_t* data) {
  const auto view = StartCdb(opcode::kModeSelect6, kCdb6);
  Transfer(Direction::kOut, data, kDataSize);
  view.Put(mode_select_cdb::kFlags, ModeSelectFlags(ByteView(DataOf(*this)), mode_select_cdb::kPageCode6));
  view.Put(kLength6, kDataSize);
}

ModeSelect10IecPage::ModeSelect10IecPage(std::uint8_t* data) {
  const auto view = StartCdb(opcode::kModeSelect10, kCdb10);
  Transfer(Direction::kOut, data, kDataSize);
  view.Put(mode_select_cdb::kFlags, ModeSelectFlags(ByteView(DataOf(*this)), mode_select_cdb::kPageCode10));
  view.Put(kLength10, kDataSize);
}

SendDiagnostic::SendDiagnostic(std::uint8_t code) {
  using namespace send_diagnostic_cdb;
  const auto flags = code == 0 ? kSelfTest : static_cast<std::uint8_t>(code << kCodeShift);
  StartCdb(opcode::kSendDiagnostic, kCdb6).Put(kFlags, flags);
}

}  // namespace orvik::module::storage
