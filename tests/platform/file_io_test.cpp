#include <windows.h>
#include <gtest/gtest.h>

#include <string>

#include "simulation/machine/current_machine.h"

namespace orvik::platform::windows {
namespace {

using simulation::Machine;

class FileIo : public testing::Test {
 protected:
  FileIo() {
    auto adapter = simulation::PciRaidAdapter("2822", 0);
    adapter.csmi = simulation::CsmiControllerDescription{.raidSets = {{}, {}, {}}};
    machine_ = std::make_shared<Machine>(simulation::MachineDescription{.adapters = {adapter}});
    simulation::InstallMachine(machine_);
    path_.assign(adapter.interfaces[0].path.begin(), adapter.interfaces[0].path.end());
  }

  static HANDLE Open(const std::basic_string<WCHAR>& name, DWORD disposition = OPEN_EXISTING) {
    return CreateFileW(name.c_str(), GENERIC_READ | GENERIC_WRITE, 0, nullptr, disposition, 0, nullptr);
  }

  std::shared_ptr<Machine> machine_;
  std::basic_string<WCHAR> path_;
};

TEST_F(FileIo, RefusesWhatCannotBeOpenedOrClosed) {
  EXPECT_EQ(Open(path_ + TEXT("x")), INVALID_HANDLE_VALUE);
  EXPECT_EQ(GetLastError(), ERROR_FILE_NOT_FOUND);
  EXPECT_EQ(Open(path_, 2), INVALID_HANDLE_VALUE);
  EXPECT_EQ(GetLastError(), ERROR_INVALID_PARAMETER);
  machine_->Faults().FailCall(1, ERROR_ACCESS_DENIED);
  EXPECT_EQ(Open(path_), INVALID_HANDLE_VALUE);
  EXPECT_EQ(GetLastError(), ERROR_ACCESS_DENIED);
  EXPECT_EQ(machine_->Ledger().OutstandingTotal(), 0U);

  for (WCHAR& c : path_) c = c >= 'a' && c <= 'z' ? static_cast<WCHAR>(c - 32) : c;
  HANDLE file = Open(path_);
  HANDLE other = Open(path_);
  EXPECT_TRUE(CloseHandle(other));
  EXPECT_EQ(machine_->Ledger().Outstanding(simulation::Resource::FileHandle), 1U);
  EXPECT_TRUE(CloseHandle(file));
  EXPECT_FALSE(CloseHandle(file));
  EXPECT_EQ(GetLastError(), ERROR_INVALID_HANDLE);
  EXPECT_EQ(machine_->Ledger().OutstandingTotal(), 0U);
  EXPECT_EQ(machine_->Ledger().InvalidReleases(), 1U);
  EXPECT_EQ(Open(path_), file) << "values are reused, last freed first";
  EXPECT_EQ(Open(path_), other);
}

}  // namespace
}  // namespace orvik::platform::windows
