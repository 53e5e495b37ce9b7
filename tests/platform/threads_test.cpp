#include <windows.h>
#include <gtest/gtest.h>
#include <sched.h>

#include <thread>

#include "simulation/machine/current_machine.h"

namespace orvik::platform::windows {
namespace {

class Threads : public testing::Test {
 protected:
  Threads() { simulation::InstallMachine(machine); }

  // The lowest processor that this process may use.
  static DWORD_PTR LowestProcessor() {
    cpu_set_t processors;
    EXPECT_EQ(sched_getaffinity(0, sizeof(processors), &processors), 0);
    unsigned number = 0;
    while (!CPU_ISSET(number, &processors)) ++number;
    return DWORD_PTR{1} << number;
  }

  std::shared_ptr<simulation::Machine> machine = std::make_shared<simulation::Machine>();
};

TEST_F(Threads, RunOnTheProcessorsOfTheMaskThatTheProcessHas) {
  const DWORD_PTR lowest = LowestProcessor();
  const DWORD_PTR beyond = DWORD_PTR{1} << 63;
  std::thread([&] {
    EXPECT_NE(SetThreadAffinityMask(GetCurrentThread(), lowest | beyond) & lowest, 0U);
    EXPECT_EQ(LowestProcessor(), lowest);
    EXPECT_EQ(SetThreadAffinityMask(GetCurrentThread(), beyond), 0U);
    EXPECT_EQ(GetLastError(), ERROR_INVALID_PARAMETER);
    EXPECT_EQ(SetThreadAffinityMask(GetCurrentThread(), lowest), lowest);
    EXPECT_EQ(SetThreadAffinityMask(nullptr, lowest), 0U);
    EXPECT_EQ(GetLastError(), ERROR_INVALID_HANDLE);
  }).join();
  EXPECT_EQ(machine->Ledger().AffinityRequests(),
            (std::vector<std::uint64_t>{lowest | beyond, beyond, lowest, lowest}));
}

TEST_F(Threads, HaveALastErrorOfTheirOwn) {
  SetLastError(ERROR_IO_DEVICE);
  std::thread([] {
    EXPECT_EQ(GetLastError(), NO_ERROR);
    SetLastError(ERROR_NOT_READY);
  }).join();
  EXPECT_EQ(GetLastError(), ERROR_IO_DEVICE);
}

TEST_F(Threads, ReadTheClockOfTheMachine) {
  const ULONGLONG before = GetTickCount64();
  machine->Clock().Advance(3600000);
  EXPECT_GE(GetTickCount64(), before + 3600000);
}

}  // namespace
}  // namespace orvik::platform::windows
