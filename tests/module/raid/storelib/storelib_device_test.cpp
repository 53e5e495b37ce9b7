// Storelib controllers of a simulated machine: library lifetime, controller information and member drives.

#include <gtest/gtest.h>

#include <stdexcept>

#include "module/raid/storelib/storelib_bridges.h"
#include "module/raid/storelib/storelib_device_manager.h"
#include "module/raid/storelib/storelib_names.h"
#include "module/storage/protocol.h"
#include "tests/module/raid/storelib/storelib_machines.h"

namespace orvik::module::raid {
namespace {

using namespace orvik::simulation;
using namespace orvik::testing;

std::string WhatStopsTheSender() {
  try {
    const LsiSender sender;
  } catch (const std::runtime_error& error) {
    return error.what();
  }
  return "nothing";
}

TEST(LsiSenderTest, LeavesNothingLoadedThatItCannotUse) {
  struct Case {
    StorelibInstallation installation;
    const char* error;
  };
  for (const Case& row : {Case{StorelibInstallation::Installed, "nothing"},
                          Case{StorelibInstallation::Missing, "Failed to open the library handle."},
                          Case{StorelibInstallation::WithoutEntryPoint, "Failed to obtain the function pointer."},
                          Case{StorelibInstallation::FailingInit, "Failed to execute the LSI Init command."}}) {
    const auto machine = Install({.storelib = {.installation = row.installation, .controllers = {LsiController()}}});
    EXPECT_EQ(WhatStopsTheSender(), row.error);
    EXPECT_EQ(machine->Ledger().OutstandingTotal(), 0U) << row.error;
    EXPECT_EQ(machine->Storelib().Sessions(), 0U) << row.error;
    LsiDeviceManager manager;
    manager.RefreshDevices();
    const bool usable = row.installation == StorelibInstallation::Installed;
    EXPECT_EQ(manager.HasControllers(), usable) << row.error;
    EXPECT_EQ(manager.GetDeviceList().size(), usable ? 1U : 0U) << row.error;
  }
}

TEST(LsiSenderTest, IsClosedByItsLastUser) {
  const auto machine = InstallLsi();
  auto manager = std::make_unique<LsiDeviceManager>();
  manager->RefreshDevices();
  auto device = std::dynamic_pointer_cast<LsiDevice>(manager->GetDeviceList().at(0));
  manager.reset();
  std::vector<StorageDeviceEntry> members;
  ASSERT_EQ(device->GetStorageDevices(members), 0U);
  ASSERT_EQ(members.size(), 2U);
  device.reset();
  EXPECT_EQ(machine->Ledger().Outstanding(Resource::Library), 1U);
  EXPECT_EQ(machine->Storelib().Sessions(), 1U);

  storage::ProtocolProperties properties;
  EXPECT_EQ(members[0].protocolObject->GetProperties(&properties), 0U) << "the bridge keeps the library";
  members.clear();
  EXPECT_EQ(machine->Ledger().OutstandingTotal(), 0U);
  EXPECT_EQ(machine->Storelib().Sessions(), 0U);
}

TEST(LsiDeviceManagerTest, KeepsControllersThatListTheirDrives) {
  const auto controller = [](std::uint32_t id) {
    auto description = LsiController();
    description.controllerId = id;
    return description;
  };
  const auto machine = Install({.storelib = {.controllers = {controller(7), controller(70000)}}});
  LsiDeviceManager manager;
  manager.RefreshDevices();
  ASSERT_EQ(manager.GetDeviceList().size(), 2U);
  EXPECT_EQ(manager.GetDeviceList()[1]->GetId(), "70000");

  machine->Faults().Add({.operation = "STORELIB_PHYSICAL_DRIVE_LIST", .call = 1, .effects = {.returnCode = 5}});
  manager.RefreshDevices();
  ASSERT_EQ(manager.GetDeviceList().size(), 1U);
  EXPECT_EQ(manager.GetDeviceList()[0]->GetId(), "70000");

  // A count beyond the list is limited to the listed controllers.
  machine->Faults().Add(
      {.operation = "STORELIB_LIST_CONTROLLERS", .effects = {.patches = {{.offset = 0, .bytes = {0xFF, 0xFF}}}}});
  EXPECT_TRUE(manager.HasControllers());
  const std::uint64_t before = machine->Faults().CallsMade("STORELIB_CONTROLLER_INFO");
  manager.RefreshDevices();
  EXPECT_EQ(machine->Faults().CallsMade("STORELIB_CONTROLLER_INFO") - before, 64U);
  EXPECT_EQ(manager.GetDeviceList().size(), 2U);

  machine->Faults().FailEvery("STORELIB_LIST_CONTROLLERS");
  EXPECT_FALSE(manager.HasControllers());
  manager.RefreshDevices();
  EXPECT_TRUE(manager.GetDeviceList().empty());
}

TEST(LsiDeviceTest, DescribesItself) {
  auto controller = LsiController({Volume(0), Volume(5, 1, 3)});
  controller.raidLevels = 0x23;
  controller.interfaces = kStorelibSpi | kStorelibSas6G | kStorelibSata3G;
  Install({.adapters = {Mirror()}, .storelib = {.controllers = {controller}}});
  LsiDeviceManager manager;
  manager.RefreshDevices();
  const auto device = std::dynamic_pointer_cast<LsiDevice>(manager.GetDeviceList().at(0));
  EXPECT_EQ(device->GetName(), "ORVK RAID 8i - OV C001");
  using Property = std::pair<std::string, std::string>;
  EXPECT_EQ(device->GetProperties(), (std::vector<Property>{{"UDI", "ORVKRAID8i-OVC001"},
                                                            {"MODEL", "ORVK RAID 8i"},
                                                            {"SERIAL", "OV C001"},
                                                            {"NUM_LOGICAL_DEVICES", "2"},
                                                            {"SUPPORTED_INTERFACES", "SAS 6G, SATA 3G, SPI"},
                                                            {"SUPPORTED_RAID_LEVELS", "RAID 0, RAID 1, RAID 10"},
                                                            {"NUM_PHYSICAL_DEVICES", "2"},
                                                            {"DRIVER_VERSION", "17.9.1.1009"}}));
  ASSERT_EQ(device->GetResources().size(), 4U);
  EXPECT_EQ(device->GetResources()[3][3], (Property{"MODEL", "WDC WD10ORVK-08M"}));

  std::vector<LogicalDrive> drives(1);
  ASSERT_EQ(device->GetLogicalDrives(drives), 0U);
  ASSERT_EQ(drives.size(), 2U);
  EXPECT_EQ(drives[1].name, "5");
  EXPECT_EQ(drives[1].raidLevel, "RAID 10");
  EXPECT_EQ(drives[1].sequenceNumber, 0x0105);
  EXPECT_EQ(drives[1].memberCount, 2U);
  EXPECT_EQ(drives[1].sizeBytes, 1'000'204'886'016U);
  EXPECT_EQ(drives[1].vendorData.size(), 384U);
  EXPECT_EQ(drives[1].state, LogicalDriveState::Unknown);

  std::vector<PhysicalDrive> members;
  ASSERT_EQ(device->GetPhysicalDrives(members), 0U);
  ASSERT_EQ(members.size(), 2U) << "an enclosure is no drive";
  EXPECT_EQ(members[0].manufacturer, "ORVIK   ");
  EXPECT_EQ(members[0].model, "OVS9000         ");
  EXPECT_EQ(members[0].protocol, DriveProtocol::Scsi);
  EXPECT_EQ(members[1].protocol, DriveProtocol::Ata);
  EXPECT_EQ(members[1].deviceId, 9);
}

TEST(LsiDeviceTest, NamesRaidLevels) {
  struct Case {
    std::uint8_t primary;
    std::uint8_t secondary;
    const char* name;
  };
  for (const Case& row : {Case{0, 3, "RAID 0"},
                          {1, 0, "RAID 1"},
                          {1, 3, "RAID 10"},
                          {2, 0, "UNKNOWN"},
                          {3, 0, "RAID 3"},
                          {4, 3, "RAID 4"},
                          {5, 0, "RAID 5"},
                          {5, 3, "RAID 50"},
                          {6, 0, "RAID 6"},
                          {6, 3, "RAID 60"},
                          {17, 3, "RAID 1"},
                          {255, 3, "UNKNOWN"}}) {
    EXPECT_EQ(RaidLevelName(row.primary, row.secondary), row.name) << int{row.primary} << ' ' << int{row.secondary};
  }
  using Names = std::vector<std::string>;
  Names all;
  AppendRaidLevelNames(0xFFFFFFFF, all);
  EXPECT_EQ(all, (Names{"RAID 0", "RAID 1", "RAID 10", "RAID 5", "RAID 50", "RAID 6", "RAID 60"}));
  // One bit at a time, from the lowest on; an empty text is a bit without a name.
  const Names kLevels = {"RAID 0", "RAID 1", "RAID 5", "", "RAID 6", "RAID 10", "RAID 50", "RAID 60"};
  const Names kInterfaces = {"SPI", "SAS 3G", "SATA 1.5G", "SATA 3G", "SAS 6G", "", "", ""};
  for (unsigned bit = 0; bit < 8; ++bit) {
    Names levels;
    AppendRaidLevelNames(1U << bit, levels);
    EXPECT_EQ(levels, kLevels[bit].empty() ? Names{} : Names{kLevels[bit]}) << bit;
    Names interfaces;
    AppendInterfaceNames(static_cast<std::uint8_t>(1U << bit), interfaces);
    EXPECT_EQ(interfaces, kInterfaces[bit].empty() ? Names{} : Names{kInterfaces[bit]}) << bit;
  }
}

TEST(LsiDeviceTest, NamesTheProtocolOfEachInterface) {
  using enum DriveProtocol;
  static constexpr DriveProtocol kProtocols[] = {Unknown, Scsi, Scsi, Ata, Unknown};
  for (std::uint8_t interface = 0; interface < std::size(kProtocols); ++interface) {
    const auto machine = InstallLsi();
    machine->Faults().Add({.operation = "STORELIB_PHYSICAL_DRIVE_INFO",
                           .effects = {.patches = {{.offset = 401, .bytes = {interface}}}}});
    std::vector<PhysicalDrive> drives;
    ASSERT_EQ(OpenLsiDevice()->GetPhysicalDrives(drives), 0U);
    EXPECT_EQ(drives.at(0).protocol, kProtocols[interface]) << int{interface};
  }
}

TEST(LsiDeviceTest, LeavesOutDrivesThatDoNotAnswer) {
  struct Case {
    const char* operation;
    std::uint64_t call;
    std::size_t logical;
    std::size_t physical;
    std::uint32_t logicalCode;
    std::uint32_t physicalCode;
  };
  for (const Case& row :
       {Case{"STORELIB_MEMBER_LIST", 1, 1, 2, 0, 0}, Case{"STORELIB_LOGICAL_DRIVE_INFO", 2, 1, 2, 0, 0},
        Case{"STORELIB_LOGICAL_DRIVE_LIST", 1, 0, 2, 1, 0}, Case{"STORELIB_PHYSICAL_DRIVE_INFO", 1, 2, 1, 0, 0},
        Case{"STORELIB_PHYSICAL_DRIVE_INFO", 2, 2, 1, 0, 1}, Case{"STORELIB_PHYSICAL_DRIVE_LIST", 1, 2, 0, 0, 1}}) {
    const auto machine = InstallLsi(LsiController({Volume(0), Volume(1)}));
    machine->Faults().Add({.operation = row.operation, .call = row.call, .effects = {.returnCode = 0x80000000}});
    const auto device = OpenLsiDevice();
    std::vector<LogicalDrive> logical(5);
    EXPECT_EQ(device->GetLogicalDrives(logical), row.logicalCode) << row.operation;
    EXPECT_EQ(logical.size(), row.logical) << row.operation;
    std::vector<PhysicalDrive> physical(5);
    EXPECT_EQ(device->GetPhysicalDrives(physical), row.physicalCode) << row.operation;
    EXPECT_EQ(physical.size(), row.physical) << row.operation;
  }
}

TEST(LsiDeviceTest, LimitsCountsAndTextsToTheReply) {
  const auto machine = InstallLsi();
  const auto device = OpenLsiDevice();
  const auto patch = [&machine](const char* operation, std::size_t offset, std::vector<std::uint8_t> bytes) {
    machine->Faults().Add({.operation = operation, .effects = {.patches = {{.offset = offset, .bytes = bytes}}}});
  };
  const std::vector<std::uint8_t> many(4, 0xFF);
  patch("STORELIB_LOGICAL_DRIVE_LIST", 0, many);
  patch("STORELIB_PHYSICAL_DRIVE_LIST", 4, many);
  patch("STORELIB_ENCLOSURE_LIST", 0, many);
  patch("STORELIB_CONTROLLER_INFO", 1344, std::vector<std::uint8_t>(156, 'A'));
  std::vector<LogicalDrive> logical;
  EXPECT_EQ(device->GetLogicalDrives(logical), 0U);
  EXPECT_EQ(machine->Faults().CallsMade("STORELIB_MEMBER_LIST"), 256U);
  std::vector<PhysicalDrive> physical;
  EXPECT_EQ(device->GetPhysicalDrives(physical), 1U) << "the entries beyond the drives don't answer";
  EXPECT_EQ(machine->Faults().CallsMade("STORELIB_PHYSICAL_DRIVE_INFO"), 255U) << "one entry is an enclosure";
  std::vector<EnclosureInfo> enclosures;
  EXPECT_EQ(device->GetEnclosures(enclosures).Code(), 0U);
  EXPECT_EQ(enclosures.size(), 32U);
  ControllerInfo info;
  EXPECT_EQ(device->GetControllerInfo(info), 0U);
  EXPECT_EQ(info.model, std::string(80, 'A'));
  EXPECT_EQ(info.serial, std::string(76, 'A'));
}

TEST(LsiDeviceTest, FollowsAConsistencyCheck) {
  auto drive = Volume(5);
  drive.check = {.seconds = 100, .endsConsistent = false};
  const auto machine = InstallLsi(LsiController({drive}));
  const auto device = OpenLsiDevice();
  bool running = true;
  double percent = 12;
  EXPECT_EQ(device->GetConsistencyCheckProgress(5, running, percent).Code(), 0U);
  EXPECT_FALSE(running);
  EXPECT_EQ(percent, 12);
  EXPECT_EQ(device->StartConsistencyCheck(5, 0x0104).Code(), 1U) << "another sequence number";
  EXPECT_EQ(device->StartConsistencyCheck(5, 0x0105).Code(), 0U);
  machine->Clock().Advance(50'000);
  EXPECT_EQ(device->GetConsistencyCheckProgress(5, running, percent).Code(), 0U);
  EXPECT_TRUE(running);
  EXPECT_NEAR(percent, 50, 1);
  EXPECT_EQ(device->CancelConsistencyCheck(5, 0x0105).Code(), 0U);
  bool consistent = false;
  EXPECT_EQ(device->GetConsistencyCheckResult(5, 0x0105, consistent).Code(), 0U);
  EXPECT_TRUE(consistent);
  EXPECT_EQ(device->StartConsistencyCheck(5, 0x0105).Code(), 0U);
  machine->Clock().Advance(100'000);
  EXPECT_EQ(device->GetConsistencyCheckResult(5, 0x0105, consistent).Code(), 0U);
  EXPECT_FALSE(consistent);
}

TEST(LsiMemberDrivesTest, AreReachedByScsiAndSataDrivesByAtaToo) {
  InstallLsi();
  std::vector<StorageDeviceEntry> members;
  ASSERT_EQ(OpenLsiDevice()->GetStorageDevices(members), 0U);
  ASSERT_EQ(members.size(), 2U);
  EXPECT_EQ(members[0].id, "r-8");
  EXPECT_EQ(members[1].id, "r-9");
  EXPECT_EQ(members[0].ataProtocolObject, nullptr);
  storage::ProtocolProperties sas;
  EXPECT_EQ(members[0].protocolObject->GetProperties(&sas), 0U);
  EXPECT_EQ(sas.serialNumber, "SAS-B");
  EXPECT_EQ(sas.sectorCount, 17'578'328'064U);

  ASSERT_NE(members[1].ataProtocolObject, nullptr);
  storage::ProtocolProperties sata;
  EXPECT_EQ(members[1].ataProtocolObject->GetProperties(&sata), 0U);
  EXPECT_EQ(sata.serialNumber, "WD-A");
  std::vector<std::uint8_t> written(1024, 0x5A);
  std::vector<std::uint8_t> read(1024);
  for (const auto& drive : {members[0].protocolObject, members[1].ataProtocolObject}) {
    EXPECT_EQ(drive->Write(1000, 2, 0, written.data()), 0U);
    EXPECT_EQ(drive->Read(1000, 2, 30, read.data(), 512), 0U);
    EXPECT_EQ(read, written);
    read.assign(1024, 0);
  }
}

TEST(LsiMemberDrivesTest, SilentSataDrivesKeepTheirScsiObject) {
  auto controller = LsiController();
  std::get<SataDriveDescription>(controller.drives[1].drive).silent = true;
  InstallLsi(controller);
  std::vector<StorageDeviceEntry> members;
  ASSERT_EQ(OpenLsiDevice()->GetStorageDevices(members), 0U);
  ASSERT_EQ(members.size(), 2U);
  EXPECT_NE(members[1].protocolObject, nullptr);
  EXPECT_EQ(members[1].ataProtocolObject, nullptr);
}

TEST(LsiMemberDrivesTest, BridgesWithoutALibraryFail) {
  storage::ScsiCmd scsi;
  EXPECT_EQ(LsiSspBridge(1, 2, nullptr).Send(scsi).Code(), 1U);
  storage::AtaCmd ata;
  EXPECT_EQ(LsiStpBridge(1, 2, nullptr).Send(ata).Code(), 1U);
}

}  // namespace
}  // namespace orvik::module::raid
