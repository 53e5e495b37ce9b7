#include "tests/sweeps/sweep.h"

#include <gtest/gtest.h>

#include <new>
#include <optional>

#include "tests/sweeps/allocation_faults.h"

namespace orvik::sweeps {

namespace {

using simulation::FaultEffects;
using simulation::Machine;

struct Way {
  const char* name;
  const char* operation;
  FaultEffects effects;
};

FaultEffects ManyOnes(std::size_t offset, std::size_t count) {
  return {.patches = {{.offset = offset, .bytes = std::vector<std::uint8_t>(count, 0xFF)}}};
}

// The patches cover the counts and the lengths of replies. A driver does not change a packet's 28-byte header; the
// blocks of the vendor's library have no header.
const std::vector<Way>& Ways() {
  static const std::vector<Way> ways = {
      {"error", "*", {.error = 31}},
      {"ReturnCode", "DeviceIoControl", {.returnCode = 2}},
      {"nothing returned", "DeviceIoControl", {.truncateTo = 0}},
      {"header only", "DeviceIoControl", {.truncateTo = 28}},
      {"short packet", "DeviceIoControl", {.truncateTo = 75}},
      {"garbage", "DeviceIoControl", {.garbleSeed = 1}},
      {"other garbage", "DeviceIoControl", {.garbleSeed = 20}},
      {"absurd counts", "DeviceIoControl", ManyOnes(28, 20)},
      {"absurd lengths", "DeviceIoControl", ManyOnes(8, 200)},
      {"status", "ProcessLibCommand", {.returnCode = 0x1B}},
      {"nothing filled", "ProcessLibCommand", {.truncateTo = 0}},
      {"short block", "ProcessLibCommand", {.truncateTo = 6}},
      {"garbage", "ProcessLibCommand", {.garbleSeed = 1}},
      {"other garbage", "ProcessLibCommand", {.garbleSeed = 20}},
      {"absurd counts", "ProcessLibCommand", ManyOnes(0, 16)},
      {"absurd everything", "ProcessLibCommand", ManyOnes(0, 4096)},
  };
  return ways;
}

/// After a faulty run the same scene must give the healthy answer at once and release everything.
void ExpectRecovery(std::unique_ptr<Scene> scene, const std::string& healthy) {
  const std::shared_ptr<Machine> machine = scene->machine;
  machine->Faults().Clear();
  EXPECT_EQ(scene->Run().text, healthy);
  scene.reset();
  EXPECT_EQ(machine->Ledger().OutstandingTotal(), 0U);
  EXPECT_EQ(machine->Ledger().InvalidReleases(), 0U);
}

void FailOneCall(const MakeScene& make, const Way& way, std::uint64_t call, const std::string& healthy) {
  SCOPED_TRACE(testing::Message() << way.name << ", " << way.operation << " " << call);
  auto scene = make();
  scene->machine->Faults().Add({.operation = way.operation, .call = call, .effects = way.effects});
  const Answer answer = scene->Run();
  EXPECT_TRUE(answer.defined) << answer.text;
  scene->machine->Faults().Clear();
  scene->Forget();
  ExpectRecovery(std::move(scene), healthy);
}

// A shortage of memory may reach the caller as std::bad_alloc.
void RunOutOfMemory(const MakeScene& make, Shortage shortage, std::uint64_t first, const std::string& healthy) {
  SCOPED_TRACE(testing::Message() << (shortage == Shortage::Once ? "without memory at " : "without memory from ")
                                  << first);
  auto scene = make();
  std::optional<Answer> answer;
  try {
    const AllocationFaults faults(shortage, first);
    answer = scene->Run();
  } catch (const std::bad_alloc&) {
  }
  EXPECT_TRUE(!answer || answer->defined);
  ExpectRecovery(std::move(scene), healthy);
}

/// The healthy answer, and the calls and allocations that it takes.
struct Healthy {
  explicit Healthy(const MakeScene& make) {
    auto scene = make();
    for (const Way& way : Ways()) calls.push_back(scene->machine->Faults().CallsMade(way.operation));
    {
      const AllocationFaults counting;
      const Answer answer = scene->Run();
      allocations = AllocationFaults::Counted();
      EXPECT_TRUE(answer.defined);
      text = answer.text;
    }
    for (std::size_t i = 0; i < calls.size(); ++i) {
      calls[i] = scene->machine->Faults().CallsMade(Ways()[i].operation) - calls[i];
    }
    ExpectRecovery(std::move(scene), text);
  }

  std::string text;
  std::vector<std::uint64_t> calls;
  std::uint64_t allocations = 0;
};

}  // namespace

std::size_t SweepFaults(const MakeScene& make) {
  const Healthy healthy(make);
  std::size_t runs = 0;
  for (std::size_t i = 0; i < Ways().size(); ++i) {
    for (std::uint64_t call = 1; call <= healthy.calls[i] && !testing::Test::HasFailure(); ++call, ++runs) {
      FailOneCall(make, Ways()[i], call, healthy.text);
    }
  }
  for (const Shortage shortage : {Shortage::Once, Shortage::ForGood}) {
    for (std::uint64_t first = 1; first <= healthy.allocations && !testing::Test::HasFailure(); ++first, ++runs) {
      RunOutOfMemory(make, shortage, first, healthy.text);
    }
  }
  return runs;
}

}  // namespace orvik::sweeps
