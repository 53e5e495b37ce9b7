#include "module/storage/nvme/nvme_protocol.h"

#include <algorithm>
#include <string>

#include "module/storage/nvme/nvme_data.h"
#include "utils/text/string_handler.h"

namespace orvik::module::storage {

namespace {

using utils::ByteView;

constexpr std::uint32_t kOnlyNamespace = 1;
constexpr std::uint32_t kAllLife = 100;  // percent

std::string PrintableText(ByteView data, utils::Block block) {
  std::array<char, 64> printable{};
  const std::string text = data.Text(block);
  return OwnStringHandler()->CopyPrintable(printable.data(), static_cast<std::int32_t>(printable.size()), text.data(),
                                           static_cast<std::int32_t>(text.size()));
}

std::uint32_t FirstActiveNamespace(ByteView list) {
  for (std::size_t i = 0; i < active_namespaces::kCount; ++i) {
    if (const std::uint32_t number = list.Get(active_namespaces::Entry(i)); number != 0) return number;
  }
  return 0;
}

}  // namespace

Status NvmeProtocol::Send(NvmeCmd& command) {
  command.pathId = pathId_;
  return bridges_.Send(command);
}

Status NvmeProtocol::Identify(IdentifyTarget target, std::uint32_t namespaceNumber, IdentifyData& data) {
  NvmeIdentifyDevice command(data.data(), target, namespaceNumber);
  return Send(command) == status::kSuccess ? status::kSuccess : status::kDeviceError;
}

Status NvmeProtocol::GetLog(std::uint8_t logPage, LogData& data) {
  NvmeGetLog command(data.data(), nvme_log::kSize, logPage);
  return Send(command) == status::kSuccess ? status::kSuccess : status::kDeviceError;
}

Status NvmeProtocol::GetProperties(ProtocolProperties* properties) {
  if (properties == nullptr) return status::kFailure;
  const Status identified = IdentifyDrive();
  // What was found out is of use to the caller even when the capacity is unknown.
  CopyProperties(*properties);
  return identified;
}

Status NvmeProtocol::IdentifyDrive() {
  using namespace identify_controller;
  IdentifyData data{};
  if (const Status result = Identify(IdentifyTarget::kController, 0, data); result != status::kSuccess) return result;
  const ByteView controller(data);
  properties_->protocolName = "NVMe";
  properties_->model = PrintableText(controller, kModel);
  properties_->serialNumber = PrintableText(controller, kSerialNumber);
  properties_->firmwareRevision = PrintableText(controller, kFirmwareRevision);
  properties_->inquiryFlag = false;
  properties_->isSolidState = true;
  properties_->smartSupported = true;
  properties_->smartEnabled = true;
  properties_->offlineImmediateSupported = false;
  properties_->selfTestSupported = false;
  properties_->conveyanceSelfTestSupported = false;

  const bool managesNamespaces = (controller.Get(kOptionalAdminCommands) & kNamespaceManagement) != 0;
  if (const Status result = ReadCapacity(managesNamespaces); result != status::kSuccess) return result;
  ReadLabel();
  return status::kSuccess;
}

Status NvmeProtocol::ReadCapacity(bool managesNamespaces) {
  if (managesNamespaces && TakeNamespace(kAllNamespaces) == status::kSuccess) return status::kSuccess;
  IdentifyData list{};
  if (const Status result = Identify(IdentifyTarget::kActiveNamespaces, 0, list); result != status::kSuccess) {
    return result;
  }
  return TakeNamespace(FirstActiveNamespace(ByteView(list)));
}

Status NvmeProtocol::TakeNamespace(std::uint32_t namespaceNumber) {
  using namespace identify_namespace;
  IdentifyData data{};
  const Status result = Identify(IdentifyTarget::kNamespace, namespaceNumber, data);
  if (result != status::kSuccess) return result;
  const ByteView identified(data);
  if (identified.Get(kSize) == 0 || identified.Get(kCapacity) == 0) return status::kDeviceError;
  const ByteView format = identified.Sub(kFormats.At(identified.Get(kFormattedSize) & kFormatIndex));
  properties_->sectorCount = identified.Get(kSize);
  properties_->logicalSectorSize = DoubledSize(1, format.Get(kBlockSizeExponent));
  return status::kSuccess;
}

void NvmeProtocol::ReadLabel() {
  LogData log{};
  const bool got = GetLog(nvme_log::kVendorLabel, log) == status::kSuccess;
  properties_->labelText = got ? ByteView(log).Text(nvme_label::kLabel) : std::string();
}

Status NvmeProtocol::Read(std::uint64_t lba, std::uint16_t count, std::uint32_t timeout, std::uint8_t* buffer,
                          std::uint32_t length) {
  // The command counts from 0 on, so that a count of 0 would mean its maximum.
  if (count == 0 || !IsTransferable(buffer, length)) return status::kBadArgument;
  NvmeRead command(buffer, lba, count, kOnlyNamespace, false);
  command.timeout = timeout;
  command.length = length;
  return Send(command);
}

Status NvmeProtocol::GetTemperature(std::uint8_t& degrees) {
  LogData log{};
  if (const Status result = GetLog(nvme_log::kSmart, log); result != status::kSuccess) return result;
  // Exact from 273 K to 528 K, which a byte of degrees Celsius covers.
  degrees =
      static_cast<std::uint8_t>(ByteView(log).Get(nvme_health::kTemperatureLow) - nvme_health::kKelvinOffsetLow);
  return status::kSuccess;
}

Status NvmeProtocol::GetLifeRemaining(std::uint32_t& percent) {
  LogData log{};
  if (const Status result = GetLog(nvme_log::kSmart, log); result != status::kSuccess) return result;
  percent = kAllLife - std::min<std::uint32_t>(ByteView(log).Get(nvme_health::kPercentageUsed), kAllLife);
  return status::kSuccess;
}

}  // namespace orvik::module::storage
