#include <windows.h>
#include <gtest/gtest.h>

#include <array>
#include <string>

#include "simulation/machine/current_machine.h"

namespace orvik::platform::windows {
namespace {

class RegistryValues : public testing::Test {
 protected:
  RegistryValues() {
    machine = std::make_shared<simulation::Machine>(
        simulation::MachineDescription{.registry = {{R"(SYSTEM\Key)", "Name", "caf\xC3\xA9"}}});
    simulation::InstallMachine(machine);
  }

  std::shared_ptr<simulation::Machine> machine;
  std::array<WCHAR, 8> text{};
  DWORD size = sizeof(text);
  DWORD type = 0;
};

TEST_F(RegistryValues, AreReadAsText) {
  EXPECT_EQ(RegGetValueW(HKEY_LOCAL_MACHINE, TEXT("system\\KEY"), TEXT("NAME"), RRF_RT_REG_SZ, &type, nullptr, &size),
            0);
  EXPECT_EQ(size, 10U);
  EXPECT_EQ(
      RegGetValueW(HKEY_LOCAL_MACHINE, TEXT("SYSTEM\\Key"), TEXT("Name"), RRF_RT_REG_SZ, &type, text.data(), &size),
      0);
  EXPECT_EQ(type, REG_SZ);
  EXPECT_EQ(std::basic_string<WCHAR>(text.data()), TEXT("caf\u00E9"));
}

TEST_F(RegistryValues, AreRefusedWithTheDocumentedCodes) {
  struct Row {
    const char* what;
    HKEY key;
    LPCWSTR name;
    DWORD flags, size;
    DWORD status;
  };
  const Row rows[] = {
      {"no such value", HKEY_LOCAL_MACHINE, TEXT("Nam"), RRF_RT_REG_SZ, 16, ERROR_FILE_NOT_FOUND},
      {"default value", HKEY_LOCAL_MACHINE, nullptr, RRF_RT_REG_SZ, 16, ERROR_FILE_NOT_FOUND},
      {"one byte short", HKEY_LOCAL_MACHINE, TEXT("Name"), RRF_RT_REG_SZ, 9, ERROR_MORE_DATA},
      {"another type wanted", HKEY_LOCAL_MACHINE, TEXT("Name"), 0x10, 16, ERROR_UNSUPPORTED_TYPE},
      {"no key", nullptr, TEXT("Name"), RRF_RT_REG_SZ, 16, ERROR_INVALID_HANDLE},
  };
  for (const Row& row : rows) {
    SCOPED_TRACE(row.what);
    size = row.size;
    EXPECT_EQ(RegGetValueW(row.key, TEXT("SYSTEM\\Key"), row.name, row.flags, nullptr, text.data(), &size),
              static_cast<LSTATUS>(row.status));
    EXPECT_EQ(text[0], 0);
    EXPECT_EQ(size, row.status == ERROR_MORE_DATA ? 10 : row.size);
  }
  machine->Faults().FailCall(1, ERROR_ACCESS_DENIED);
  EXPECT_EQ(
      RegGetValueW(HKEY_LOCAL_MACHINE, TEXT("SYSTEM\\Key"), TEXT("Name"), RRF_RT_REG_SZ, nullptr, nullptr, &size),
      static_cast<LSTATUS>(ERROR_ACCESS_DENIED));
}

}  // namespace
}  // namespace orvik::platform::windows
