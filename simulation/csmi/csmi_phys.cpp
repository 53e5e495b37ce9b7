#include "simulation/csmi/csmi_phys.h"

#include <algorithm>

#include "simulation/csmi/csmi_layout.h"

namespace orvik::simulation {

namespace {

constexpr std::uint8_t kLinkRate1500Mbit = 0x08;
constexpr std::uint8_t kLinkRate6000Mbit = 0x0A;
constexpr std::uint8_t kDiscoverComplete = 0x02;
constexpr std::uint8_t kSignalClassDirect = 0x01;
constexpr std::uint8_t kEveryInitiatorProtocol = 0x0F;
constexpr std::uint64_t kAttachedAddresses = 0x100;

struct Attachment {
  SasProtocol protocol;
  std::optional<std::uint64_t> address;
};

Attachment AttachmentOf(const std::shared_ptr<AtaDrive>& /*drive*/) {
  return {SasProtocol::Sata, {}};
}
Attachment AttachmentOf(const std::shared_ptr<ScsiDrive>& drive) {
  return {SasProtocol::Ssp, drive->Description().sasAddress};
}
Attachment AttachmentOf(const std::shared_ptr<NvmeDrive>& /*drive*/) {
  return {SasProtocol::Nothing, {}};
}

// One phy for each SATA and SAS drive.
std::vector<CsmiPhyDescription> DefaultPhys(const std::vector<Drive>& drives) {
  std::vector<CsmiPhyDescription> phys;
  for (std::size_t i = 0; i < drives.size(); ++i) {
    if (!std::holds_alternative<std::shared_ptr<NvmeDrive>>(drives[i])) phys.push_back({.drive = i});
  }
  return phys;
}

std::uint8_t Byte(auto enumerator) {
  return static_cast<std::uint8_t>(enumerator);
}

CsmiConnection Refused(std::uint32_t returnCode, std::uint8_t status = kOpenRejectNoDestination) {
  return {.returnCode = returnCode, .status = status};
}

}  // namespace

CsmiPhys::CsmiPhys(const CsmiControllerDescription& description, const std::vector<Drive>& drives)
    : controllerAddress_(description.sasAddress) {
  const auto descriptions = description.phys.empty() ? DefaultPhys(drives) : description.phys;
  for (std::size_t i = 0; i < descriptions.size() && i < phy_info::kMaxPhys; ++i) {
    phys_.push_back(MakePhy(descriptions[i], i, drives, controllerAddress_));
  }
}

CsmiPhys::Phy CsmiPhys::MakePhy(const CsmiPhyDescription& description, std::size_t number,
                                const std::vector<Drive>& drives, std::uint64_t controllerAddress) {
  Phy phy{.identifier = description.identifier.value_or(static_cast<std::uint8_t>(number)),
          .port = description.port.value_or(static_cast<std::uint8_t>(number)),
          .deviceType = SasDeviceType::Nothing,
          .protocol = SasProtocol::Nothing,
          .attachedAddress = 0,
          .driveNumber = description.drive,
          .drive = {}};
  if (description.drive) {
    phy.drive = drives.at(*description.drive);
    const Attachment attachment = std::visit([](const auto& drive) { return AttachmentOf(drive); }, *phy.drive);
    phy.deviceType = SasDeviceType::EndDevice;
    phy.protocol = attachment.protocol;
    phy.attachedAddress = attachment.address.value_or(0);
  }
  phy.deviceType = description.deviceType.value_or(phy.deviceType);
  phy.protocol = description.protocol.value_or(phy.protocol);
  if (phy.deviceType != SasDeviceType::Nothing && phy.attachedAddress == 0) {
    phy.attachedAddress = controllerAddress + kAttachedAddresses + number;
  }
  return phy;
}

void CsmiPhys::FillEntity(std::size_t number, std::span<std::uint8_t> entity) const {
  const Phy& phy = phys_.at(number);
  const auto own = Inside(entity, phy_entity::kIdentify);
  Set(own, sas_identify::kDeviceType, Byte(SasDeviceType::EndDevice));
  Set(own, sas_identify::kInitiatorPortProtocol, kEveryInitiatorProtocol);
  Set(own, sas_identify::kSasAddress, controllerAddress_ + number);
  Set(own, sas_identify::kPhyIdentifier, phy.identifier);
  Set(own, sas_identify::kSignalClass, kSignalClassDirect);

  const bool linked = phy.deviceType != SasDeviceType::Nothing;
  Set(entity, phy_entity::kPortIdentifier, phy.port);
  Set(entity, phy_entity::kNegotiatedLinkRate, linked ? kLinkRate6000Mbit : std::uint8_t{0});
  Set(entity, phy_entity::kMinimumLinkRate, kLinkRate1500Mbit);
  Set(entity, phy_entity::kMaximumLinkRate, kLinkRate6000Mbit);
  Set(entity, phy_entity::kAutoDiscover, kDiscoverComplete);

  const auto attached = Inside(entity, phy_entity::kAttached);
  Set(attached, sas_identify::kDeviceType, Byte(phy.deviceType));
  Set(attached, sas_identify::kTargetPortProtocol, Byte(phy.protocol));
  Set(attached, sas_identify::kSasAddress, phy.attachedAddress);
}

std::uint64_t CsmiPhys::AddressOf(std::size_t drive) const {
  const auto phy = std::ranges::find(phys_, std::optional(drive), &Phy::driveNumber);
  return phy == phys_.end() ? 0 : phy->attachedAddress;
}

const CsmiPhys::Phy* CsmiPhys::FindByIdentifier(std::uint8_t identifier) const {
  const auto phy = std::ranges::find(phys_, identifier, &Phy::identifier);
  return phy == phys_.end() ? nullptr : &*phy;
}

const CsmiPhys::Phy* CsmiPhys::FindByPort(std::uint8_t port) const {
  const auto phy = std::ranges::find(phys_, port, &Phy::port);
  return phy == phys_.end() ? nullptr : &*phy;
}

CsmiConnection CsmiPhys::Connect(std::span<const std::uint8_t> request) const {
  const std::uint8_t identifier = Get(request, pass_through::kPhyIdentifier);
  const std::uint8_t port = Get(request, pass_through::kPortIdentifier);
  const bool byPort = identifier == pass_through::kUsePort;
  if (byPort && port == pass_through::kIgnorePort) return Refused(kCsmiSelectPhyOrPort);
  const Phy* phy = byPort ? FindByPort(port) : FindByIdentifier(identifier);
  if (phy == nullptr) return Refused(byPort ? kCsmiPortDoesNotExist : kCsmiPhyDoesNotExist);
  if (port != pass_through::kIgnorePort && port != phy->port) return Refused(kCsmiPhyDoesNotMatchPort);
  if (phy->deviceType == SasDeviceType::Nothing) return Refused(kCsmiConnectionFailed);
  if (phy->deviceType != SasDeviceType::EndDevice) return Refused(kCsmiNotAnEndDevice);
  if (Get(request, pass_through::kDestinationSasAddress) != phy->attachedAddress) {
    return Refused(kCsmiConnectionFailed);
  }
  if (!phy->drive) return Refused(kCsmiConnectionFailed, kOpenRejectProtocolNotSupported);
  return {.drive = &*phy->drive, .returnCode = kCsmiSuccess, .status = kOpenAccepted};
}

}  // namespace orvik::simulation
