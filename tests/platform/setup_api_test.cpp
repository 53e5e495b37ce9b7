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
constexpr GUID kOther = {0x11111111, 0x2222, 0x3333, {1, 2, 3, 4, 5, 6, 7, 8}};

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
  }

  HDEVINFO StoragePorts() {
    return SetupDiGetClassDevsW(&kStoragePorts, nullptr, nullptr, DIGCF_PRESENT | DIGCF_DEVICEINTERFACE);
  }

  static std::vector<DWORD> Devices(HDEVINFO set) {
    std::vector<DWORD> devices;
    SP_DEVINFO_DATA device{};
    device.cbSize = sizeof(device);
    for (DWORD i = 0; SetupDiEnumDeviceInfo(set, i, &device); ++i) devices.push_back(device.DevInst);
    EXPECT_EQ(GetLastError(), ERROR_NO_MORE_ITEMS);
    return devices;
  }

  static SP_DEVINFO_DATA FirstDevice(HDEVINFO set) {
    SP_DEVINFO_DATA device{};
    device.cbSize = sizeof(device);
    EXPECT_TRUE(SetupDiEnumDeviceInfo(set, 0, &device));
    return device;
  }

  std::shared_ptr<simulation::Machine> machine;
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
      {"an interface class taken for a setup class", &kStoragePorts, nullptr, 0, {}},
      {"enumerator", nullptr, TEXT("root"), DIGCF_ALLCLASSES, {3}},
  };
  for (const Row& row : rows) {
    SCOPED_TRACE(row.what);
    HDEVINFO set = SetupDiGetClassDevsW(row.guid, row.enumerator, nullptr, row.flags);
    ASSERT_NE(set, INVALID_HANDLE_VALUE);
    EXPECT_EQ(Devices(set), row.devices);
    EXPECT_TRUE(SetupDiDestroyDeviceInfoList(set));
  }
  EXPECT_EQ(machine->Ledger().OutstandingTotal(), 0U);
}

TEST_F(SetupApi, RefusesQueriesThatMeanNothing) {
  EXPECT_EQ(SetupDiGetClassDevsW(nullptr, nullptr, nullptr, DIGCF_PRESENT), INVALID_HANDLE_VALUE);
  EXPECT_EQ(GetLastError(), ERROR_INVALID_PARAMETER);
  EXPECT_EQ(SetupDiGetClassDevsW(&kOther, nullptr, nullptr, 0x100), INVALID_HANDLE_VALUE);
  EXPECT_EQ(GetLastError(), ERROR_INVALID_FLAGS);
  EXPECT_FALSE(SetupDiDestroyDeviceInfoList(INVALID_HANDLE_VALUE));
  EXPECT_EQ(GetLastError(), ERROR_INVALID_HANDLE);
  EXPECT_EQ(machine->Ledger().InvalidReleases(), 1U);
}

TEST_F(SetupApi, FollowsADeviceToThePathsOfItsInterfaces) {
  HDEVINFO set = StoragePorts();
  SP_DEVINFO_DATA device = FirstDevice(set);
  EXPECT_EQ(device.ClassGuid, kScsiAdapters);
  std::vector<Wide> paths;
  SP_DEVICE_INTERFACE_DATA found{};
  found.cbSize = sizeof(found);
  for (DWORD i = 0; SetupDiEnumDeviceInterfaces(set, &device, &kStoragePorts, i, &found); ++i) {
    EXPECT_EQ(found.Flags, SPINT_ACTIVE);
    DWORD required = 0;
    EXPECT_FALSE(SetupDiGetDeviceInterfaceDetailW(set, &found, nullptr, 0, &required, nullptr));
    EXPECT_EQ(GetLastError(), ERROR_INSUFFICIENT_BUFFER);
    std::vector<DWORD> room(required / 4 + 2);
    auto* detail = reinterpret_cast<SP_DEVICE_INTERFACE_DETAIL_DATA_W*>(room.data());
    detail->cbSize = 8;
    SP_DEVINFO_DATA owner{};
    owner.cbSize = sizeof(owner);
    EXPECT_FALSE(SetupDiGetDeviceInterfaceDetailW(set, &found, detail, required - 1, nullptr, nullptr));
    ASSERT_TRUE(SetupDiGetDeviceInterfaceDetailW(set, &found, detail, required, nullptr, &owner));
    EXPECT_EQ(owner.DevInst, device.DevInst);
    paths.emplace_back(detail->DevicePath);
    EXPECT_EQ(required, 4 + 2 * (paths.back().size() + 1));
  }
  EXPECT_EQ(GetLastError(), ERROR_NO_MORE_ITEMS);
  EXPECT_EQ(paths, (std::vector<Wide>{TEXT("first"), TEXT("second")}));
  SetupDiDestroyDeviceInfoList(set);
}

