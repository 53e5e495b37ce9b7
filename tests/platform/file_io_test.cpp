#include <windows.h>
#include <gtest/gtest.h>
#include <ntddscsi.h>

#include <array>
#include <string>
#include <thread>
#include <vector>

#include "simulation/machine/current_machine.h"

namespace orvik::platform::windows {
namespace {

using simulation::Machine;

// A RAID information packet, byte by byte.
std::vector<BYTE> RaidInfo() {
  std::vector<BYTE> packet(128);
  packet[0] = 28;
  constexpr std::array<BYTE, 7> kSignature = {'C', 'S', 'M', 'I', 'A', 'R', 'Y'};
  std::ranges::copy(kSignature, packet.begin() + 4);
  packet[16] = 10;
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
    const std::string& narrow = machine->Adapters()[0]->Description().interfaces[0].path;
    path.assign(narrow.begin(), narrow.end());
  }

  HANDLE Open(const std::basic_string<WCHAR>& name, DWORD disposition = OPEN_EXISTING) {
    return CreateFileW(name.c_str(), GENERIC_READ | GENERIC_WRITE, FILE_SHARE_READ | FILE_SHARE_WRITE, nullptr,
                       disposition, FILE_FLAG_OVERLAPPED, nullptr);
  }

  std::shared_ptr<Machine> machine;
  std::basic_string<WCHAR> path;
};

TEST_F(FileIo, OpensAnInterfaceByItsPathInAnyCase) {
  for (WCHAR& c : path) c = c >= 'a' && c <= 'z' ? static_cast<WCHAR>(c - 32) : c;
  HANDLE file = Open(path);
  ASSERT_NE(file, INVALID_HANDLE_VALUE);
  EXPECT_EQ(machine->Ledger().Outstanding(simulation::Resource::FileHandle), 1U);
  EXPECT_TRUE(CloseHandle(file));
  EXPECT_EQ(machine->Ledger().OutstandingTotal(), 0U);
  EXPECT_FALSE(CloseHandle(file));
  EXPECT_EQ(GetLastError(), ERROR_INVALID_HANDLE);
  EXPECT_EQ(machine->Ledger().InvalidReleases(), 1U);
}

TEST_F(FileIo, RefusesWhatCannotBeOpened) {
  EXPECT_EQ(Open(path + TEXT("x")), INVALID_HANDLE_VALUE);
  EXPECT_EQ(GetLastError(), ERROR_FILE_NOT_FOUND);
  EXPECT_EQ(Open(path, 2), INVALID_HANDLE_VALUE);
  EXPECT_EQ(GetLastError(), ERROR_INVALID_PARAMETER);
  machine->Faults().FailEvery("CreateFileW", ERROR_ACCESS_DENIED);
  EXPECT_EQ(Open(path), INVALID_HANDLE_VALUE);
  EXPECT_EQ(GetLastError(), ERROR_ACCESS_DENIED);
  EXPECT_EQ(machine->Ledger().OutstandingTotal(), 0U);
}

TEST_F(FileIo, ReturnsOnlyWhatFitsTheOutputBuffer) {
  HANDLE file = Open(path);
  auto packet = RaidInfo();
  DWORD returned = 0;
  ASSERT_TRUE(DeviceIoControl(file, IOCTL_SCSI_MINIPORT, packet.data(), 128, packet.data(), 128, &returned, nullptr));
  EXPECT_EQ(returned, 128U);
  EXPECT_EQ(packet[28], 3);

  const auto request = RaidInfo();
  auto input = request;
  std::vector<BYTE> output(29, 0xEE);
  ASSERT_TRUE(DeviceIoControl(file, IOCTL_SCSI_MINIPORT, input.data(), 128, output.data(), 29, &returned, nullptr));
  EXPECT_EQ(returned, 29U);
  EXPECT_EQ(output[28], 3);
  EXPECT_EQ(input, request);
  CloseHandle(file);
}

TEST_F(FileIo, LeavesTheOutputAloneOnFailure) {
  HANDLE file = Open(path);
  const auto request = RaidInfo();
  struct Row {
    const char* what;
    HANDLE handle;
    DWORD code;
    bool withCount;
    DWORD error;
  };
  const Row rows[] = {
      {"unknown control code", file, 0x0004D00C, true, ERROR_INVALID_FUNCTION},
      {"no handle", nullptr, IOCTL_SCSI_MINIPORT, true, ERROR_INVALID_HANDLE},
      {"no room for the count", file, IOCTL_SCSI_MINIPORT, false, ERROR_INVALID_PARAMETER},
      {"injected", file, IOCTL_SCSI_MINIPORT, true, ERROR_IO_DEVICE},
  };
  machine->Faults().FailEvery("CC_CSMI_SAS_GET_RAID_INFO", ERROR_IO_DEVICE);
  for (const Row& row : rows) {
    SCOPED_TRACE(row.what);
    auto packet = request;
    DWORD returned = 99;
    SetLastError(NO_ERROR);
    EXPECT_FALSE(DeviceIoControl(row.handle, row.code, packet.data(), 128, packet.data(), 128,
                                 row.withCount ? &returned : nullptr, nullptr));
    EXPECT_EQ(GetLastError(), row.error);
    EXPECT_EQ(packet, request);
  }
  CloseHandle(file);
}

// A host may open another machine while a device of the old one is still held.
TEST_F(FileIo, KeepsItsMachineWhenAnotherIsInstalled) {
  HANDLE file = Open(path);
  simulation::InstallMachine(std::make_shared<Machine>());
  auto packet = RaidInfo();
  DWORD returned = 0;
  EXPECT_TRUE(DeviceIoControl(file, IOCTL_SCSI_MINIPORT, packet.data(), 128, packet.data(), 128, &returned, nullptr));
  EXPECT_EQ(packet[28], 3);
  EXPECT_TRUE(CloseHandle(file));
  EXPECT_EQ(machine->Ledger().OutstandingTotal(), 0U);
}

TEST_F(FileIo, ServesSeveralThreadsAtOnce) {
  constexpr int kThreads = 4;
  constexpr int kRounds = 50;
  const auto work = [this] {
    for (int i = 0; i < kRounds; ++i) {
      HANDLE file = Open(path);
      auto packet = RaidInfo();
      DWORD returned = 0;
      DeviceIoControl(file, IOCTL_SCSI_MINIPORT, packet.data(), 128, packet.data(), 128, &returned, nullptr);
      EXPECT_EQ(packet[28], 3);
      machine->Adapters()[0]->Csmi()->SetStatus(simulation::CsmiStatus::Good, simulation::CsmiOfflineReason::None);
      EXPECT_TRUE(CloseHandle(file));
    }
  };
  std::vector<std::thread> threads;
  threads.reserve(kThreads);
  for (int i = 0; i < kThreads; ++i) threads.emplace_back(work);
  for (std::thread& thread : threads) thread.join();
  EXPECT_EQ(machine->Faults().CallsMade("*"), std::uint64_t{2} * kThreads * kRounds);
  EXPECT_EQ(machine->Ledger().OutstandingTotal(), 0U);
  EXPECT_EQ(machine->Ledger().InvalidReleases(), 0U);
}

}  // namespace
}  // namespace orvik::platform::windows
