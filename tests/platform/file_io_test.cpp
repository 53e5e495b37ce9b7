#include <windows.h>
#include <winioctl.h>
#include <gtest/gtest.h>
#include <ntddscsi.h>

#include <string>
#include <thread>
#include <vector>

#include "simulation/machine/current_machine.h"

namespace orvik::platform::windows {
namespace {

using simulation::Machine;

// A RAID information packet, byte by byte.
std::vector<BYTE> RaidInfo() {
  std::vector<BYTE> packet = {28, 0, 0, 0, 'C', 'S', 'M', 'I', 'A', 'R', 'Y', 0, 0, 0, 0, 0, 10};
  packet.resize(128);
  packet[24] = 100;
  return packet;
}

class FileIo : public testing::Test {
 protected:
  FileIo() {
    auto adapter = simulation::PciRaidAdapter("2822", 0);
    adapter.csmi = simulation::CsmiControllerDescription{.raidSets = {{}, {}, {}}};
    machine = std::make_shared<Machine>(simulation::MachineDescription{.adapters = {adapter}});
    simulation::InstallMachine(machine);
    path.assign(adapter.interfaces[0].path.begin(), adapter.interfaces[0].path.end());
  }

  static HANDLE Open(const std::basic_string<WCHAR>& name, DWORD disposition = OPEN_EXISTING) {
    return CreateFileW(name.c_str(), GENERIC_READ | GENERIC_WRITE, 0, nullptr, disposition, 0, nullptr);
  }

  // How many RAID sets the controller behind `file` reports.
  static int RaidSets(HANDLE file) {
    auto packet = RaidInfo();
    DWORD returned = 0;
    EXPECT_TRUE(
        DeviceIoControl(file, IOCTL_SCSI_MINIPORT, packet.data(), 128, packet.data(), 128, &returned, nullptr));
    EXPECT_EQ(returned, 128U);
    return packet[28];
  }

  std::shared_ptr<Machine> machine;
  std::basic_string<WCHAR> path;
};

TEST_F(FileIo, RefusesWhatCannotBeOpenedOrClosed) {
  EXPECT_EQ(Open(path + TEXT("x")), INVALID_HANDLE_VALUE);
  EXPECT_EQ(GetLastError(), ERROR_FILE_NOT_FOUND);
  EXPECT_EQ(Open(path, 2), INVALID_HANDLE_VALUE);
  EXPECT_EQ(GetLastError(), ERROR_INVALID_PARAMETER);
  machine->Faults().FailCall(1, ERROR_ACCESS_DENIED);
  EXPECT_EQ(Open(path), INVALID_HANDLE_VALUE);
  EXPECT_EQ(GetLastError(), ERROR_ACCESS_DENIED);
  EXPECT_EQ(machine->Ledger().OutstandingTotal(), 0U);

  for (WCHAR& c : path) c = c >= 'a' && c <= 'z' ? static_cast<WCHAR>(c - 32) : c;
  HANDLE file = Open(path);
  EXPECT_EQ(machine->Ledger().Outstanding(simulation::Resource::FileHandle), 1U);
  EXPECT_TRUE(CloseHandle(file));
  EXPECT_FALSE(CloseHandle(file));
  EXPECT_EQ(GetLastError(), ERROR_INVALID_HANDLE);
  EXPECT_EQ(machine->Ledger().OutstandingTotal(), 0U);
  EXPECT_EQ(machine->Ledger().InvalidReleases(), 1U);
}

TEST_F(FileIo, TouchesNoMoreThanTheOutputBuffer) {
  HANDLE file = Open(path);
  const auto request = RaidInfo();
  auto input = request;
  std::vector<BYTE> output(30, 0xEE);
  DWORD returned = 0;
  EXPECT_TRUE(DeviceIoControl(file, IOCTL_SCSI_MINIPORT, input.data(), 128, output.data(), 29, &returned, nullptr));
  EXPECT_EQ(returned, 29U);
  EXPECT_EQ(output[28], 3);
  EXPECT_EQ(output[29], 0xEE);
  EXPECT_EQ(input, request);

  const auto expectRefused = [&](HANDLE handle, DWORD code, DWORD* count, DWORD error) {
    EXPECT_FALSE(DeviceIoControl(handle, code, input.data(), 128, input.data(), 128, count, nullptr));
    EXPECT_EQ(GetLastError(), error);
    EXPECT_EQ(input, request);
  };
  expectRefused(file, 0x0004D00C, &returned, ERROR_INVALID_FUNCTION);
  expectRefused(nullptr, IOCTL_SCSI_MINIPORT, &returned, ERROR_INVALID_HANDLE);
  expectRefused(file, IOCTL_SCSI_MINIPORT, nullptr, ERROR_INVALID_PARAMETER);
  machine->Faults().FailEvery("CC_CSMI_SAS_GET_RAID_INFO", ERROR_IO_DEVICE);
  expectRefused(file, IOCTL_SCSI_MINIPORT, &returned, ERROR_IO_DEVICE);
  CloseHandle(file);
}

TEST_F(FileIo, ServesSeveralThreadsAtOnce) {
  HANDLE held = Open(path);
  const auto work = [this] {
    for (int i = 0; i < 50; ++i) {
      HANDLE file = Open(path);
      EXPECT_EQ(RaidSets(file), 3);
      machine->Adapters()[0]->Csmi()->SetStatus(simulation::CsmiStatus::Good, simulation::CsmiOfflineReason::None);
      EXPECT_TRUE(CloseHandle(file));
    }
  };
  std::vector<std::thread> threads(4);
  for (std::thread& thread : threads) thread = std::thread(work);
  for (std::thread& thread : threads) thread.join();
  EXPECT_EQ(machine->Faults().CallsMade("*"), 401U);
  // A host may open another machine while a device of the old one is still held.
  simulation::InstallMachine(std::make_shared<Machine>());
  EXPECT_EQ(RaidSets(held), 3);
  EXPECT_TRUE(CloseHandle(held));
  EXPECT_EQ(machine->Ledger().OutstandingTotal(), 0U);
  EXPECT_EQ(machine->Ledger().InvalidReleases(), 0U);
}

}  // namespace
}  // namespace orvik::platform::windows
