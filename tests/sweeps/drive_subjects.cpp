// Each operation of a protocol object on each path to a drive.

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <span>
#include <sstream>
#include <utility>

#include "module/storage/ata/ata_protocol.h"
#include "module/storage/scsi/scsi_protocol.h"
#include "tests/module/raid/storelib/storelib_machines.h"
#include "tests/sweeps/subjects.h"
#include "utils/devices/win_device_interface_scanner.h"

namespace orvik::sweeps {

namespace {

using module::raid::StorageDeviceEntry;
using module::storage::Protocol;
using module::storage::ProtocolProperties;
using module::storage::Status;
using namespace simulation;

const SelfTestDescription kOneFailure = {.log = {{.hours = 900, .failingLba = 123'456}}};

SataDriveDescription Sata() {
  return {.model = "WDC WD80ORVK",
          .serial = "WD-A",
          .firmware = "01.01A01",
          .sectors = 15'628'053'168,
          .label = "8SORVIK-LABEL-0001",
          .selfTest = kOneFailure};
}

SasDriveDescription Sas() {
  return {.vendor = "ORVIK",
          .product = "OVS9000",
          .revision = "0001",
          .serial = "SAS-B",
          .sectors = 3'000'000'000,
          .selfTest = kOneFailure};
}

MachineDescription Drives() {
  auto adapter = PciRaidAdapter("a77f", 14);
  adapter.csmi.emplace();
  adapter.csmi->drives = {Sata(), Sas(), NvmeDriveDescription{.model = "NVMe ORVK", .serial = "N1", .sectors = 1000}};
  adapter.csmi->raidSets.push_back({.capacityMiB = 1000, .members = {{.drive = 2}}});
  auto lsi = testing::LsiController({});
  lsi.drives = {{.deviceId = 8, .drive = Sas()}, {.deviceId = 9, .drive = Sata()}};
  return {.adapters = {adapter},
          .physicalDrives = {{.drive = Sata()}, {.drive = Sas()}},
          .storelib = {.controllers = {lsi}}};
}

/// A drive object and what has to outlive it.
struct Road {
  std::shared_ptr<module::raid::RaidDevice> device{};
  utils::UniqueHandle handle{};
  std::shared_ptr<Protocol> drive{};
};

template <std::size_t number>
Road BehindCsmi() {
  Road road{.device = testing::OpenDevice()};
  std::vector<StorageDeviceEntry> members;
  EXPECT_EQ(road.device->GetStorageDevices(members), 0U);
  road.drive = members.at(number).protocolObject;
  return road;
}

template <std::size_t number, auto object>
Road BehindStorelib() {
  Road road{.device = testing::OpenLsiDevice()};
  std::vector<StorageDeviceEntry> members;
  EXPECT_EQ(road.device->GetStorageDevices(members), 0U);
  road.drive = members.at(number).*object;
  return road;
}

template <typename ProtocolType, typename Bridge>
Road Direct(const char* path) {
  HANDLE handle = INVALID_HANDLE_VALUE;
  WinDeviceInterfaceScanner().OpenDevice(path, handle);
  auto drive = std::make_shared<ProtocolType>();
  drive->AddBridge(std::make_shared<Bridge>(handle));
  return {.handle = utils::UniqueHandle(handle), .drive = std::move(drive)};
}

struct NamedRoad {
  const char* name;
  Road (*open)();
};

const std::array<NamedRoad, 8> kRoads = {{
    {"SATA behind CSMI", BehindCsmi<0>},
    {"SAS behind CSMI", BehindCsmi<1>},
    {"NVMe behind CSMI", BehindCsmi<2>},
    {"SAS behind storelib", BehindStorelib<0, &StorageDeviceEntry::protocolObject>},
    {"SATA behind storelib", BehindStorelib<1, &StorageDeviceEntry::ataProtocolObject>},
    {"SATA behind storelib, by SCSI", BehindStorelib<1, &StorageDeviceEntry::protocolObject>},
    {"ATA of the system",
     [] { return Direct<module::storage::AtaProtocol, module::storage::AtaBridge>(R"(\\.\PhysicalDrive0)"); }},
    {"SCSI of the system",
     [] { return Direct<module::storage::ScsiProtocol, module::storage::ScsiBridge>(R"(\\.\PhysicalDrive1)"); }},
}};

bool IsKnown(Status status) {
  static constexpr Status kKnown[] = {0, 1, 2, 4, 32, 33, 34, 35, 66, 74, 75, 78, 79, 88, 89, 108, 109, 125};
  return std::ranges::find(kKnown, status) != std::end(kKnown);
}

/// The status and the output, which must not change unless the operation succeeded.
template <typename Value>
Answer Told(Status status, Value value, Value before) {
  const bool kept = status == 0 || value == before;
  return {IsKnown(status) && kept, std::to_string(status) + ": " + std::to_string(value)};
}

Answer Told(Status status) {
  return Told(status, 0, 0);
}

template <typename Value, Status (Protocol::*operation)(Value&)>
Answer Get(Protocol& drive) {
  constexpr Value kBefore = 0x5A;
  Value value = kBefore;
  const Status status = (drive.*operation)(value);
  return Told(status, value, kBefore);
}

Answer GetProperties(Protocol& drive) {
  ProtocolProperties properties;
  const Status status = drive.GetProperties(&properties);
  std::ostringstream text;
  text << status << ' ' << properties.model << ' ' << properties.serialNumber << ' ' << properties.sectorCount << ' '
       << properties.logicalSectorSize << ' ' << properties.labelText << ' ' << properties.smartEnabled;
  return {IsKnown(status), text.str()};
}

Answer GetSelfTestFailingLba(Protocol& drive) {
  constexpr std::uint64_t kNoFailure = ~std::uint64_t{0};  // of a SCSI drive, with status 1
  std::uint64_t lba = 0x5A;
  const Status status = drive.GetSelfTestFailingLba(lba);
  return Told<std::uint64_t>(status, lba, status == 1 && lba == kNoFailure ? lba : 0x5A);
}

constexpr std::size_t kTransfer = 1024;

Answer Read(Protocol& drive) {
  std::vector<std::uint8_t> buffer(kTransfer, 0xEE);
  const Status status = drive.Read(7, 2, 30, buffer.data(), kTransfer);
  return {IsKnown(status), std::to_string(status) + ": " + std::to_string(buffer.front())};
}

Answer Write(Protocol& drive) {
  std::vector<std::uint8_t> buffer(kTransfer, 0x11);
  return Told(drive.Write(7, 2, 0, buffer.data()));
}

struct Operation {
  const char* name;
  Answer (*run)(Protocol& drive);
};

const std::array<Operation, 17> kOperations = {{
    {"GetProperties", GetProperties},
    {"Read", Read},
    {"GetTemperature", Get<std::uint8_t, &Protocol::GetTemperature>},
    {"StartSelfTest", [](Protocol& drive) { return Told(drive.StartSelfTest(1, 0)); }},
    {"GetSelfTestProgress", Get<std::uint8_t, &Protocol::GetSelfTestProgress>},
    {"GetSelfTestResult", Get<std::uint8_t, &Protocol::GetSelfTestResult>},
    {"AbortSelfTest", [](Protocol& drive) { return Told(drive.AbortSelfTest()); }},
    {"GetSelfTestFailingLba", GetSelfTestFailingLba},
    {"GetHealthStatus", Get<std::uint8_t, &Protocol::GetHealthStatus>},
    {"SetSmartEnabled", [](Protocol& drive) { return Told(drive.SetSmartEnabled(1)); }},
    {"IsSupported",
     [](Protocol& drive) {
       return Answer{true, drive.IsSupported() ? "yes" : "no"};
     }},
    {"WriteUncorrectable", [](Protocol& drive) { return Told(drive.WriteUncorrectable(9)); }},
    {"Write", Write},
    {"GetLifeRemaining", Get<std::uint32_t, &Protocol::GetLifeRemaining>},
    {"GetPowerMode", Get<std::uint32_t, &Protocol::GetPowerMode>},
    {"Idle", [](Protocol& drive) { return Told(drive.Idle()); }},
    {"QueryPredictFailure",
     [](Protocol& drive) {
       std::uint8_t healthy = 0x5A;
       const Status status = drive.QueryPredictFailure(healthy);
       return Told<std::uint8_t>(status, healthy, 0x5A);
     }},
}};

class DriveScene final : public Scene {
 public:
  DriveScene(const NamedRoad& road, const Operation& operation)
      : Scene(testing::Install(Drives())), open_(road.open), operation_(operation) {
    Open();
  }

  Answer Run() override {
    Answer answer = operation_.run(*road_.drive);
    // No self-test runs into the next round.
    machine->Clock().Advance(3'600'000);
    return answer;
  }

  // A drive object reads its log directory once and keeps the result, even a wrong one.
  void Forget() override {
    if (operation_.run == GetSelfTestFailingLba) Open();
  }

 private:
  void Open() {
    road_ = {};
    road_ = open_();
    GetProperties(*road_.drive);
  }

  Road (*open_)();
  Road road_;
  const Operation& operation_;
};

}  // namespace

std::vector<std::string> DriveRoads() {
  std::vector<std::string> names;
  for (const NamedRoad& road : kRoads) names.emplace_back(road.name);
  return names;
}

std::vector<Subject> DriveSubjects(std::size_t road) {
  std::vector<Subject> subjects;
  for (const Operation& operation : kOperations) {
    subjects.push_back(
        {operation.name, [road, &operation] { return std::make_unique<DriveScene>(kRoads.at(road), operation); }});
  }
  return subjects;
}

}  // namespace orvik::sweeps
