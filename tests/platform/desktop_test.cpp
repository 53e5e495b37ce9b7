#include <windows.h>

#include <gtest/gtest.h>
#include <shlobj.h>

#include <array>

#include "simulation/machine/current_machine.h"

namespace orvik::platform::windows {
namespace {

class DesktopFunctions : public testing::Test {
 protected:
  DesktopFunctions() { simulation::InstallMachine(machine); }

  std::shared_ptr<simulation::Machine> machine = std::make_shared<simulation::Machine>(simulation::MachineDescription{
      .desktop = {.highContrast = true, .colors = {{30, 0x123456}}, .programData = "/data", .userName = "operator"}});
};

TEST_F(DesktopFunctions, LookIsTheMachines) {
  for (const UINT size : {16U, 15U}) {
    HIGHCONTRASTW contrast{};
    contrast.cbSize = size;
    EXPECT_EQ(SystemParametersInfoW(SPI_GETHIGHCONTRAST, size, &contrast, 0), size == 16 ? TRUE : FALSE);
    EXPECT_EQ(contrast.dwFlags, size == 16 ? HCF_AVAILABLE | HCF_HIGHCONTRASTON : 0);
  }
  EXPECT_EQ(GetSysColor(30), 0x563412U);
  EXPECT_EQ(GetSysColor(13), 0xFFEB1AU);
  EXPECT_EQ(GetSysColor(31), 0U);
  EXPECT_EQ(GetSysColor(-1), 0U);
}

TEST_F(DesktopFunctions, UserNameNeedsRoomForItsZero) {
  for (const DWORD room : {9U, 8U}) {
    std::array<WCHAR, 9> name{};
    DWORD size = room;
    EXPECT_EQ(GetUserNameW(name.data(), &size), room == 9 ? TRUE : FALSE);
    EXPECT_EQ(std::basic_string<WCHAR>(name.data()), room == 9 ? TEXT("operator") : TEXT(""));
    EXPECT_EQ(size, 9U);
  }
}

TEST_F(DesktopFunctions, WhatIsHandedOutIsCounted) {
  PWSTR path = nullptr;
  EXPECT_EQ(SHGetKnownFolderPath(FOLDERID_ProgramData, 0, nullptr, &path), S_OK);
  EXPECT_EQ(std::basic_string<WCHAR>(path), TEXT("/data"));
  EXPECT_EQ(machine->Ledger().Outstanding(simulation::Resource::Buffer), 1U);
  CoTaskMemFree(path);
  EXPECT_EQ(SHGetKnownFolderPath(GUID{}, 0, nullptr, &path), E_INVALIDARG);
  EXPECT_EQ(path, nullptr);
  CoTaskMemFree(nullptr);
  EXPECT_EQ(OpenMutexW(READ_CONTROL, FALSE, TEXT("NarratorRunning")), nullptr);
  EXPECT_EQ(GetLastError(), static_cast<DWORD>(ERROR_FILE_NOT_FOUND));
  EXPECT_EQ(machine->Ledger().OutstandingTotal() + machine->Ledger().InvalidReleases(), 0U);
}

}  // namespace
}  // namespace orvik::platform::windows
