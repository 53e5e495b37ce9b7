// Member drives of simulated controllers and drives of the system itself, through the protocol objects that reach
// them.

#include <gtest/gtest.h>

#include <cstring>
#include <numeric>

#include "module/storage/ata/ata_protocol.h"
#include "module/storage/nvme/nvme_protocol.h"
#include "module/storage/scsi/scsi_protocol.h"
#include "tests/module/raid/machines.h"
#include "utils/devices/win_device_interface_scanner.h"

namespace orvik::module::raid {
namespace {

using namespace orvik::simulation;
using namespace orvik::testing;
using storage::ProtocolProperties;

constexpr std::uint64_t k28Bits = std::uint64_t{1} << 28;
constexpr std::uint64_t k32Bits = std::uint64_t{1} << 32;

SataDriveDescription Sata() {
  return {.model = "WDC WD80ORVK", .serial = "WD-A", .firmware = "01.01A01", .sectors = 15628053168};
}

SasDriveDescription Sas() {
  return {.vendor = "ORVIK", .product = "OVS9000", .revision = "0001", .serial = "SAS-B", .sectors = 17578328064};
}

NvmeDriveDescription Nvme(const char* serial) {
  return {.model = "NVMe ORVK SSD 512GB", .serial = serial, .firmware = "OV10", .sectors = 1000215216};
}

/// A controller with the drives, all members of one set.
std::shared_ptr<Machine> InstallController(const std::vector<DriveDescription>& drives) {
  auto adapter = PciRaidAdapter("a77f", 14);
  adapter.csmi.emplace();
  adapter.csmi->flags = kCsmiSasRaid | kCsmiSataRaid;
  adapter.csmi->drives = drives;
  CsmiRaidSetDescription set{.capacityMiB = 1000};
  for (std::size_t i = 0; i < drives.size(); ++i) set.members.push_back({.drive = i});
  adapter.csmi->raidSets.push_back(set);
  return Install({.adapters = {adapter}});
}

std::vector<StorageDeviceEntry> Members(CsmiDevice& device) {
  std::vector<StorageDeviceEntry> members;
  EXPECT_EQ(device.GetStorageDevices(members), 0U);
  return members;
}

/// A drive of the system itself, open.
utils::UniqueHandle OpenPhysicalDrive(int number) {
  HANDLE handle = INVALID_HANDLE_VALUE;
  WinDeviceInterfaceScanner().OpenDevice(R"(\\.\PhysicalDrive)" + std::to_string(number), handle);
  return utils::UniqueHandle(handle);
}

template <typename ProtocolType, typename Bridge>
std::shared_ptr<ProtocolType> Direct(HANDLE handle) {
  auto protocol = std::make_shared<ProtocolType>();
  protocol->AddBridge(std::make_shared<Bridge>(handle));
  return protocol;
}

std::shared_ptr<storage::Protocol> DirectAta(HANDLE handle) {
  return Direct<storage::AtaProtocol, storage::AtaBridge>(handle);
}

std::shared_ptr<storage::Protocol> DirectScsi(HANDLE handle) {
  return Direct<storage::ScsiProtocol, storage::ScsiBridge>(handle);
}

/// Writes a pattern over two sectors from `lba` on and reads it back; nothing else of the buffer may change.
void VerifyPattern(storage::Protocol& drive, std::uint64_t lba, std::uint32_t sectorSize = 512) {
  std::vector<std::uint8_t> pattern(2 * sectorSize);
  std::iota(pattern.begin(), pattern.end(), static_cast<std::uint8_t>(lba % 251));
  ASSERT_EQ(drive.Write(lba, 2, 0, pattern.data()), 0U) << lba;
  std::vector<std::uint8_t> read(pattern.size() + 1, 0xEE);
  ASSERT_EQ(drive.Read(lba, 2, 30, read.data(), static_cast<std::uint32_t>(pattern.size())), 0U) << lba;
  EXPECT_EQ(read.back(), 0xEE);
  read.pop_back();
  EXPECT_EQ(read, pattern) << lba;
}

TEST(MemberDrivesTest, KeepTheirIdsOnEveryCall) {
  InstallController({Sata(), Sas(), Nvme("N1"), Nvme("N2")});
  const auto device = OpenDevice();
  for (int round = 0; round < 2; ++round) {
    const auto members = Members(*device);
    ASSERT_EQ(members.size(), 4U);
    const DriveProtocol kProtocols[] = {DriveProtocol::Ata, DriveProtocol::Scsi, DriveProtocol::Nvme,
                                        DriveProtocol::Nvme};
    const char* const kSerials[] = {"WD-A", "SAS-B", "N1", "N2"};
    for (std::size_t i = 0; i < members.size(); ++i) {
      EXPECT_EQ(members[i].id, "ra77f-" + std::to_string(i));
      EXPECT_EQ(members[i].protocol, kProtocols[i]);
      ProtocolProperties properties;
      ASSERT_EQ(members[i].protocolObject->GetProperties(&properties), 0U);
      EXPECT_NE(properties.serialNumber.find(kSerials[i]), std::string::npos) << properties.serialNumber;
    }
  }
  EXPECT_EQ(device->GetId(), "a77f");
}

TEST(MemberDrivesTest, OutliveTheirDeviceWithoutReachingAnother) {
  const auto onController = [](std::string_view deviceId, unsigned unit, std::vector<DriveDescription> drives) {
    auto adapter = Controller(0, {}, deviceId, unit);
    adapter.csmi->drives = std::move(drives);
    CsmiRaidSetDescription set{.capacityMiB = 1000};
    for (std::size_t i = 0; i < adapter.csmi->drives.size(); ++i) set.members.push_back({.drive = i});
    adapter.csmi->raidSets.push_back(set);
    return adapter;
  };
  auto other = Sata();
  other.serial = "OTHER-A";
  auto otherSas = Sas();
  otherSas.serial = "OTHER-B";
  const auto machine = Install({.adapters = {onController("a77f", 14, {Sata(), Sas(), Nvme("N1")}),
                                             onController("2822", 23, {other, otherSas, Nvme("OTHER-C")})}});
  auto adapters = EnumerateCsmiAdapters();
  ASSERT_EQ(adapters.size(), 2U);
  const std::string otherPath = adapters[1].interfacePath;
  auto device = std::make_unique<CsmiDevice>(std::move(adapters[0]));
  adapters.clear();
  auto members = Members(*device);
  ASSERT_EQ(members.size(), 3U);
  device.reset();

  // The next open file gets the value of the first handle that was closed.
  HANDLE opened = INVALID_HANDLE_VALUE;
  ASSERT_EQ(WinDeviceInterfaceScanner().OpenDevice(otherPath, opened), 0U);
  const utils::UniqueHandle owner(opened);
  const char* const kSerials[] = {"WD-A", "SAS-B", "N1"};
  for (std::size_t i = 0; i < members.size(); ++i) {
    ProtocolProperties properties;
    ASSERT_EQ(members[i].protocolObject->GetProperties(&properties), 0U);
    EXPECT_EQ(properties.serialNumber.substr(0, std::strlen(kSerials[i])), kSerials[i]);
  }
  EXPECT_EQ(machine->Ledger().OutstandingTotal(), 2U);
  members.clear();
  EXPECT_EQ(machine->Ledger().OutstandingTotal(), 1U);
}

TEST(MemberDrivesTest, AreSearchedForEvenAfterASearchFailed) {
  const auto machine = InstallController({Sata(), Nvme("N1"), Nvme("N2")});
  const auto device = OpenDevice();
  // The first search ends at path 0; the second finds path 0 known and gets no answer from path 1.
  machine->Faults().Add({.operation = "NVME_PASS_THROUGH", .call = 3, .effects = {.error = 1117}});
  const auto members = Members(*device);
  ASSERT_EQ(members.size(), 3U);
  ProtocolProperties properties;
  ASSERT_EQ(members[2].protocolObject->GetProperties(&properties), 0U);
  EXPECT_EQ(properties.serialNumber.substr(0, 2), "N2");
}

TEST(MemberDrivesTest, ReadBackWhatWasWrittenOnEveryPath) {
  auto small = Sata();
  small.lba48 = false;
  small.sectors = k28Bits - 1;
  auto large = Sas();
  large.sectorSize = 4096;
  const auto machine = std::make_shared<Machine>(
      MachineDescription{.adapters = {}, .physicalDrives = {{.drive = Sata()}, {.drive = Sas()}, {.drive = small}}});
  InstallMachine(machine);
  {
    const auto first = OpenPhysicalDrive(0);
    const auto second = OpenPhysicalDrive(1);
    const auto third = OpenPhysicalDrive(2);
    ProtocolProperties properties;
    const auto ata = DirectAta(first.Get());
    ASSERT_EQ(ata->GetProperties(&properties), 0U);
    EXPECT_EQ(properties.sectorCount, 15628053168U);
    for (const std::uint64_t lba : {std::uint64_t{0}, k28Bits - 1, k32Bits - 1}) VerifyPattern(*ata, lba);
    const auto scsi = DirectScsi(second.Get());
    ASSERT_EQ(scsi->GetProperties(&properties), 0U);
    for (const std::uint64_t lba : {std::uint64_t{0}, k32Bits - 1}) VerifyPattern(*scsi, lba);
    const auto ata28 = DirectAta(third.Get());
    ASSERT_EQ(ata28->GetProperties(&properties), 0U);
    for (const std::uint64_t lba : {std::uint64_t{0}, k28Bits - 3}) VerifyPattern(*ata28, lba);
  }
  EXPECT_EQ(machine->Ledger().OutstandingTotal(), 0U);

  InstallController({Sata(), Sas(), large});
  const auto device = OpenDevice();
  const auto members = Members(*device);
  for (const auto& member : members) {
    ProtocolProperties properties;
    ASSERT_EQ(member.protocolObject->GetProperties(&properties), 0U);
    for (const std::uint64_t lba : {std::uint64_t{0}, k28Bits - 1, k32Bits - 1}) {
      VerifyPattern(*member.protocolObject, lba, properties.logicalSectorSize);
    }
    std::vector<std::uint8_t> sector(properties.logicalSectorSize);
    EXPECT_NE(member.protocolObject->Read(properties.sectorCount, 1, 30, sector.data(),
                                          static_cast<std::uint32_t>(sector.size())),
              0U);
  }
}

TEST(MemberDrivesTest, ReadNvmeSectorsOfTheirOwnDrive) {
  constexpr std::uint64_t kLba = 1000215213;
  auto first = Nvme("N1");
  first.unreadableSectors = {kLba};
  InstallController({first, Nvme("N2")});
  const auto device = OpenDevice();
  const auto members = Members(*device);
  ASSERT_EQ(members.size(), 2U);
  std::vector<std::uint8_t> data(1024, 0xEE);
  EXPECT_NE(members[0].protocolObject->Read(kLba, 2, 30, data.data(), 1024), 0U);
  EXPECT_EQ(members[0].protocolObject->Read(kLba + 1, 2, 30, data.data(), 1024), 0U);
  EXPECT_EQ(data, std::vector<std::uint8_t>(1024));
  EXPECT_EQ(members[1].protocolObject->Read(kLba, 2, 30, data.data(), 1024), 0U);
  EXPECT_NE(members[1].protocolObject->Read(kLba + 2, 2, 30, data.data(), 1024), 0U);
  EXPECT_EQ(members[1].protocolObject->Write(kLba, 2, 0, data.data()), 4U);
}

TEST(MemberDrivesTest, ReportHealthAndTemperature) {
  auto sata = Sata();
  sata.rotationRate = kSolidState;
  sata.temperatureCelsius = 41;
  sata.lifeRemainingPercent = 83;
  sata.label = "8SORVIK-LABEL-0001";
  auto sas = Sas();
  sas.temperatureCelsius = 52;
  auto nvme = Nvme("N1");
  nvme.temperatureCelsius = 78;
  nvme.lifeRemainingPercent = 12;
  for (const bool failing : {false, true}) {
    sata.failing = failing;
    sas.failing = failing;
    InstallController({sata, sas, nvme});
    const auto device = OpenDevice();
    const auto members = Members(*device);
    ASSERT_EQ(members.size(), 3U);
    const int kTemperatures[] = {41, 52, 78};
    for (std::size_t i = 0; i < members.size(); ++i) {
      std::uint8_t degrees = 0;
      EXPECT_EQ(members[i].protocolObject->GetTemperature(degrees), 0U);
      EXPECT_EQ(degrees, kTemperatures[i]);
      std::uint8_t healthy = 9;
      EXPECT_EQ(members[i].protocolObject->GetHealthStatus(healthy), 0U);
      EXPECT_EQ(healthy, i == 2 ? 9 : failing ? 0 : 1);
    }
    std::uint32_t life = 0;
    EXPECT_EQ(members[0].protocolObject->GetLifeRemaining(life), 0U);
    EXPECT_EQ(life, 83U);
    EXPECT_EQ(members[2].protocolObject->GetLifeRemaining(life), 0U);
    EXPECT_EQ(life, 12U);
    ProtocolProperties properties;
    EXPECT_EQ(members[0].protocolObject->GetProperties(&properties), 0U);
    EXPECT_TRUE(properties.isSolidState);
    EXPECT_EQ(properties.labelText.substr(0, sata.label.size()), sata.label);
  }
}

TEST(MemberDrivesTest, RunSelfTests) {
  auto sata = Sata();
  auto sas = Sas();
  for (const std::optional<std::uint64_t> failingLba : {std::optional<std::uint64_t>(), {123456789}}) {
    sata.selfTest.failingLba = failingLba;
    sas.selfTest.failingLba = failingLba;
    const auto machine = InstallController({sata, sas});
    const auto device = OpenDevice();
    for (const auto& member : Members(*device)) {
      storage::Protocol& drive = *member.protocolObject;
      ASSERT_EQ(drive.StartSelfTest(1, 0), 0U);
      machine->Clock().Advance(60'000);
      std::uint8_t percent = 0;
      EXPECT_EQ(drive.GetSelfTestProgress(percent), 0U);
      EXPECT_GE(percent, 40);
      EXPECT_LE(percent, 60);
      machine->Clock().Advance(120'000);
      std::uint8_t result = 99;
      EXPECT_EQ(drive.GetSelfTestResult(result), 0U);
      EXPECT_EQ(result == 0, !failingLba.has_value()) << int{result};
      std::uint64_t lba = 0;
      if (failingLba) {
        EXPECT_EQ(drive.GetSelfTestFailingLba(lba), 0U);
        EXPECT_EQ(lba, *failingLba);
      }
      ASSERT_EQ(drive.StartSelfTest(2, 0), 0U);
      EXPECT_EQ(drive.AbortSelfTest(), 0U);
      EXPECT_EQ(drive.GetSelfTestResult(result), 0U);
      EXPECT_EQ(result, 1);
    }
  }
}

TEST(MemberDrivesTest, FallBackOnTheSystemsFailurePrediction) {
  auto failingDrive = Sas();
  failingDrive.unsupportedOpcodes = {0x03};  // health needs REQUEST SENSE
  failingDrive.failing = true;
  Install({.physicalDrives = {{.drive = failingDrive}, {.drive = Sata(), .accessDenied = true}}});
  const auto failing = OpenPhysicalDrive(0);
  std::uint8_t healthy = 9;
  EXPECT_EQ(DirectScsi(failing.Get())->GetHealthStatus(healthy), 0U);
  EXPECT_EQ(healthy, 0);
  const auto denied = OpenPhysicalDrive(1);
  ProtocolProperties properties;
  EXPECT_EQ(DirectAta(denied.Get())->GetProperties(&properties), 125U);
}

}  // namespace
}  // namespace orvik::module::raid
