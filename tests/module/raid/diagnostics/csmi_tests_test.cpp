// The two tests of CSMI controllers, run on devices of a simulated machine.

#include <gtest/gtest.h>

#include "module/raid/diagnostics/raid_tests.h"
#include "tests/module/raid/diagnostics/run_recorder.h"
#include "tests/module/raid/machines.h"

namespace orvik::module::raid {
namespace {

using namespace orvik::simulation;
using namespace orvik::testing;
using core::TestResult;
using Texts = std::vector<std::string>;
using Percents = std::vector<int>;

constexpr auto kOk = CsmiRaidStatus::Ok;
constexpr auto kDegraded = CsmiRaidStatus::Degraded;
constexpr auto kRebuilding = CsmiRaidStatus::Rebuilding;
constexpr auto kFailed = CsmiRaidStatus::Failed;
constexpr auto kOffline = CsmiRaidStatus::Offline;
constexpr auto kRaid0 = CsmiRaidType::Raid0;
constexpr auto kRaid1 = CsmiRaidType::Raid1;

TEST(RaidStatusTestTest, ReportsEveryDriveAndMergesTheirOutcomes) {
  struct Case {
    std::vector<CsmiRaidSetDescription> sets;
    TestResult result;
    Texts messages;
    Percents progress;
  };
  for (const Case& row : std::vector<Case>{
           {{Set(kRaid1, kOk)}, TestResult::Passed, {"Info LOGICAL_DRIVE_OPTIMAL: 0"}, {100, 100}},
           {{Set(kRaid1, kOk), Set(kRaid1, kRebuilding), Set(kRaid1, kOk)},
            TestResult::Passed,
            {"Info LOGICAL_DRIVE_OPTIMAL: 0", "Info LOGICAL_DRIVE_REBUILDING: 1", "Info LOGICAL_DRIVE_OPTIMAL: 2"},
            {33, 66, 100, 100}},
           {{Set(kRaid0, kFailed), Set(kRaid1, kOk)},
            TestResult::Passed,
            {"Info UNSUPPORTED_RAID_LEVEL_IN_LOGICAL_DRIVE: 0", "Info TEST_DOESNT_SUPPORT_RAID_LEVEL: 0",
             "Info LOGICAL_DRIVE_OPTIMAL: 1"},
            {50, 100, 100}},
           {{Set(kRaid1, kOk), Set(kRaid0, kOk)},
            TestResult::NotApplicable,
            {"Info LOGICAL_DRIVE_OPTIMAL: 0", "Info UNSUPPORTED_RAID_LEVEL_IN_LOGICAL_DRIVE: 1",
             "Info TEST_DOESNT_SUPPORT_RAID_LEVEL: 0"},
            {50, 100, 100}},
           {{Set(kRaid1, kFailed), Set(kRaid0, kOk), Set(kRaid1, kOk)},
            TestResult::Warning,
            {"Warning LOGICAL_DRIVE_UNABLE_TO_READ_WRITE: 0", "Info UNSUPPORTED_RAID_LEVEL_IN_LOGICAL_DRIVE: 1",
             "Info TEST_DOESNT_SUPPORT_RAID_LEVEL: 0", "Info LOGICAL_DRIVE_OPTIMAL: 2"},
            {33, 66, 100, 100}},
           {{Set(kRaid1, kOffline)}, TestResult::Warning, {"Warning LOGICAL_DRIVE_UNKNOWN_STATUS: 0"}, {100, 100}},
           {{}, TestResult::NotApplicable, {"Info NO_LOGICAL_DRIVE_FOUND_SKIPPING_TEST"}, {100}},
       }) {
    Install({.adapters = {Controller(2, row.sets)}});
    RunRecorder run;
    RaidStatusTest test;
    EXPECT_EQ(run.Run(test, OpenDevice()), row.result);
    EXPECT_EQ(run.messages, row.messages);
    EXPECT_EQ(run.progress, row.progress);
  }
}

TEST(RaidStatusTestTest, SixDrivesEndAt99BeforeTheLast100) {
  Install({.adapters = {Controller(2, std::vector(6, Set(kRaid1, kOk)))}});
  RunRecorder run;
  RaidStatusTest test;
  run.Run(test, OpenDevice());
  EXPECT_EQ(run.progress, (Percents{16, 33, 50, 66, 83, 99, 100}));
}

TEST(RaidStatusTestTest, NamesFailedMembersAfterTheirDrive) {
  auto set = Set(kRaid1, kDegraded);
  set.information = 1;
  Install({.adapters = {Controller(2, {set})}});
  RunRecorder run;
  RaidStatusTest test;
  EXPECT_EQ(run.Run(test, OpenDevice()), TestResult::Warning);
  ASSERT_EQ(run.messages.size(), 2U);
  EXPECT_EQ(run.messages[0], "Warning LOGICAL_DRIVE_DEGRADED: 0");
  EXPECT_EQ(run.messages[1].substr(0, 37), "Info DRIVE_DOWN: WDC WD10ORVK-08M2NA0");
}

TEST(RaidStatusTestTest, ReportsWhatCouldNotBeRead) {
  for (const auto& [packet, message] :
       {std::pair("CC_CSMI_SAS_GET_CNTLR_CONFIG", "Info UNABLE_TO_RETRIEVE_DEVICE_PROPERTIES"),
        std::pair("CC_CSMI_SAS_GET_RAID_CONFIG", "Info CANT_GET_LOGICAL_DRIVES_INFO")}) {
    const auto machine = Install({.adapters = {Mirror()}});
    const auto device = OpenDevice();
    machine->Faults().Add({.operation = packet, .effects = {.returnCode = 1}});
    RunRecorder run;
    RaidStatusTest test;
    EXPECT_EQ(run.Run(test, device), TestResult::Aborted);
    EXPECT_EQ(run.messages, Texts{message});
    EXPECT_EQ(run.progress, Percents{100});
  }
}

TEST(RaidStatusTestTest, StopsBetweenDrivesWhenAborted) {
  Install({.adapters = {Controller(2, std::vector(3, Set(kRaid1, kOk)))}});
  RunRecorder run;
  run.whenReported = [&run] {
    if (run.messages.size() == 2) run.abort = 1;
  };
  RaidStatusTest test;
  EXPECT_EQ(run.Run(test, OpenDevice()), TestResult::Aborted);
  EXPECT_EQ(run.messages, (Texts{"Info LOGICAL_DRIVE_OPTIMAL: 0", "Info LOGICAL_DRIVE_OPTIMAL: 1"}));
  EXPECT_EQ(run.progress, (Percents{33, 100}));
}

TEST(ControllerStatusTestTest, JudgesTheStatus) {
  struct Case {
    std::uint32_t status;
    TestResult result;
    Texts messages;
  };
  for (const Case& row : std::vector<Case>{
           {0, TestResult::Passed, {}},
           {1, TestResult::Passed, {}},
           {2, TestResult::Failed, {"Error RAID_CONTROLLER_HAS_FAILED"}},
           {3, TestResult::Warning, {"Warning RAID_CONTROLLER_IS_OFFLINE"}},
           {4, TestResult::Warning, {"Warning RAID_CONTROLLER_IS_POWERED_OFF"}},
           {5, TestResult::Passed, {}},
       }) {
    auto adapter = Mirror();
    adapter.csmi->status = CsmiStatus(row.status);
    Install({.adapters = {adapter}});
    RunRecorder run;
    ControllerStatusTest test;
    EXPECT_EQ(run.Run(test, OpenDevice()), row.result) << row.status;
    EXPECT_EQ(run.messages, row.messages) << row.status;
    EXPECT_EQ(run.progress, Percents{100});
  }
  const auto machine = Install({.adapters = {Mirror()}});
  const auto device = OpenDevice();
  machine->Faults().FailEvery("DeviceIoControl");
  RunRecorder run;
  ControllerStatusTest test;
  EXPECT_EQ(run.Run(test, device), TestResult::NotApplicable);
  EXPECT_TRUE(run.messages.empty());
}

constexpr char kForeign[] =
    "THIS_TEST_CANNOT_BE_PERFORMED_BECAUSE_THE_DEVICE_COULD_NOT_BE_IDENTIFIED_OR_HAS_BEEN_DISCONNECTED";

struct EveryTest {
  std::unique_ptr<core::Test> test;
  bool csmi;
  TestResult gone;
  Texts foreignMessages;
  Percents foreignProgress;
};

std::vector<EveryTest> EveryTestOfTheModule() {
  std::vector<EveryTest> tests;
  const std::string info = std::string("Info ") + kForeign;
  const std::string notice = std::string("Notice ") + kForeign;
  const auto invalid = TestResult::Invalid;
  const auto none = TestResult::NotApplicable;
  tests.push_back({std::make_unique<RaidStatusTest>(), true, invalid, {notice}, {100}});
  tests.push_back({std::make_unique<ControllerStatusTest>(), true, invalid, {info}, {100}});
  tests.push_back({std::make_unique<EnclosuresStatusTest>(), false, invalid, {info}, {100}});
  tests.push_back({std::make_unique<BatteryBackupUnitStatusTest>(), false, none, {}, {}});
  tests.push_back({std::make_unique<LogicalDrivesStatusTest>(), false, none, {}, {100}});
  tests.push_back({std::make_unique<CheckConsistencyTest>(), false, none, {}, {100}});
  return tests;
}

TEST(EveryRaidTest, RejectsDevicesOfTheOtherFamily) {
  Install({.adapters = {Mirror()}});
  const std::shared_ptr<core::Device> csmi = OpenDevice();
  const std::shared_ptr<core::Device> other = std::make_shared<LsiDevice>(0, nullptr);
  for (const auto& [test, forCsmi, gone, messages, progress] : EveryTestOfTheModule()) {
    const auto& name = test->Descriptor().nameKey;
    EXPECT_EQ(test->IsSupported(*csmi, std::make_shared<int>()), forCsmi) << name;
    EXPECT_EQ(test->IsSupported(*other, nullptr), !forCsmi) << name;

    RunRecorder foreign;
    EXPECT_EQ(foreign.Run(*test, forCsmi ? other : csmi), TestResult::NotApplicable) << name;
    EXPECT_EQ(foreign.messages, messages) << name;
    EXPECT_EQ(foreign.progress, progress) << name;

    RunRecorder expired;
    EXPECT_EQ(expired.Run(*test, nullptr), gone) << name;
    EXPECT_TRUE(expired.messages.empty()) << name;
  }
}

TEST(EveryRaidTest, StopsOnTheAbortFlagAndOnSpoilingSystemEvents) {
  Install({.adapters = {Mirror()}});
  const std::shared_ptr<core::Device> csmi = OpenDevice();
  for (std::uint32_t bit = 0; bit < 32; ++bit) {
    core::SystemEventState events;
    events.flags = 1U << bit;
    RunRecorder run;
    run.events = &events;
    RaidStatusTest test;
    const bool spoils = bit < 8 && bit != 2 && bit != 4;
    EXPECT_EQ(run.Run(test, csmi), spoils ? TestResult::Aborted : TestResult::Passed) << bit;
    if (!spoils) continue;
    EXPECT_EQ(run.messages,
              Texts{"Info TEST_ABORTED_BECAUSE_A_SYSTEM_EVENT_THAT_COULD_COMPROMISE_THE_OUTCOME_HAS_HAPPENED"});
    EXPECT_EQ(run.progress, Percents{100});
  }
  for (const auto& row : EveryTestOfTheModule()) {
    if (!row.csmi) continue;
    RunRecorder run;
    run.abort = 1;
    EXPECT_EQ(run.Run(*row.test, csmi), TestResult::Aborted);
    EXPECT_TRUE(run.messages.empty());
    EXPECT_EQ(run.progress, Percents{100});
  }
}

}  // namespace
}  // namespace orvik::module::raid
