#include "simulation/drives/scsi/scsi_drive.h"

#include <algorithm>
#include <array>
#include <bit>
#include <utility>

#include "simulation/bytes/bytes.h"
#include "simulation/drives/scsi/sense_data.h"

namespace orvik::simulation {

namespace {

constexpr std::uint8_t kTestUnitReady = 0x00;
constexpr std::uint8_t kInquiry = 0x12;
constexpr std::uint8_t kServiceActionIn16 = 0x9E;
constexpr std::uint8_t kReadCapacity16 = 0x10;

// INQUIRY (SPC-4).
namespace inquiry_cdb {
constexpr U8 kFlags{1};
constexpr U8 kPageCode{2};
constexpr Be16 kAllocationLength{3};
constexpr std::uint8_t kEvpd = 0x01;
}  // namespace inquiry_cdb

// Standard INQUIRY data (SPC-4).
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

// READ CAPACITY (16) (SBC-3).
namespace read_capacity16 {
constexpr U8 kServiceAction{1};
constexpr Be32 kAllocationLength{10};
constexpr std::size_t kSize = 32;
constexpr Be64 kLastLba{0};
constexpr Be32 kBlockLength{8};
constexpr U8 kPhysicalExponent{13};
}  // namespace read_capacity16

// SAM-5, SPC-4 and SBC-3, each without a version claimed.
constexpr std::array<std::uint16_t, 3> kStandards = {0x00A0, 0x0460, 0x04C0};

ScsiCompletion Deliver(std::span<const std::uint8_t> reply, std::size_t allocation, std::span<std::uint8_t> data) {
  const std::size_t size = std::min({reply.size(), allocation, data.size()});
  std::ranges::copy(reply.first(size), data.begin());
  return {.transferred = size};
}

ScsiCompletion Refuse(SenseCode code, std::optional<std::uint16_t> field = {}) {
  return {.status = kScsiCheckCondition, .sense = MakeFixedSense(code, field)};
}

ScsiCompletion TestUnitReady(ScsiDrive& /*drive*/, std::span<const std::uint8_t> /*cdb*/,
                             std::span<std::uint8_t> /*data*/) {
  return {};
}

ScsiCompletion Inquiry(ScsiDrive& drive, std::span<const std::uint8_t> cdb, std::span<std::uint8_t> data) {
  if ((Get(cdb, inquiry_cdb::kFlags) & inquiry_cdb::kEvpd) != 0) {
    return Refuse(kInvalidFieldInCdb, std::uint16_t{inquiry_cdb::kFlags.offset});
  }
  if (Get(cdb, inquiry_cdb::kPageCode) != 0) {
    return Refuse(kInvalidFieldInCdb, std::uint16_t{inquiry_cdb::kPageCode.offset});
  }
  std::array<std::uint8_t, inquiry_data::kSize> reply{};
  Set(reply, inquiry_data::kVersion, 6);            // SPC-4
  Set(reply, inquiry_data::kResponseFormat, 0x12);  // hierarchical LUNs, standard format
  Set(reply, inquiry_data::kAdditionalLength, inquiry_data::kSize - 5);
  Set(reply, inquiry_data::kCommandQueueing, 0x02);
  SetText(reply, inquiry_data::kVendor, drive.Description().vendor, ' ');
  SetText(reply, inquiry_data::kProduct, drive.Description().product, ' ');
  SetText(reply, inquiry_data::kRevision, drive.Description().revision, ' ');
  for (std::size_t i = 0; i < kStandards.size(); ++i) {
    Set(reply, Be16{inquiry_data::kVersionDescriptors + 2 * i}, kStandards.at(i));
  }
  return Deliver(reply, Get(cdb, inquiry_cdb::kAllocationLength), data);
}

ScsiCompletion ServiceActionIn16(ScsiDrive& drive, std::span<const std::uint8_t> cdb, std::span<std::uint8_t> data) {
  if ((Get(cdb, read_capacity16::kServiceAction) & 0x1F) != kReadCapacity16) {
    return Refuse(kInvalidFieldInCdb, std::uint16_t{read_capacity16::kServiceAction.offset});
  }
  std::array<std::uint8_t, read_capacity16::kSize> reply{};
  Set(reply, read_capacity16::kLastLba, drive.Description().sectors - 1);
  Set(reply, read_capacity16::kBlockLength, drive.Description().sectorSize);
  const std::uint32_t ratio = std::max(drive.Description().physicalSectorSize / drive.Description().sectorSize, 1U);
  Set(reply, read_capacity16::kPhysicalExponent, static_cast<std::uint8_t>(std::countr_zero(std::bit_floor(ratio))));
  return Deliver(reply, Get(cdb, read_capacity16::kAllocationLength), data);
}

}  // namespace

ScsiDrive::ScsiDrive(SasDriveDescription description) : description_(std::move(description)) {}

std::optional<ScsiCompletion> ScsiDrive::Execute(std::span<const std::uint8_t> cdb, std::span<std::uint8_t> data) {
  struct Handler {
    std::uint8_t operation;
    ScsiCompletion (*execute)(ScsiDrive&, std::span<const std::uint8_t>, std::span<std::uint8_t>);
  };
  static constexpr std::array kHandlers = {
      Handler{kTestUnitReady, TestUnitReady},
      Handler{kInquiry, Inquiry},
      Handler{kServiceActionIn16, ServiceActionIn16},
  };

  if (description_.silent) return std::nullopt;
  const std::uint8_t operation = Get(cdb, U8{0});
  const auto* handler = std::ranges::find(kHandlers, operation, &Handler::operation);
  if (handler == kHandlers.end()) return Refuse(kInvalidOperationCode);
  return handler->execute(*this, cdb, data);
}

}  // namespace orvik::simulation
