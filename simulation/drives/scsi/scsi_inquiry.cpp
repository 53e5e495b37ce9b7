// INQUIRY (SPC-4) and READ CAPACITY (SBC-3) of a SCSI drive.

#include <algorithm>
#include <array>
#include <bit>
#include <limits>
#include <string>

#include "simulation/drives/scsi/scsi_drive.h"

namespace orvik::simulation {

namespace {

namespace inquiry_cdb {
constexpr U8 kFlags{1};
constexpr U8 kPageCode{2};
constexpr Be16 kAllocationLength{3};
constexpr std::uint8_t kEvpd = 0x01;
}  // namespace inquiry_cdb

namespace inquiry_data {
constexpr std::size_t kSize = 96;
constexpr U8 kVersion{2};
constexpr U8 kResponseFormat{3};
constexpr U8 kAdditionalLength{4};
constexpr U8 kCommandQueueing{7};
constexpr Block kVendor{8, 8};
constexpr Block kProduct{16, 16};
constexpr Block kRevision{32, 4};
constexpr std::size_t kVersionDescriptors = 58;
}  // namespace inquiry_data

namespace vital_product_data {
constexpr std::size_t kHeaderSize = 4;
constexpr U8 kPageCode{1};
constexpr Be16 kPageLength{2};
constexpr std::uint8_t kPages = 0x00;
constexpr std::uint8_t kSerialNumber = 0x80;
constexpr std::uint8_t kCharacteristics = 0xB1;
}  // namespace vital_product_data

// Block device characteristics.
namespace characteristics_page {
constexpr std::size_t kSize = 60;
constexpr Be16 kRotationRate{0};
constexpr U8 kFormFactor{3};
constexpr std::uint8_t kTwoAndAHalfInches = 0x03;
}  // namespace characteristics_page

namespace read_capacity10 {
constexpr Be32 kLba{2};
constexpr U8 kFlags{8};
constexpr std::uint8_t kPmi = 0x01;
constexpr std::size_t kSize = 8;
constexpr Be32 kLastLba{0};
constexpr Be32 kBlockLength{4};
}  // namespace read_capacity10

namespace read_capacity16 {
constexpr U8 kServiceAction{1};
constexpr std::uint8_t kReadCapacity = 0x10;
constexpr Be32 kAllocationLength{10};
constexpr std::size_t kSize = 32;
constexpr Be64 kLastLba{0};
constexpr Be32 kBlockLength{8};
constexpr U8 kPhysicalExponent{13};
}  // namespace read_capacity16

// SAM-5, SPC-4, SBC-3 and SAS-2, each without a version claimed.
constexpr std::array<std::uint16_t, 4> kStandards = {0x00A0, 0x0460, 0x04C0, 0x0C20};

std::vector<std::uint8_t> CharacteristicsPage(const SasDriveDescription& drive) {
  std::vector<std::uint8_t> content(characteristics_page::kSize);
  Set(content, characteristics_page::kRotationRate, drive.rotationRate);
  Set(content, characteristics_page::kFormFactor, characteristics_page::kTwoAndAHalfInches);
  return content;
}

// A page without its header; nothing for an unsupported page.
std::optional<std::vector<std::uint8_t>> VitalProductData(const SasDriveDescription& drive, std::uint8_t page) {
  using namespace vital_product_data;
  switch (page) {
    case kPages: return std::vector{kPages, kSerialNumber, kCharacteristics};
    case kSerialNumber: return std::vector<std::uint8_t>(drive.serial.begin(), drive.serial.end());
    case kCharacteristics: return CharacteristicsPage(drive);
    default: return std::nullopt;
  }
}

std::string TextIn(std::span<const std::uint8_t> data, Block block) {
  const auto bytes = Inside(data, block);
  const std::string text(bytes.begin(), bytes.end());
  return text.substr(0, text.find_last_not_of(' ') + 1);
}

}  // namespace

void DescribeByInquiry(SasDriveDescription& drive) {
  drive.vendor = TextIn(drive.inquiry, inquiry_data::kVendor);
  drive.product = TextIn(drive.inquiry, inquiry_data::kProduct);
  drive.revision = TextIn(drive.inquiry, inquiry_data::kRevision);
}

std::vector<std::uint8_t> ScsiDrive::StandardInquiry() const {
  if (!description_.inquiry.empty()) return description_.inquiry;
  std::vector<std::uint8_t> reply(inquiry_data::kSize);
  Set(reply, inquiry_data::kVersion, 6);            // SPC-4
  Set(reply, inquiry_data::kResponseFormat, 0x12);  // hierarchical LUNs, standard format
  Set(reply, inquiry_data::kAdditionalLength, inquiry_data::kSize - 5);
  Set(reply, inquiry_data::kCommandQueueing, 0x02);
  SetText(reply, inquiry_data::kVendor, description_.vendor, ' ');
  SetText(reply, inquiry_data::kProduct, description_.product, ' ');
  SetText(reply, inquiry_data::kRevision, description_.revision, ' ');
  for (std::size_t i = 0; i < kStandards.size(); ++i) {
    Set(reply, Be16{inquiry_data::kVersionDescriptors + 2 * i}, kStandards.at(i));
  }
  return reply;
}

ScsiCompletion ScsiDrive::Inquiry(Cdb cdb, Data data) {
  const std::size_t allocation = Get(cdb, inquiry_cdb::kAllocationLength);
  const std::uint8_t page = Get(cdb, inquiry_cdb::kPageCode);
  if ((Get(cdb, inquiry_cdb::kFlags) & inquiry_cdb::kEvpd) == 0) {
    if (page != 0) return RefuseField(inquiry_cdb::kPageCode);
    return Deliver(StandardInquiry(), allocation, data);
  }
  const auto content = VitalProductData(description_, page);
  if (!content) return RefuseField(inquiry_cdb::kPageCode);
  std::vector<std::uint8_t> reply(vital_product_data::kHeaderSize);
  Set(reply, vital_product_data::kPageCode, page);
  Set(reply, vital_product_data::kPageLength, static_cast<std::uint16_t>(content->size()));
  reply.insert(reply.end(), content->begin(), content->end());
  return Deliver(reply, allocation, data);
}

// A drive too large for 32 bits reports the largest number.
ScsiCompletion ScsiDrive::ReadCapacity10(Cdb cdb, Data data) {
  constexpr std::uint64_t kTooLarge = std::numeric_limits<std::uint32_t>::max();
  const bool partial = (Get(cdb, read_capacity10::kFlags) & read_capacity10::kPmi) != 0;
  if (!partial && Get(cdb, read_capacity10::kLba) != 0) return RefuseField(U8{read_capacity10::kLba.offset});
  std::array<std::uint8_t, read_capacity10::kSize> reply{};
  Set(reply, read_capacity10::kLastLba, static_cast<std::uint32_t>(std::min(description_.sectors - 1, kTooLarge)));
  Set(reply, read_capacity10::kBlockLength, description_.sectorSize);
  return Deliver(reply, reply.size(), data);
}

ScsiCompletion ScsiDrive::ServiceActionIn16(Cdb cdb, Data data) {
  if ((Get(cdb, read_capacity16::kServiceAction) & 0x1F) != read_capacity16::kReadCapacity) {
    return RefuseField(read_capacity16::kServiceAction);
  }
  std::array<std::uint8_t, read_capacity16::kSize> reply{};
  Set(reply, read_capacity16::kLastLba, description_.sectors - 1);
  Set(reply, read_capacity16::kBlockLength, description_.sectorSize);
  const std::uint32_t ratio = std::max(description_.physicalSectorSize / description_.sectorSize, 1U);
  Set(reply, read_capacity16::kPhysicalExponent, static_cast<std::uint8_t>(std::countr_zero(std::bit_floor(ratio))));
  return Deliver(reply, Get(cdb, read_capacity16::kAllocationLength), data);
}

}  // namespace orvik::simulation
