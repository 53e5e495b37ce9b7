#include <gtest/gtest.h>

#include <algorithm>

#include "simulation/machine/current_machine.h"
#include "utils/devices/win_device_interface_scanner.h"
#include "utils/dispatcher/thread_pool.h"

namespace {

using orvik::simulation::AdapterDescription;
using orvik::simulation::Machine;
using orvik::simulation::MachineDescription;
using orvik::simulation::PciRaidAdapter;

constexpr GUID kStoragePort = {0x2ACCFE60, 0xC130, 0x11D2, {0xB0, 0x82, 0x00, 0xA0, 0xC9, 0x1E, 0xFB, 0x8B}};
constexpr GUID kScsiAdapter = {0x4D36E97B, 0xE325, 0x11CE, {0xBF, 0xC1, 0x08, 0x00, 0x2B, 0xE1, 0x03, 0x18}};

std::shared_ptr<Machine> Install(std::vector<AdapterDescription> adapters) {
  auto machine = std::make_shared<Machine>(MachineDescription{.adapters = std::move(adapters)});
  orvik::simulation::InstallMachine(machine);
  return machine;
}

class OtherFilter final : public DeviceScanFilter {};

TEST(WinDeviceInterfaceScannerTest, MapsDevicesToTheirInterfaces) {
  auto two = PciRaidAdapter("2822", 1);
  two.interfaces.push_back({.path = two.interfaces[0].path + "\\1"});
  auto none = PciRaidAdapter("282A", 2);
  none.interfaces.clear();
  auto foreign = PciRaidAdapter("A77F", 3);
  foreign.setupClass = {};
  const auto machine = Install({two, none, foreign, PciRaidAdapter("9A0B", 4)});
  {
    WinDeviceInterfaceScanner scanner;
    DeviceInterfaceScanner::InterfacePaths paths;
    ASSERT_EQ(scanner.EnumerateInterfaces(WinDeviceScanFilter(kStoragePort, kScsiAdapter), paths), 0U);
    ASSERT_EQ(paths.size(), 2U);
    EXPECT_EQ(paths.begin()->second, (std::vector{two.interfaces[0].path, two.interfaces[1].path}));
    EXPECT_EQ(paths.rbegin()->second.size(), 1U);

    EXPECT_EQ(scanner.EnumerateInterfaces(OtherFilter(), paths), 1U);
    EXPECT_TRUE(paths.empty());
  }
  EXPECT_EQ(machine->Ledger().OutstandingTotal(), 0U);
}

TEST(WinDeviceInterfaceScannerTest, ReadsProperties) {
  auto adapter = PciRaidAdapter("2822", 1);
  auto wide = PciRaidAdapter("282A", 2);
  adapter.description = "Gr\u00FC\u00DFe";
  // Three bytes of UTF-8 for each unit of two bytes: more than the property's own size.
  wide.description = "\u20AC\u20AC\u20AC\u20AC\u20AC";
  Install({adapter, wide});
  WinDeviceInterfaceScanner scanner;
  DeviceInterfaceScanner::InterfacePaths paths;
  ASSERT_EQ(scanner.EnumerateInterfaces(WinDeviceScanFilter(kStoragePort, kScsiAdapter), paths), 0U);
  std::unique_ptr<char[]> text;
  std::size_t size = 0;
  ASSERT_EQ(scanner.GetDeviceProperty(0, SPDRP_DEVICEDESC, text, size), 0U);
  EXPECT_STREQ(text.get(), "Gr\u00FC\u00DFe");
  EXPECT_EQ(size, 2 * 6U);
  text.reset();
  EXPECT_EQ(scanner.GetDeviceProperty(1, SPDRP_DEVICEDESC, text, size), 1U);
  EXPECT_EQ(scanner.GetDeviceProperty(2, SPDRP_DEVICEDESC, text, size), 1U);
  EXPECT_EQ(text, nullptr);
}

TEST(ThreadPoolTest, PinsItsWorkersInTurn) {
  const auto machine = Install({});
  {
    ThreadPool pool;
    pool.Start(7);
  }
  auto masks = machine->Ledger().AffinityRequests();
  std::ranges::sort(masks);
  EXPECT_EQ(masks, (std::vector<std::uint64_t>{1, 2, 2, 3, 3, 4, 4}));
}

}  // namespace