TEST_F(SetupApi, ReadsTheDescription) {
  HDEVINFO set = SetupDiGetClassDevsW(nullptr, nullptr, nullptr, DIGCF_PRESENT | DIGCF_ALLCLASSES);
  SP_DEVINFO_DATA device = FirstDevice(set);
  DWORD required = 0;
  DWORD type = 0;
  EXPECT_FALSE(SetupDiGetDeviceRegistryPropertyW(set, &device, SPDRP_DEVICEDESC, &type, nullptr, 0, &required));
  EXPECT_EQ(GetLastError(), ERROR_INSUFFICIENT_BUFFER);
  EXPECT_EQ(type, 1U);
  EXPECT_EQ(required, 2 * sizeof("Chipset SATA RAID Controller"));
  std::vector<WCHAR> text(required / 2);
  auto* bytes = reinterpret_cast<BYTE*>(text.data());
  EXPECT_TRUE(SetupDiGetDeviceRegistryPropertyW(set, &device, SPDRP_DEVICEDESC, nullptr, bytes, required, nullptr));
  EXPECT_EQ(Wide(text.data()), TEXT("Chipset SATA RAID Controller"));
  ASSERT_TRUE(SetupDiEnumDeviceInfo(set, 1, &device));
  EXPECT_FALSE(SetupDiGetDeviceRegistryPropertyW(set, &device, SPDRP_DEVICEDESC, nullptr, nullptr, 0, &required));
  EXPECT_EQ(GetLastError(), ERROR_INVALID_DATA);
  SetupDiDestroyDeviceInfoList(set);
}

TEST_F(SetupApi, ReadsTheInstanceId) {
  HDEVINFO set = SetupDiGetClassDevsW(nullptr, TEXT("ROOT"), nullptr, DIGCF_ALLCLASSES);
  SP_DEVINFO_DATA device = FirstDevice(set);
  DWORD required = 0;
  EXPECT_FALSE(SetupDiGetDeviceInstanceIdW(set, &device, nullptr, 0, &required));
  EXPECT_EQ(GetLastError(), ERROR_INSUFFICIENT_BUFFER);
  EXPECT_EQ(required, 9U);
  WCHAR text[9] = {};
  EXPECT_FALSE(SetupDiGetDeviceInstanceIdW(set, &device, text, 8, nullptr));
  EXPECT_TRUE(SetupDiGetDeviceInstanceIdW(set, &device, text, 9, nullptr));
  EXPECT_EQ(Wide(text), TEXT(R"(ROOT\X\1)"));
  SetupDiDestroyDeviceInfoList(set);
}

TEST_F(SetupApi, ChecksTheSizesOfItsRecords) {
  HDEVINFO set = StoragePorts();
  SP_DEVINFO_DATA device = FirstDevice(set);
  SP_DEVICE_INTERFACE_DATA found{};
  found.cbSize = sizeof(found);
  ASSERT_TRUE(SetupDiEnumDeviceInterfaces(set, &device, &kStoragePorts, 0, &found));
  SP_DEVICE_INTERFACE_DETAIL_DATA_W detail{};
  detail.cbSize = 6;
  SP_DEVINFO_DATA badDevice{};
  SP_DEVICE_INTERFACE_DATA badFound{};
  const auto expectRefused = [](BOOL result) {
    EXPECT_FALSE(result);
    EXPECT_EQ(GetLastError(), ERROR_INVALID_USER_BUFFER);
    SetLastError(NO_ERROR);
  };
  expectRefused(SetupDiEnumDeviceInfo(set, 0, &badDevice));
  expectRefused(SetupDiEnumDeviceInterfaces(set, &badDevice, &kStoragePorts, 0, &found));
  expectRefused(SetupDiEnumDeviceInterfaces(set, &device, &kStoragePorts, 0, &badFound));
  expectRefused(SetupDiGetDeviceInterfaceDetailW(set, &badFound, nullptr, 0, nullptr, nullptr));
  expectRefused(SetupDiGetDeviceInterfaceDetailW(set, &found, &detail, 400, nullptr, nullptr));
  expectRefused(SetupDiGetDeviceInterfaceDetailW(set, &found, nullptr, 400, nullptr, nullptr));
  expectRefused(SetupDiGetDeviceInstanceIdW(set, &badDevice, nullptr, 0, nullptr));
  SetupDiDestroyDeviceInfoList(set);
}

}  // namespace
}  // namespace orvik::platform::windows
