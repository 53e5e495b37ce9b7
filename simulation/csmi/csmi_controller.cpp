#include "simulation/csmi/csmi_controller.h"

#include <algorithm>
#include <array>
#include <string>

#include "simulation/csmi/csmi_layout.h"

namespace orvik::simulation {

namespace {

constexpr std::uint8_t kControllerClassHba = 5;
constexpr std::uint8_t kBusTypePci = 3;
constexpr std::uint8_t kPciDeviceNumber = 23;

// The signature's letters; zero bytes fill the rest of its field.
std::string Signature(std::span<const std::uint8_t> packet) {
  const auto bytes = Inside(packet, srb_io_control::kSignature);
  return {bytes.begin(), std::ranges::find(bytes, 0)};
}

std::vector<Drive> MakeDrives(const std::vector<DriveDescription>& descriptions,
                              const std::shared_ptr<const Clock>& clock) {
  std::vector<Drive> drives;
  drives.reserve(descriptions.size());
  for (const DriveDescription& description : descriptions) drives.push_back(MakeDrive(description, clock));
  return drives;
}

}  // namespace

CsmiController::CsmiController(const CsmiControllerDescription& description,
                               const std::shared_ptr<const Clock>& clock)
    : description_(description),
      drives_(MakeDrives(description.drives, clock)),
      phys_(description_, drives_),
      nvmePaths_(description_.drives, drives_) {
  for (const CsmiRaidSetDescription& set : description_.raidSets) {
    for (const CsmiRaidMemberDescription& member : set.members) {
      if (member.drive) static_cast<void>(drives_.at(*member.drive));
    }
  }
}

std::span<const CsmiController::Packet> CsmiController::Packets() {
  static constexpr std::array<Packet, 7> kPackets = {{
      {"CC_CSMI_SAS_GET_CNTLR_CONFIG", "CSMIALL", 2, controller_config::kSize, &CsmiController::GetControllerConfig},
      {"CC_CSMI_SAS_GET_CNTLR_STATUS", "CSMIALL", 3, controller_status::kSize, &CsmiController::GetControllerStatus},
      {"CC_CSMI_SAS_GET_RAID_INFO", "CSMIARY", 10, raid_info::kSize, &CsmiController::GetRaidInfo},
      {"CC_CSMI_SAS_GET_RAID_CONFIG", "CSMIARY", 11, raid_config::kSize, &CsmiController::GetRaidConfig},
      {"CC_CSMI_SAS_GET_PHY_INFO", "CSMISAS", 20, phy_info::kSize, &CsmiController::GetPhyInfo},
      {"CC_CSMI_SAS_SSP_PASSTHRU", "CSMISAS", 24, ssp_pass_through::kData, &CsmiController::SspPassThrough},
      {"CC_CSMI_SAS_STP_PASSTHRU", "CSMISAS", 25, stp_pass_through::kData, &CsmiController::StpPassThrough},
  }};
  return kPackets;
}

const CsmiController::Packet* CsmiController::Find(std::span<const std::uint8_t> packet) {
  const std::string signature = Signature(packet);
  const std::uint32_t code = Get(packet, srb_io_control::kControlCode);
  for (const Packet& candidate : Packets()) {
    if (candidate.controlCode == code && candidate.signature == signature) return &candidate;
  }
  return nullptr;
}

bool CsmiController::HasPacket(std::string_view name) {
  return std::ranges::any_of(Packets(), [&](const Packet& packet) { return packet.name == name; });
}

std::string_view CsmiController::PacketName(std::span<const std::uint8_t> packet) {
  const Packet* found = Find(packet);
  return found == nullptr ? std::string_view() : found->name;
}

bool CsmiController::Recognises(std::span<const std::uint8_t> packet) {
  const std::string signature = Signature(packet);
  return signature == "CSMIALL" || signature == "CSMISAS" || signature == "CSMIARY";
}

void CsmiController::Answer(std::span<std::uint8_t> packet) {
  const Packet* known = Find(packet);
  std::uint32_t returnCode = kCsmiSuccess;
  if (known == nullptr) {
    returnCode = kCsmiBadControlCode;
  } else if (packet.size() < known->size) {
    returnCode = kCsmiInvalidParameter;
  } else {
    returnCode = (this->*known->answer)(packet);
  }
  Set(packet, srb_io_control::kReturnCode, returnCode);
}

std::uint32_t CsmiController::GetControllerConfig(std::span<std::uint8_t> packet) {
  Set(packet, controller_config::kBoardId, description_.boardId);
  Set(packet, controller_config::kControllerClass, kControllerClassHba);
  Set(packet, controller_config::kBusType, kBusTypePci);
  Set(packet, controller_config::kPciDevice, kPciDeviceNumber);
  SetText(packet, controller_config::kSerialNumber, description_.serial, '\0');
  for (std::size_t i = 0; i < description_.revision.size(); ++i) {
    Set(packet, Le16{controller_config::kRevision.offset + 2 * i}, description_.revision.at(i));
  }
  Set(packet, controller_config::kControllerFlags, description_.flags);
  return kCsmiSuccess;
}

// NOLINTNEXTLINE(readability-make-member-function-const): packets have one signature
std::uint32_t CsmiController::GetControllerStatus(std::span<std::uint8_t> packet) {
  Set(packet, controller_status::kStatus, static_cast<std::uint32_t>(description_.status));
  Set(packet, controller_status::kOfflineReason, static_cast<std::uint32_t>(description_.offlineReason));
  return kCsmiSuccess;
}

std::uint32_t CsmiController::GetPhyInfo(std::span<std::uint8_t> packet) {
  Set(packet, phy_info::kNumberOfPhys, static_cast<std::uint8_t>(phys_.Count()));
  for (std::size_t i = 0; i < phys_.Count(); ++i) phys_.FillEntity(i, Inside(packet, phy_info::Phy(i)));
  return kCsmiSuccess;
}

}  // namespace orvik::simulation
