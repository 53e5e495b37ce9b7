#include "module/raid/csmi/csmi_device.h"

#include <gtest/gtest.h>

#include "tests/module/raid/machines.h"

namespace orvik::module::raid {
namespace {

using namespace orvik::simulation;
using namespace orvik::testing;

FaultRule Patch(const char* packet, std::size_t offset, std::vector<std::uint8_t> bytes) {
  return {.operation = packet, .effects = {.patches = {{offset, std::move(bytes)}}}};
}

std::string Padded(std::string text, std::size_t size, char padding = ' ') {
  text.resize(size, padding);
  return text;
}

TEST(CsmiDeviceTest, DescribesEveryRaidTypeAndStatus) {
  static constexpr const char* kLevels[] = {"SINGLE_DRIVE_RAID_SET",
                                            "RAID 0",
                                            "RAID 1",
                                            "RAID 10",
                                            "RAID 5",
                                            "RAID 15",
                                            "RAID 6",
                                            "RAID 50",
                                            "UNKNOWN",
                                            "RAID 10",
                                            "UNKNOWN",
                                            "UNKNOWN"};
  static constexpr std::uint32_t kStates[] = {0, 1, 5, 3, 6, 6, 6, 6, 6, 6, 6, 6};
  std::vector<CsmiRaidSetDescription> sets;
  for (std::size_t i = 0; i < std::size(kLevels); ++i) {
    sets.push_back(Set(CsmiRaidType(i), CsmiRaidStatus(i), i % 3));
  }
  Install({.adapters = {Controller(2, sets)}});
  std::vector<LogicalDrive> drives;
  ASSERT_EQ(OpenDevice()->GetLogicalDrives(drives), 0U);
  ASSERT_EQ(drives.size(), std::size(kLevels));
  for (std::size_t i = 0; i < drives.size(); ++i) {
    EXPECT_EQ(drives[i].raidLevel, kLevels[i]);
    EXPECT_EQ(static_cast<std::uint32_t>(drives[i].state), kStates[i]) << i;
    EXPECT_EQ(drives[i].name, std::to_string(i));
    EXPECT_EQ(drives[i].memberCount, i % 3);
    EXPECT_EQ(drives[i].sizeBytes, 953867ULL << 20);
    EXPECT_EQ(drives[i].sequenceNumber, 0);
    EXPECT_TRUE(drives[i].vendorData.empty());
  }
}

TEST(CsmiDeviceTest, NamesTheFailedMemberOfADegradedSet) {
  auto set = Set(CsmiRaidType::Raid1, CsmiRaidStatus::Degraded);
  set.information = 1;
  const auto machine = Install({.adapters = {Controller(2, {set})}});
  std::vector<LogicalDrive> drives;
  ASSERT_EQ(OpenDevice()->GetLogicalDrives(drives), 0U);
  ASSERT_EQ(drives.at(0).failedMembers.size(), 1U);
  const std::string& text = drives[0].failedMembers[0];
  ASSERT_EQ(text.size(), 40U + 3 + 40);
  EXPECT_EQ(text.substr(0, 20), "WDC WD10ORVK-08M2NA0");
  EXPECT_EQ(text.substr(40, 3), " - ");
  EXPECT_EQ(text.substr(43, 8), "WD-ORVK1");

  // Drive 2 is a free entry of the reply, drive 200 is outside it.
  for (const std::uint8_t number : {std::uint8_t{2}, std::uint8_t{200}}) {
    machine->Faults().Clear();
    machine->Faults().Add(Patch("CC_CSMI_SAS_GET_RAID_CONFIG", 42, {number}));
    drives.clear();
    ASSERT_EQ(OpenDevice()->GetLogicalDrives(drives), 0U);
    EXPECT_TRUE(drives.at(0).failedMembers.empty()) << int{number};
    EXPECT_EQ(drives[0].state, LogicalDriveState::Degraded);
  }
}

TEST(CsmiDeviceTest, StopsAtTheFirstSetThatCannotBeRead) {
  const auto sets = std::vector(3, Set(CsmiRaidType::Raid1, CsmiRaidStatus::Ok));
  struct Case {
    FaultEffects effects;
    std::uint32_t code;
  };
  for (const Case& row : {Case{{.returnCode = 1000}, 0}, Case{{.returnCode = 1}, 66}, Case{{.error = 1117}, 34}}) {
    const auto machine = Install({.adapters = {Controller(2, sets)}});
    const auto device = OpenDevice();
    machine->Faults().Add({.operation = "CC_CSMI_SAS_GET_RAID_CONFIG", .call = 2, .effects = row.effects});
    std::vector<LogicalDrive> drives;
    EXPECT_EQ(device->GetLogicalDrives(drives), row.code);
    EXPECT_EQ(drives.size(), 1U);
  }
}

TEST(CsmiDeviceTest, IdentifiesAttachedDrives) {
  auto adapter = Controller(1, {});
  adapter.csmi->drives.emplace_back(SasDriveDescription{
      .vendor = "ORVIK", .product = "OVS300", .revision = "0001", .serial = "S1", .sectors = 585937500});
  adapter.csmi->drives.emplace_back(
      SataDriveDescription{.model = "ST4000OV001", .serial = "Z1", .firmware = "SC60", .sectors = 7814037168});
  adapter.csmi->drives.emplace_back(
      NvmeDriveDescription{.model = "NVMe ORVK SSD", .serial = "N1", .firmware = "1", .sectors = 1000});
  adapter.csmi->drives.push_back(SataDrive("behind an expander"));
  adapter.csmi->raidSets.push_back(
      {.members = {{.drive = 0}, {.drive = 3}, {.model = "an nVmE drive", .serial = "N2"}}});
  adapter.csmi->phys = {{.drive = 0},
                        {},
                        {.drive = 1},
                        {.drive = 4, .deviceType = SasDeviceType::EndDevice, .protocol = SasProtocol::Smp},
                        {.drive = 2}};
  Install({.adapters = {adapter}});
  std::vector<PhysicalDrive> drives;
  ASSERT_EQ(OpenDevice()->GetPhysicalDrives(drives), 0U);
  ASSERT_EQ(drives.size(), 5U);

  EXPECT_EQ(drives[0].protocol, DriveProtocol::Ata);
  EXPECT_EQ(drives[0].manufacturer, "Wdc");
  EXPECT_EQ(drives[0].model, Padded("WDC WD10ORVK-08M2NA0", 40));
  EXPECT_EQ(drives[0].sizeBytes, 1953525168ULL * 512);
  EXPECT_EQ(drives[1].protocol, DriveProtocol::Scsi);
  EXPECT_EQ(drives[1].manufacturer, "ORVIK   ");
  EXPECT_EQ(drives[1].model, Padded("OVS300", 16));
  EXPECT_EQ(drives[1].sizeBytes, 585937500ULL * 512);
  EXPECT_EQ(drives[2].manufacturer, "Seagate");
  for (const std::size_t i : {3U, 4U}) {
    EXPECT_EQ(drives[i].protocol, DriveProtocol::Nvme);
    EXPECT_EQ(drives[i].model, "");
    EXPECT_EQ(drives[i].sizeBytes, 0U);
  }
  EXPECT_EQ(drives[3].serial.substr(0, 2), "N1");
  EXPECT_EQ(drives[4].serial.substr(0, 2), "N2");

  std::vector<StorageDeviceEntry> members;
  ASSERT_EQ(OpenDevice()->GetStorageDevices(members), 0U);
  EXPECT_EQ(members.size(), 4U);
}

TEST(CsmiDeviceTest, LeavesOutDrivesThatDoNotIdentify) {
  const FaultEffects ataError{.patches = {{78, {0x51}}}};
  const FaultEffects scsiStatus{.patches = {{105, {0x02}}}};
  const FaultEffects sspStatus{.patches = {{101, {0x01}}}};
  struct Case {
    const char* packet;
    std::uint64_t call;
    FaultEffects effects;
    std::size_t left;
  };
  for (const Case& row : {
           Case{"CC_CSMI_SAS_STP_PASSTHRU", 1, ataError, 1},
           Case{"CC_CSMI_SAS_STP_PASSTHRU", 1, {.returnCode = 1}, 1},
           Case{"CC_CSMI_SAS_STP_PASSTHRU", 1, {.error = 1117}, 1},
           Case{"CC_CSMI_SAS_SSP_PASSTHRU", 1, scsiStatus, 1},
           // For the capacity the transport's status counts and the SCSI status doesn't.
           Case{"CC_CSMI_SAS_SSP_PASSTHRU", 2, scsiStatus, 2},
           Case{"CC_CSMI_SAS_SSP_PASSTHRU", 2, sspStatus, 1},
           Case{"CC_CSMI_SAS_SSP_PASSTHRU", 2, {.returnCode = 1}, 1},
       }) {
    auto adapter = Controller(1, {});
    adapter.csmi->drives.emplace_back(SasDriveDescription{.vendor = "ORVIK", .product = "OVS300", .sectors = 1000});
    const auto machine = Install({.adapters = {adapter}});
    const auto device = OpenDevice();
    machine->Faults().Add({.operation = row.packet, .call = row.call, .effects = row.effects});
    std::vector<PhysicalDrive> drives;
    EXPECT_EQ(device->GetPhysicalDrives(drives), 0U);
    EXPECT_EQ(drives.size(), row.left) << row.packet << " " << row.call;
  }
}

TEST(CsmiDeviceTest, ReportsWhichPacketFailed) {
  struct Case {
    const char* packet;
    bool info;
    bool logical;
    bool physical;
  };
  for (const Case& row :
       {Case{"CC_CSMI_SAS_GET_CNTLR_CONFIG", true, false, false},
        Case{"CC_CSMI_SAS_GET_RAID_INFO", true, true, false}, Case{"CC_CSMI_SAS_GET_PHY_INFO", true, false, true},
        Case{"CC_CSMI_SAS_GET_RAID_CONFIG", false, true, false}}) {
    for (const auto& [effects, code] : {std::pair<FaultEffects, std::uint32_t>{{.error = 1117}, 34},
                                        std::pair<FaultEffects, std::uint32_t>{{.returnCode = 1}, 66}}) {
      const auto machine = Install({.adapters = {Mirror()}});
      const auto device = OpenDevice();
      machine->Faults().Add({.operation = row.packet, .effects = effects});
      ControllerInfo info;
      std::vector<LogicalDrive> logical;
      std::vector<PhysicalDrive> physical;
      EXPECT_EQ(device->GetControllerInfo(info), row.info ? code : 0) << row.packet;
      EXPECT_EQ(device->GetLogicalDrives(logical), row.logical ? code : 0) << row.packet;
      EXPECT_EQ(device->GetPhysicalDrives(physical), row.physical ? code : 0) << row.packet;
    }
  }
}

TEST(CsmiDeviceTest, SearchesForAtMost256NvmeMembers) {
  const auto set = Set(CsmiRaidType::Raid1, CsmiRaidStatus::Ok);
  const auto machine = Install({.adapters = {Controller(2, {set, set})}});
  const auto device = OpenDevice();
  machine->Faults().Add(Patch("CC_CSMI_SAS_GET_RAID_INFO", 32, {0xFF, 0, 0, 0}));
  machine->Faults().Add(Patch("CC_CSMI_SAS_GET_RAID_CONFIG", 43, {0xFF}));
  std::vector<StorageDeviceEntry> members;
  EXPECT_EQ(device->GetStorageDevices(members), 0U);
  EXPECT_EQ(members.size(), 2U);
  EXPECT_EQ(machine->Faults().CallsMade("NVME_PASS_THROUGH"), 256U * 256U) << "a search asks on every path";
}

TEST(CsmiDeviceTest, AsksForAtMost256Sets) {
  const auto machine = Install({.adapters = {Mirror()}});
  const auto device = OpenDevice();
  machine->Faults().Add(Patch("CC_CSMI_SAS_GET_RAID_INFO", 28, {0xFF, 0xFF, 0xFF, 0xFF}));
  // A controller that answers for every set that it is asked about.
  machine->Faults().Add(Patch("CC_CSMI_SAS_GET_RAID_CONFIG", 20, {0, 0, 0, 0}));
  std::vector<LogicalDrive> drives;
  EXPECT_EQ(device->GetLogicalDrives(drives), 0U);
  EXPECT_EQ(drives.size(), 256U);
}

TEST(CsmiDeviceTest, ReturnsStatusAndReasonOnSuccessOnly) {
  auto adapter = Mirror();
  adapter.csmi->status = CsmiStatus::Offline;
  adapter.csmi->offlineReason = CsmiOfflineReason::BusFailure;
  const auto machine = Install({.adapters = {adapter}});
  const auto device = OpenDevice();
  std::uint32_t status = 77;
  std::uint32_t reason = 77;
  machine->Faults().Add({.operation = "CC_CSMI_SAS_GET_CNTLR_STATUS", .call = 1, .effects = {.returnCode = 1}});
  EXPECT_EQ(device->GetControllerStatus(status, reason).Code(), 66U);
  EXPECT_EQ(status, 77U);
  EXPECT_EQ(device->GetControllerStatus(status, reason).Code(), 0U);
  EXPECT_EQ(status, 3U);
  EXPECT_EQ(reason, 3U);
}

}  // namespace
}  // namespace orvik::module::raid
