// Identification of a SCSI drive.

#include <hostkit.h>

#include <array>
#include <limits>
#include <string>
#include <vector>

#include "module/storage/scsi/inquiry_data.h"
#include "module/storage/scsi/scsi_protocol.h"
#include "module/storage/standards/spc_versions.h"
#include "module/storage/standards/version_descriptors.h"

namespace orvik::module::storage {

namespace {

using utils::ByteView;

constexpr std::int32_t kReplySize = 64;
using ReplyBuffer = std::array<std::uint8_t, kReplySize>;

/// The hint of a caller who knows that failure prediction must not be asked for.
constexpr std::uint32_t kHintNoFailurePrediction = 2;

std::string TextUntilZero(ByteView data, utils::Block block) {
  std::string text = data.Text(block);
  // The contract bounds the text with the host's string service.
  text.resize(get_string_handler()->BoundedLength(text.data(), text.size()));
  return text;
}

void AppendVersionDescriptors(ByteView reply, std::vector<std::string>& standards) {
  for (std::size_t i = 0; i < inquiry_data::kVersionDescriptorCount; ++i) {
    const utils::Be16 descriptor{inquiry_data::kVersionDescriptors.At(i).offset};
    const auto name = VersionDescriptorName(reply.Get(descriptor));
    if (!name.empty()) standards.emplace_back(name);
  }
}

}  // namespace

Status ScsiProtocol::GetProperties(ProtocolProperties* properties) {
  if (properties == nullptr) return status::kFailure;
  properties_->protocolName = "SCSI";
  properties_->supportedStandards.clear();
  ReadInquiry();
  ReadSerialNumber();
  const Status capacity = ReadCapacity();
  if (capacity == status::kSuccess) {
    ReadRotationRate();
    interfaceHint_ = properties->interfaceHint;
    properties_->smartSupported = false;
    properties_->smartEnabled = false;
    if (interfaceHint_ != kHintNoFailurePrediction) ProbeFailurePrediction();
  }
  properties_->securitySupported = false;
  properties_->securityLocked = false;
  // What was found out is of use to the caller even when the capacity is unknown.
  CopyProperties(*properties);
  return capacity;
}

void ScsiProtocol::ReadInquiry() {
  ReplyBuffer data{};
  Inquiry command(data.data(), kReplySize, false, 0);
  ByteView reply;
  if (Fetch(command, reply) != status::kSuccess || reply.Size() < inquiry_data::kMinimumSize) return;
  properties_->standardVersion = SpcVersionName(reply.Get(inquiry_data::kVersion));
  properties_->inquiryFlag = reply.Get(inquiry_data::kRemovable) == inquiry_data::kFlagged;
  properties_->vendor = TextUntilZero(reply, inquiry_data::kVendor);
  properties_->firmwareRevision = TextUntilZero(reply, inquiry_data::kRevision);
  properties_->model = TextUntilZero(reply, inquiry_data::kProduct);
  AppendVersionDescriptors(reply, properties_->supportedStandards);
}

void ScsiProtocol::ReadSerialNumber() {
  using namespace vital_product_data;
  ReplyBuffer data{};
  Inquiry command(data.data(), kReplySize, true, kUnitSerialNumber);
  ByteView page;
  if (Fetch(command, page) != status::kSuccess || page.Size() < kHeaderSize) return;
  const utils::Block serial{kHeaderSize, page.Get(kPageLength)};
  if (page.Holds(serial)) {
    properties_->serialNumber = TextUntilZero(page, serial);
    return;
  }
  std::vector<std::uint8_t> whole(serial.offset + serial.size);
  Inquiry again(whole.data(), static_cast<std::int32_t>(whole.size()), true, kUnitSerialNumber);
  if (Fetch(again, page) == status::kSuccess && page.Holds(serial)) {
    properties_->serialNumber = TextUntilZero(page, serial);
  }
}

bool ScsiProtocol::TakeCapacity16() {
  using namespace read_capacity16_data;
  std::array<std::uint8_t, ReadCapacity16::kDataSize> data{};
  ReadCapacity16 command(data.data());
  ByteView reply;
  if (Fetch(command, reply) != status::kSuccess || reply.Size() < kMinimumSize) return false;
  const std::uint64_t lastLba = reply.Get(kLastLba);
  if (lastLba == std::numeric_limits<std::uint64_t>::max()) return false;  // its sectors can't be counted
  properties_->sectorCount = lastLba + 1;
  properties_->logicalSectorSize = reply.Get(kBlockLength);
  properties_->physicalSectorSize =
      DoubledSize(properties_->logicalSectorSize, reply.Get(kExponents) & kBlocksPerPhysicalExponent);
  return true;
}

Status ScsiProtocol::ReadCapacity() {
  using namespace read_capacity10_data;
  if (TakeCapacity16()) return status::kSuccess;
  std::array<std::uint8_t, ReadCapacity10::kDataSize> data{};
  ReadCapacity10 command(data.data());
  ByteView reply;
  if (const Status fetched = Fetch(command, reply); fetched != status::kSuccess) return fetched;
  if (reply.Size() < data.size()) return status::kInvalidData;
  const std::uint32_t lastLba = reply.Get(kLastLba);
  if (lastLba == kTooLarge) return status::kFailure;
  properties_->sectorCount = std::uint64_t{lastLba} + 1;
  properties_->logicalSectorSize = reply.Get(kBlockLength);
  properties_->physicalSectorSize = 0;
  return status::kSuccess;
}

void ScsiProtocol::ReadRotationRate() {
  using namespace block_device_characteristics;
  ReplyBuffer data{};
  Inquiry command(data.data(), kReplySize, true, vital_product_data::kBlockDeviceCharacteristics);
  ByteView page;
  const bool fetched = Fetch(command, page) == status::kSuccess && page.Size() >= kMinimumSize;
  if (!fetched || page.Get(vital_product_data::kPageCode) != vital_product_data::kBlockDeviceCharacteristics) {
    properties_->rotationRate = 0;
    return;
  }
  const std::uint16_t rate = page.Get(kRotationRate);
  if (rate == kNonRotating) {
    properties_->isSolidState = true;
    properties_->rotationRate = 0;
  } else if (rate >= kSlowestRotation && rate <= kFastestRotation) {
    properties_->isSolidState = false;
    properties_->rotationRate = rate;
  }
}

}  // namespace orvik::module::storage
