#include <windows.h>
#include <gtest/gtest.h>
#include <setupapi.h>

#include <string>
#include <vector>

#include "simulation/machine/current_machine.h"

namespace orvik::platform::windows {
namespace {

constexpr GUID kScsiAdapters = {0x4D36E97B, 0xE325, 0x11CE, {0xBF, 0xC1, 0x08, 0x00, 0x2B, 0xE1, 0x03, 0x18}};
constexpr GUID kStoragePorts = {0x2ACCFE60, 0xC130, 0x11D2, {0xB0, 0x82, 0x00, 0xA0, 0xC9, 0x1E, 0xFB, 0x8B}};

using Wide = std::basic_string<WCHAR>;

// Devices 1: a RAID adapter with two storage ports and another interface; 2: one that is absent; 3: of another class,
// without interfaces or description.
class SetupApi : public testing::Test {
 protected:
  SetupApi() {
    auto first = simulation::PciRaidAdapter("2822", 0);
    const simulation::Guid other{0x11111111, 0x2222, 0x3333, {1, 2, 3, 4, 5, 6, 7, 8}};
    first.interfaces = {{.path = "first"}, {.path = "other", .interfaceClass = other}, {.path = "second"}};
    auto absent = simulation::PciRaidAdapter("282A", 1);
    absent.present = false;
    simulation::AdapterDescription plain{.instanceId = R"(ROOT\X\1)", .setupClass = other};
    machine =
        std::make_shared<simulation::Machine>(simulation::MachineDescription{.adapters = {first, absent, plain}});
    simulation::InstallMachine(machine);
    device.cbSize = sizeof(device);
    found.cbSize = sizeof(found);
  }

  ~SetupApi() override { EXPECT_EQ(machine->Ledger().OutstandingTotal(), 0U); }

  std::shared_ptr<simulation::Machine> machine;
  SP_DEVINFO_DATA device{};
  SP_DEVICE_INTERFACE_DATA found{};
};

TEST_F(SetupApi, SelectsDevices) {
  struct Row {
    const char* what;
    const GUID* guid;
    PCWSTR enumerator;
    DWORD flags;
    std::vector<DWORD> devices;
  };
  const Row rows[] = {
      {"setup class", &kScsiAdapters, nullptr, 0, {1, 2}},
      {"present of a setup class", &kScsiAdapters, nullptr, DIGCF_PRESENT, {1}},
      {"present of every class", nullptr, nullptr, DIGCF_PRESENT | DIGCF_ALLCLASSES, {1, 3}},
      {"interface class", &kStoragePorts, nullptr, DIGCF_DEVICEINTERFACE, {1, 2}},
      {"present of an interface class", &kStoragePorts, nullptr, DIGCF_PRESENT | DIGCF_DEVICEINTERFACE, {1}},
      {"enumerator", nullptr, TEXT("root"), DIGCF_ALLCLASSES, {3}},
  };
  for (const Row& row : rows) {
    HDEVINFO set = SetupDiGetClassDevsW(row.guid, row.enumerator, nullptr, row.flags);
    std::vector<DWORD> devices;
    for (DWORD i = 0; SetupDiEnumDeviceInfo(set, i, &device); ++i) devices.push_back(device.DevInst);
    EXPECT_EQ(GetLastError(), ERROR_NO_MORE_ITEMS);
    EXPECT_EQ(devices, row.devices) << row.what;
    EXPECT_TRUE(SetupDiDestroyDeviceInfoList(set));
    EXPECT_FALSE(SetupDiDestroyDeviceInfoList(set));
  }
  EXPECT_EQ(machine->Ledger().InvalidReleases(), std::size(rows));
}

TEST_F(SetupApi, ChecksTheSizesOfItsRecords) {
  const auto expectRefused = [](BOOL result) {
    EXPECT_FALSE(result);
    EXPECT_EQ(GetLastError(), ERROR_INVALID_USER_BUFFER);
    SetLastError(NO_ERROR);
  };
  HDEVINFO set = SetupDiGetClassDevsW(&kStoragePorts, nullptr, nullptr, DIGCF_DEVICEINTERFACE);
  ASSERT_TRUE(SetupDiEnumDeviceInfo(set, 0, &device));
  EXPECT_EQ(device.ClassGuid, kScsiAdapters);
  ASSERT_TRUE(SetupDiEnumDeviceInterfaces(set, &device, &kStoragePorts, 1, &found));
  EXPECT_EQ(found.Flags, SPINT_ACTIVE);
  DWORD required = 0;
  SetupDiGetDeviceInterfaceDetailW(set, &found, nullptr, 0, &required, nullptr);
  ASSERT_EQ(required, 4 + 2 * sizeof("second"));
  std::vector<DWORD> room(8, sizeof(SP_DEVICE_INTERFACE_DETAIL_DATA_W));
  auto* detail = reinterpret_cast<SP_DEVICE_INTERFACE_DETAIL_DATA_W*>(room.data());
  EXPECT_FALSE(SetupDiGetDeviceInterfaceDetailW(set, &found, detail, required - 1, nullptr, nullptr));
  EXPECT_EQ(GetLastError(), ERROR_INSUFFICIENT_BUFFER);
  EXPECT_TRUE(SetupDiGetDeviceInterfaceDetailW(set, &found, detail, required, nullptr, nullptr));
  EXPECT_EQ(detail->DevicePath, Wide(TEXT("second")));
  EXPECT_FALSE(SetupDiEnumDeviceInterfaces(set, &device, &kStoragePorts, 2, &found));
  EXPECT_EQ(GetLastError(), ERROR_NO_MORE_ITEMS);

  device.cbSize = 28;
  found.cbSize = 28;
  detail->cbSize = 6;
  expectRefused(SetupDiEnumDeviceInfo(set, 0, &device));
  expectRefused(SetupDiEnumDeviceInterfaces(set, nullptr, &kStoragePorts, 0, &found));
  expectRefused(SetupDiGetDeviceInterfaceDetailW(set, &found, nullptr, 0, nullptr, nullptr));
  expectRefused(SetupDiGetDeviceInstanceIdW(set, &device, nullptr, 0, nullptr));
  found.cbSize = sizeof(found);
  expectRefused(SetupDiGetDeviceInterfaceDetailW(set, &found, detail, 400, nullptr, nullptr));
  SetupDiDestroyDeviceInfoList(set);
}

}  // namespace
}  // namespace orvik::platform::windows
