#include "module/raid/entry/device_scanner.h"

#include <gtest/gtest.h>

#include "module/raid/family/driver_version.h"
#include "tests/module/raid/storelib/storelib_machines.h"

namespace orvik::module::raid {
namespace {

using namespace orvik::simulation;
using namespace orvik::testing;
using core::KeyValueList;

std::shared_ptr<ScanRecorder> Scan(DeviceScanner& scanner) {
  auto recorder = std::make_shared<ScanRecorder>();
  scanner.Scan(recorder);
  return recorder;
}

bool Present() {
  auto recorder = std::make_shared<ScanRecorder>();
  DeviceScanner().CheckPresence(recorder);
  EXPECT_EQ(recorder->present.size(), 1U);
  return recorder->present.at(0);
}

TEST(DeviceScannerTest, FindsNothingOnAnEmptyMachine) {
  Install({});
  DeviceScanner scanner;
  const auto recorder = Scan(scanner);
  EXPECT_TRUE(recorder->found.empty());
  EXPECT_EQ(recorder->finished, 1);
  EXPECT_TRUE(scanner.GetDevices().empty());
  EXPECT_FALSE(Present());
}

TEST(DeviceScannerTest, DescribesAController) {
  auto adapter = Mirror();
  adapter.description = "Chipset SATA RAID Controller";
  adapter.driver.version = "17.9.1.1009";
  Install({.adapters = {adapter}});
  DeviceScanner scanner;
  const auto found = Scan(scanner)->found;
  ASSERT_EQ(found.size(), 1U);
  const auto& device = found[0];
  EXPECT_EQ(device.id, "2822");
  EXPECT_EQ(device.name, "Chipset SATA RAID Controller");
  EXPECT_EQ(device.udi, "ChipsetSATARAIDController-2822");
  EXPECT_TRUE(device.testable);
  EXPECT_EQ(device.properties, (KeyValueList{{"UDI", "ChipsetSATARAIDController-2822"},
                                             {"MODEL", "Chipset SATA RAID Controller"},
                                             {"NUM_LOGICAL_DEVICES", "1"},
                                             {"NUM_PHYSICAL_DEVICES", "2"},
                                             {"DRIVER_VERSION", "17.9.1.1009"}}));
  ASSERT_EQ(device.resources.size(), 3U);
  EXPECT_EQ(device.resources[0], (KeyValueList{{"RESOURCE_TYPE", "LOGICAL_DISK"},
                                               {"INDEX", "0"},
                                               {"RAID_LEVEL", "RAID 1"},
                                               {"NUM_PHYSICAL_DEVICES", "2"},
                                               {"SIZE", "1.00 TB"}}));
  std::string model = "WDC WD10ORVK-08M2NA0";
  model.resize(40, ' ');
  EXPECT_EQ(device.resources[2], (KeyValueList{{"RESOURCE_TYPE", "PHYSICAL_DISK"},
                                               {"INDEX", "2"},
                                               {"MANUFACTURER", "Wdc"},
                                               {"MODEL", model},
                                               {"SIZE", "1.00 TB"}}));
}

TEST(DeviceScannerTest, KeepsADeviceWhoseLogicalDrivesFail) {
  const auto machine = Install({.adapters = {Mirror()}});
  machine->Faults().Add({.operation = "CC_CSMI_SAS_GET_RAID_CONFIG", .effects = {.returnCode = 1}});
  DeviceScanner scanner;
  const auto found = Scan(scanner)->found;
  ASSERT_EQ(found.size(), 1U);
  ASSERT_EQ(found[0].resources.size(), 2U);
  EXPECT_EQ(found[0].resources[0].at(1), (std::pair<std::string, std::string>{"INDEX", "0"}));
  EXPECT_EQ(found[0].properties.at(2).second, "1");
}

TEST(DeviceScannerTest, QualifiesAdapters) {
  struct Case {
    const char* what;
    void (*change)(AdapterDescription&);
    bool qualifies;
  };
  for (const Case& row : {
           Case{"unchanged", [](AdapterDescription&) {}, true},
           Case{"lower-case id",
                [](AdapterDescription& a) { a.interfaces[0].path = R"(\\?\pci#ven_8086&dev_282a#1#{})"; }, true},
           Case{"table entry in lower case",
                [](AdapterDescription& a) { a.interfaces[0].path = R"(\\?\pci#VEN_8086&DEV_936A#1#{})"; }, true},
           Case{"path of just enough characters",
                [](AdapterDescription& a) { a.interfaces[0].path = R"(\\?\pci#ven_8086&dev_2822)"; }, true},
           Case{"other vendor",
                [](AdapterDescription& a) { a.interfaces[0].path = R"(\\?\pci#ven_1000&dev_2822#1#{})"; }, false},
           Case{"other device",
                [](AdapterDescription& a) { a.interfaces[0].path = R"(\\?\pci#ven_8086&dev_2823#1#{})"; }, false},
           Case{"path too short for the ids",
                [](AdapterDescription& a) { a.interfaces[0].path = R"(\\?\pci#ven_8086&dev_282)"; }, false},
           Case{"no description", [](AdapterDescription& a) { a.description.reset(); }, false},
           // The contract's buffer has two bytes a character, too few for this text in UTF-8.
           Case{"Chinese description",
                [](AdapterDescription& a) { a.description = "\u78C1\u76D8\u63A7\u5236\u5668"; }, false},
           Case{"not present", [](AdapterDescription& a) { a.present = false; }, false},
           Case{"no interface", [](AdapterDescription& a) { a.interfaces.clear(); }, false},
           Case{"no CSMI", [](AdapterDescription& a) { a.csmi.reset(); }, false},
           Case{"SAS RAID", [](AdapterDescription& a) { a.csmi->flags = kCsmiSasRaid; }, true},
           Case{"no RAID", [](AdapterDescription& a) { a.csmi->flags = kCsmiSasHba | kCsmiSataHba; }, false},
       }) {
    auto adapter = Mirror();
    row.change(adapter);
    const auto machine = Install({.adapters = {adapter}});
    {
      DeviceScanner scanner;
      EXPECT_EQ(Scan(scanner)->found.size(), row.qualifies ? 1U : 0U) << row.what;
    }
    EXPECT_EQ(Present(), row.qualifies) << row.what;
    EXPECT_EQ(machine->Ledger().OutstandingTotal(), 0U) << row.what;
    EXPECT_EQ(machine->Ledger().InvalidReleases(), 0U) << row.what;
  }
}

TEST(DeviceScannerTest, LimitsTheDescription) {
  auto adapter = Mirror();
  adapter.description = std::string(300, 'C');
  Install({.adapters = {adapter}});
  DeviceScanner scanner;
  const auto found = Scan(scanner)->found;
  ASSERT_EQ(found.size(), 1U);
  EXPECT_EQ(found[0].name, std::string(256, 'C'));
}

TEST(DeviceScannerTest, FindsByExactIdInScanOrder) {
  auto first = Controller(1, {}, "282A", 14);
  auto twin = Controller(2, {}, "282A", 15);
  Install({.adapters = {first, twin}});
  DeviceScanner scanner;
  EXPECT_TRUE(scanner.FindDevice("282a").expired());
  Scan(scanner);
  const auto devices = scanner.GetDevices();
  ASSERT_EQ(devices.size(), 2U);
  EXPECT_EQ(scanner.FindDevice("282a").lock(), devices[0].lock());
  EXPECT_TRUE(scanner.FindDevice("282A").expired());
  EXPECT_TRUE(scanner.FindDevice("282").expired());

  Install({.adapters = {Mirror()}});
  Scan(scanner);
  EXPECT_TRUE(devices[0].expired());
  EXPECT_TRUE(scanner.FindDevice("282a").expired());
  EXPECT_FALSE(scanner.FindDevice("2822").expired());
}

TEST(DeviceScannerTest, ListsCsmiFirstAndChecksStorelibOnlyWithoutIt) {
  const auto machine = Install({.adapters = {Mirror()}, .storelib = {.controllers = {LsiController()}}});
  const auto recorder = std::make_shared<ScanRecorder>();
  DeviceScanner scanner;
  scanner.CheckPresence(recorder);
  EXPECT_EQ(recorder->present, std::vector{true});
  EXPECT_EQ(machine->Faults().CallsMade("STORELIB_LIST_CONTROLLERS"), 0U);
  scanner.Scan(recorder);
  ASSERT_EQ(recorder->found.size(), 2U);
  EXPECT_EQ(recorder->found[0].id, "2822");
  EXPECT_EQ(recorder->found[1].id, "3");

  InstallLsi();
  DeviceScanner other;
  other.CheckPresence(recorder);
  EXPECT_EQ(recorder->present, (std::vector{true, true}));
}

TEST(DriverVersionTest, TakesTheFirstDriverOfAnotherProvider) {
  struct Driver {
    std::optional<std::string> key;
    std::optional<std::string> provider;
    std::optional<std::string> version;
  };
  struct Case {
    std::vector<Driver> drivers;
    std::uint32_t code;
    std::string version;
  };
  for (const Case& row : std::vector<Case>{
           {{}, 128, ""},
           {{{"a\\1", "Microsoft", "1.0"}}, 128, ""},
           {{{"a\\1", "Microsoft", "1.0"}, {"a\\2", "Orvik Storage", "2.0"}, {"a\\3", "Other", "3.0"}}, 0, "2.0"},
           {{{"a\\1", "microsoft", "1.0"}}, 0, "1.0"},
           {{{"a\\1", "Microsoft Corporation", "1.0"}}, 0, "1.0"},
           {{{std::nullopt, std::nullopt, std::nullopt}, {"a\\2", "Orvik Storage", "2.0"}}, 0, "2.0"},
           {{{"a\\1", std::nullopt, "1.0"}, {"a\\2", "Orvik Storage", "2.0"}}, 0, "2.0"},
           {{{"a\\1", "Orvik Storage", std::nullopt}, {"a\\2", "Orvik Storage", "\u00FC2.0"}}, 0, "\u00FC2.0"},
       }) {
    MachineDescription description;
    for (const auto& [key, provider, version] : row.drivers) {
      auto adapter = PciRaidAdapter("2822", static_cast<unsigned>(description.adapters.size()));
      adapter.driver = {.key = key, .provider = provider, .version = version};
      adapter.present = description.adapters.empty();
      description.adapters.push_back(adapter);
    }
    const auto machine = Install(description);
    std::string version;
    EXPECT_EQ(ReadDriverVersion(version).Code(), row.code);
    EXPECT_EQ(version, row.version);
    EXPECT_EQ(machine->Ledger().OutstandingTotal(), 0U);
  }
}

}  // namespace
}  // namespace orvik::module::raid
