// The RAID packets of a CSMI controller: its sets and their member drives.

#include <algorithm>

#include "simulation/csmi/csmi_controller.h"
#include "simulation/csmi/csmi_layout.h"

namespace orvik::simulation {

namespace {

constexpr std::uint32_t kUsualDrivesPerSet = 8;
constexpr std::size_t kUsualRaidSets = 8;
constexpr std::uint8_t kRaidTypes = 10;

constexpr std::uint8_t kUsageMember = 1;
constexpr std::uint8_t kDriveTypeSas = 1;
constexpr std::uint8_t kDriveTypeSata = 3;
constexpr std::uint8_t kDriveTypeOther = 255;

std::uint8_t DriveTypeOf(const std::shared_ptr<AtaDrive>& /*drive*/) {
  return kDriveTypeSata;
}
std::uint8_t DriveTypeOf(const std::shared_ptr<ScsiDrive>& /*drive*/) {
  return kDriveTypeSas;
}
std::uint8_t DriveTypeOf(const std::shared_ptr<NvmeDrive>& /*drive*/) {
  return kDriveTypeOther;
}

std::uint32_t MaxDrivesPerSet(const CsmiControllerDescription& controller) {
  if (controller.maxDrivesPerSet) return *controller.maxDrivesPerSet;
  std::size_t most = kUsualDrivesPerSet;
  for (const CsmiRaidSetDescription& set : controller.raidSets) most = std::max(most, set.members.size());
  return static_cast<std::uint32_t>(most);
}

}  // namespace

std::uint32_t CsmiController::GetRaidInfo(std::span<std::uint8_t> packet) {
  const std::size_t sets = description_.raidSets.size();
  Set(packet, raid_info::kNumRaidSets, static_cast<std::uint32_t>(sets));
  Set(packet, raid_info::kMaxDrivesPerSet, MaxDrivesPerSet(description_));
  Set(packet, raid_info::kMaxRaidSets, static_cast<std::uint32_t>(std::max(sets, kUsualRaidSets)));
  Set(packet, raid_info::kMaxRaidTypes, kRaidTypes);
  Set(packet, raid_info::kMaxPhysicalDrives, static_cast<std::uint32_t>(phy_info::kMaxPhys));
  Set(packet, raid_info::kChangeCount, 1);
  return kCsmiSuccess;
}

// The count includes all drives of the set, the list only those that fit into the packet.
std::uint32_t CsmiController::GetRaidConfig(std::span<std::uint8_t> packet) {
  const std::uint32_t index = Get(packet, raid_config::kRaidSetIndex);
  if (index >= description_.raidSets.size()) return kCsmiRaidSetOutOfRange;
  const CsmiRaidSetDescription& set = description_.raidSets[index];
  Set(packet, raid_config::kCapacity, set.capacityMiB);
  Set(packet, raid_config::kStripeSize, set.stripeKiB);
  Set(packet, raid_config::kRaidType, static_cast<std::uint8_t>(set.type));
  Set(packet, raid_config::kStatus, static_cast<std::uint8_t>(set.status));
  Set(packet, raid_config::kInformation, set.information);
  Set(packet, raid_config::kDriveCount, static_cast<std::uint8_t>(std::min<std::size_t>(set.members.size(), 255)));
  Set(packet, raid_config::kChangeCount, 1);
  for (std::size_t i = 0; i < set.members.size(); ++i) {
    if (!Holds(packet.size(), raid_config::Drive(i))) break;
    const auto entry = Inside(packet, raid_config::Drive(i));
    Set(entry, raid_drive::kDriveIndex, static_cast<std::uint32_t>(i));
    FillRaidDrive(set.members[i], entry);
  }
  return kCsmiSuccess;
}

void CsmiController::FillRaidDrive(const CsmiRaidMemberDescription& member, std::span<std::uint8_t> entry) const {
  DriveIdentity identity{.model = member.model, .serial = member.serial};
  if (member.drive) {
    const Drive& drive = drives_.at(*member.drive);
    identity = IdentityOf(drive);
    Set(entry, raid_drive::kDriveType, std::visit([](const auto& kind) { return DriveTypeOf(kind); }, drive));
    Set(entry, raid_drive::kSasAddress, phys_.AddressOf(*member.drive));
  }
  SetText(entry, raid_drive::kModel, identity.model, ' ');
  SetText(entry, raid_drive::kFirmware, identity.firmware, ' ');
  SetText(entry, raid_drive::kSerialNumber, identity.serial, ' ');
  Set(entry, raid_drive::kDriveStatus, static_cast<std::uint8_t>(member.status));
  Set(entry, raid_drive::kDriveUsage, kUsageMember);
  Set(entry, raid_drive::kBlockSize, static_cast<std::uint16_t>(identity.sectorSize));
  Set(entry, raid_drive::kTotalUserBlocks, identity.sectors);
}

}  // namespace orvik::simulation
