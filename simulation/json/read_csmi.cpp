#include "simulation/csmi/nvme_paths.h"
#include "simulation/json/node.h"
#include "simulation/json/readers.h"

namespace orvik::simulation {

namespace {

constexpr std::array<Named<std::uint32_t>, 4> kFlags = {{
    {"SAS HBA", kCsmiSasHba},
    {"SAS RAID", kCsmiSasRaid},
    {"SATA HBA", kCsmiSataHba},
    {"SATA RAID", kCsmiSataRaid},
}};

constexpr std::array<Named<CsmiStatus>, 4> kStatuses = {{
    {"good", CsmiStatus::Good},
    {"failed", CsmiStatus::Failed},
    {"offline", CsmiStatus::Offline},
    {"powered off", CsmiStatus::PoweredOff},
}};

constexpr std::array<Named<CsmiOfflineReason>, 4> kOfflineReasons = {{
    {"none", CsmiOfflineReason::None},
    {"initializing", CsmiOfflineReason::Initializing},
    {"bus degraded", CsmiOfflineReason::BusDegraded},
    {"bus failure", CsmiOfflineReason::BusFailure},
}};

constexpr std::array<Named<CsmiRaidType>, 10> kRaidTypes = {{
    {"none", CsmiRaidType::None},
    {"RAID 0", CsmiRaidType::Raid0},
    {"RAID 1", CsmiRaidType::Raid1},
    {"RAID 10", CsmiRaidType::Raid10},
    {"RAID 5", CsmiRaidType::Raid5},
    {"RAID 15", CsmiRaidType::Raid15},
    {"RAID 6", CsmiRaidType::Raid6},
    {"RAID 50", CsmiRaidType::Raid50},
    {"volume", CsmiRaidType::Volume},
    {"RAID 1E", CsmiRaidType::Raid1E},
}};

constexpr std::array<Named<CsmiRaidStatus>, 8> kRaidStatuses = {{
    {"ok", CsmiRaidStatus::Ok},
    {"degraded", CsmiRaidStatus::Degraded},
    {"rebuilding", CsmiRaidStatus::Rebuilding},
    {"failed", CsmiRaidStatus::Failed},
    {"offline", CsmiRaidStatus::Offline},
    {"transforming", CsmiRaidStatus::Transforming},
    {"queued for rebuild", CsmiRaidStatus::QueuedForRebuild},
    {"queued for transformation", CsmiRaidStatus::QueuedForTransformation},
}};

constexpr std::array<Named<CsmiDriveStatus>, 4> kDriveStatuses = {{
    {"ok", CsmiDriveStatus::Ok},
    {"rebuilding", CsmiDriveStatus::Rebuilding},
    {"failed", CsmiDriveStatus::Failed},
    {"degraded", CsmiDriveStatus::Degraded},
}};

constexpr std::array<Named<SasDeviceType>, 4> kDeviceTypes = {{
    {"nothing", SasDeviceType::Nothing},
    {"end device", SasDeviceType::EndDevice},
    {"edge expander", SasDeviceType::EdgeExpander},
    {"fanout expander", SasDeviceType::FanoutExpander},
}};

constexpr std::array<Named<SasProtocol>, 5> kProtocols = {{
    {"nothing", SasProtocol::Nothing},
    {"SATA", SasProtocol::Sata},
    {"SMP", SasProtocol::Smp},
    {"STP", SasProtocol::Stp},
    {"SSP", SasProtocol::Ssp},
}};

constexpr std::size_t kMostPhys = 32;
constexpr std::size_t kMostMembers = 255;
constexpr std::uint8_t kLastIdentifier = 254;  // 255 stands for "any" in requests

// The number of a drive of the controller's list.
void ReadDriveNumber(const Node& node, const std::vector<DriveDescription>& drives,
                     std::optional<std::size_t>& number) {
  if (!node.Present()) return;
  if (drives.empty()) return node.Reject("no drive number, as the controller has no drives");
  node.Read(number, std::size_t{0}, drives.size() - 1);
}

void ReadRevision(const Node& node, std::array<std::uint16_t, 4>& revision) {
  std::size_t count = 0;
  node.ForEach([&](const Node& each) {
    if (count < revision.size()) each.Read(revision.at(count));
    ++count;
  });
  if (node.IsList() && count != revision.size()) node.Reject("a list of 4 numbers");
}

DriveDescription ReadMemberDrive(const Node& node, const std::vector<DriveDescription>& before) {
  DriveDescription drive = ReadDrive(node);
  const auto pathId = NvmePathId(drive, before);
  for (std::size_t i = 0; pathId && i < before.size(); ++i) {
    if (NvmePathId(before[i], std::span(before).first(i)) != pathId) continue;
    node.Reject("a drive with a path id of its own", "the path id " + std::to_string(*pathId) + " again");
  }
  return drive;
}

CsmiPhyDescription ReadPhy(const Node& node, const std::vector<DriveDescription>& drives) {
  CsmiPhyDescription phy;
  ObjectReader object(node);
  const Node drive = object.Optional("drive");
  ReadDriveNumber(drive, drives, phy.drive);
  if (phy.drive && *phy.drive < drives.size() && std::holds_alternative<NvmeDriveDescription>(drives[*phy.drive])) {
    drive.Reject("the number of a SATA or SAS drive");
  }
  object.Optional("identifier").Read(phy.identifier, std::uint8_t{0}, kLastIdentifier);
  object.Optional("port").Read(phy.port, std::uint8_t{0}, kLastIdentifier);
  if (const Node type = object.Optional("deviceType"); type.Present()) {
    type.ReadNameOrByte(phy.deviceType.emplace(), kDeviceTypes);
  }
  if (const Node protocol = object.Optional("protocol"); protocol.Present()) {
    protocol.ReadNameOrByte(phy.protocol.emplace(), kProtocols);
  }
  object.End();
  return phy;
}

CsmiRaidMemberDescription ReadMember(const Node& node, const std::vector<DriveDescription>& drives) {
  CsmiRaidMemberDescription member;
  ObjectReader object(node);
  const Node drive = object.Optional("drive");
  ReadDriveNumber(drive, drives, member.drive);
  if (!drive.Present()) {
    object.Required("model", "a text, or \"drive\" in its place").Read(member.model, 40);
    object.Required("serial", "a text").Read(member.serial, 40);
  }
  object.Optional("status").ReadNameOrByte(member.status, kDriveStatuses);
  object.End();
  return member;
}

CsmiRaidSetDescription ReadRaidSet(const Node& node, const std::vector<DriveDescription>& drives) {
  CsmiRaidSetDescription set;
  ObjectReader object(node);
  object.Required("type", "a RAID type such as \"RAID 5\"").ReadNameOrByte(set.type, kRaidTypes);
  object.Optional("status").ReadNameOrByte(set.status, kRaidStatuses);
  object.Optional("information").Read(set.information);
  object.Required("capacityMiB", "a whole number").Read(set.capacityMiB);
  object.Optional("stripeKiB").Read(set.stripeKiB);
  object.Required("members", "a list")
      .ForEach([&](const Node& each) { set.members.push_back(ReadMember(each, drives)); }, kMostMembers);
  object.End();
  return set;
}

}  // namespace

CsmiControllerDescription ReadCsmiController(const Node& node) {
  CsmiControllerDescription controller;
  auto& drives = controller.drives;
  ObjectReader object(node);
  object.Optional("flags").ReadBits(controller.flags, kFlags);
  object.Optional("status").ReadName(controller.status, kStatuses);
  object.Optional("offlineReason").ReadName(controller.offlineReason, kOfflineReasons);
  object.Optional("serial").Read(controller.serial, 80);
  std::uint64_t boardId = controller.boardId;
  object.Optional("boardId").ReadHex(boardId, 8);
  controller.boardId = static_cast<std::uint32_t>(boardId);
  ReadRevision(object.Optional("revision"), controller.revision);
  object.Optional("sasAddress").ReadHex(controller.sasAddress, 16);
  object.Optional("drives").ForEach([&](const Node& each) { drives.push_back(ReadMemberDrive(each, drives)); });
  object.Optional("phys").ForEach([&](const Node& each) { controller.phys.push_back(ReadPhy(each, drives)); },
                                  kMostPhys);
  object.Optional("raidSets").ForEach([&](const Node& each) {
    controller.raidSets.push_back(ReadRaidSet(each, drives));
  });
  object.Optional("maxDrivesPerSet").Read(controller.maxDrivesPerSet);
  object.End();
  return controller;
}

}  // namespace orvik::simulation
