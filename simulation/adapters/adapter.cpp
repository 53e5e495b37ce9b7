#include "simulation/adapters/adapter.h"

#include <algorithm>
#include <utility>

#include "simulation/csmi/csmi_layout.h"
#include "simulation/identifiers.h"
#include "simulation/io_device.h"

namespace orvik::simulation {

namespace {

constexpr std::uint32_t kIoctlScsiMiniport = 0x0004D008;

// The port driver's own checks of a miniport request: a Windows error code, 0 for a valid one.
std::uint32_t CheckHeader(std::span<const std::uint8_t> buffer, std::size_t inputSize, std::size_t outputSize) {
  if (inputSize < srb_io_control::kSize) return kErrorInvalidParameter;
  if (Get(buffer, srb_io_control::kHeaderLength) != srb_io_control::kSize) return kErrorRevisionMismatch;
  const std::uint64_t total = srb_io_control::kSize + std::uint64_t{Get(buffer, srb_io_control::kLength)};
  if (total > std::max(inputSize, outputSize)) return kErrorInsufficientBuffer;
  return 0;
}

}  // namespace

Adapter::Adapter(AdapterDescription description, const std::shared_ptr<const Clock>& clock)
    : description_(std::move(description)) {
  if (description_.csmi) csmi_ = std::make_unique<CsmiController>(*description_.csmi, clock);
}

std::string_view Adapter::PacketName(std::uint32_t controlCode, std::span<const std::uint8_t> buffer) const {
  if (controlCode != kIoctlScsiMiniport) return {};
  return NvmePaths::Recognises(buffer) ? kNvmePassThroughName : CsmiController::PacketName(buffer);
}

IoResult Adapter::Control(std::uint32_t controlCode, std::span<std::uint8_t> buffer, std::size_t inputSize,
                          std::size_t outputSize) {
  if (controlCode != kIoctlScsiMiniport) return {.error = kErrorInvalidFunction};
  if (const std::uint32_t error = CheckHeader(buffer, inputSize, outputSize); error != 0) return {.error = error};
  if (csmi_ == nullptr) return {.error = kErrorInvalidFunction};
  const std::size_t size = srb_io_control::kSize + Get(buffer, srb_io_control::kLength);
  if (NvmePaths::Recognises(buffer)) {
    return {.error = csmi_->Nvme().Answer(buffer.first(size)), .returned = size};
  }
  if (!CsmiController::Recognises(buffer)) return {.error = kErrorInvalidFunction};
  csmi_->Answer(buffer.first(size));
  return {.returned = size};
}

AdapterDescription PciRaidAdapter(std::string_view deviceId, unsigned unit) {
  const std::string device(deviceId);
  const std::string number = std::to_string(unit);
  const std::string place = "3&11583659&0&f" + number;
  AdapterDescription adapter;
  adapter.instanceId = "PCI\\VEN_8086&DEV_" + device + "&SUBSYS_86941043&REV_04\\" + place;
  adapter.description = "Chipset SATA RAID Controller";
  adapter.driver = {.key = "{4d36e97b-e325-11ce-bfc1-08002be10318}\\" +
                           std::string(4 - std::min<std::size_t>(number.size(), 4), '0') + number,
                    .provider = "Orvik Storage",
                    .version = "17.9.1.1009"};
  adapter.interfaces = {{.path = R"(\\?\pci#ven_8086&dev_)" + FoldCase(device) + "&subsys_86941043&rev_04#" + place +
                                 "#{2accfe60-c130-11d2-b082-00a0c91efb8b}"}};
  return adapter;
}

}  // namespace orvik::simulation
