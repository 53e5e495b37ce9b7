// The three quick tests of storelib controllers, run on devices of a simulated machine.

#include <gtest/gtest.h>

#include "module/raid/diagnostics/raid_tests.h"
#include "tests/module/raid/diagnostics/run_recorder.h"
#include "tests/module/raid/storelib/storelib_machines.h"

namespace orvik::module::raid {
namespace {

using namespace orvik::simulation;
using namespace orvik::testing;
using core::TestResult;
using Texts = std::vector<std::string>;

/// What was reported, in order: "100%" or "Info KEY".
struct Outcome {
  TestResult result;
  Texts reports;

  bool operator==(const Outcome&) const = default;
};

template <typename Test>
Outcome RunOn(const std::shared_ptr<core::Device>& device, std::size_t abortAfter = 0) {
  RunRecorder run;
  Outcome outcome{};
  std::size_t percents = 0;
  run.whenReported = [&] {
    const bool isProgress = run.progress.size() > percents;
    percents = run.progress.size();
    outcome.reports.push_back(isProgress ? std::to_string(run.progress.back()) + "%" : run.messages.back());
    if (outcome.reports.size() == abortAfter) run.abort = 1;
  };
  Test test;
  outcome.result = run.Run(test, device);
  return outcome;
}

void PrintTo(const Outcome& outcome, std::ostream* out) {
  *out << static_cast<int>(outcome.result);
  for (const auto& report : outcome.reports) *out << ", " << report;
}

std::vector<StorelibLogicalDriveDescription> Drives(const std::vector<int>& states) {
  std::vector<StorelibLogicalDriveDescription> drives;
  for (const int state : states) {
    drives.push_back(Volume(static_cast<std::uint8_t>(drives.size())));
    drives.back().state = static_cast<StorelibDriveState>(state);
  }
  return drives;
}

TEST(LogicalDrivesStatusTestTest, ReportsEachState) {
  struct Case {
    std::vector<int> states;
    Outcome outcome;
  };
  for (const Case& row : std::vector<Case>{
           {{3, 2, 3},
            {TestResult::Warning,
             {"Info LOGICAL_DRIVE_OPTIMAL: 0", "0%", "Warning LOGICAL_DRIVE_DEGRADED: 1", "33%",
              "Info LOGICAL_DRIVE_OPTIMAL: 2", "66%", "100%"}}},
           {{3}, {TestResult::Passed, {"Info LOGICAL_DRIVE_OPTIMAL: 0", "0%", "100%"}}},
           {{0, 1},
            {TestResult::Warning,
             {"Warning LOGICAL_DRIVE_OFFLINE: 0", "0%", "Warning LOGICAL_DRIVE_PARTIALLY_DEGRADED: 1", "50%",
              "100%"}}},
           {{4, 255},
            {TestResult::Warning,
             {"Warning LOGICAL_DRIVE_UNKNOWN_STATUS: 0", "0%", "Warning LOGICAL_DRIVE_UNKNOWN_STATUS: 1", "50%",
              "100%"}}},
           {{}, {TestResult::NotApplicable, {"100%"}}},
       }) {
    InstallLsi(LsiController(Drives(row.states)));
    EXPECT_EQ(RunOn<LogicalDrivesStatusTest>(OpenLsiDevice()), row.outcome);
  }
  const auto machine = InstallLsi(LsiController(Drives({2, 2})));
  EXPECT_EQ(RunOn<LogicalDrivesStatusTest>(OpenLsiDevice(), 2),
            (Outcome{TestResult::Aborted, {"Warning LOGICAL_DRIVE_DEGRADED: 0", "0%", "100%", "100%"}}));
  machine->Faults().FailEvery("STORELIB_LOGICAL_DRIVE_LIST");
  EXPECT_EQ(RunOn<LogicalDrivesStatusTest>(OpenLsiDevice()), (Outcome{TestResult::NotApplicable, {"100%"}}));
}

TEST(EnclosuresStatusTestTest, NamesFaultyEnclosuresWithoutAColon) {
  const auto outcome = [](const std::vector<StorelibEnclosureDescription>& enclosures, std::size_t abortAfter = 0) {
    auto controller = LsiController();
    controller.enclosures = enclosures;
    InstallLsi(controller);
    return RunOn<EnclosuresStatusTest>(OpenLsiDevice(), abortAfter);
  };
  EXPECT_EQ(outcome({{.enclosureId = 0}, {.enclosureId = 1, .faultByte = 1}, {.enclosureId = 65535, .faultByte = 9}}),
            (Outcome{TestResult::Failed,
                     {"Error FAULTY_ENCLOSURE 1", "Error FAULTY_ENCLOSURE 65535", "Error FAULTY_ENCLOSURE_FOUND",
                      "100%"}}));
  EXPECT_EQ(outcome({{.enclosureId = 7}}), (Outcome{TestResult::Passed, {"100%"}}));
  EXPECT_EQ(outcome({{.enclosureId = 7, .faultByte = 1}, {.enclosureId = 8, .faultByte = 1}}, 1),
            (Outcome{TestResult::Aborted, {"Error FAULTY_ENCLOSURE 7", "100%"}}));
  EXPECT_EQ(outcome({}), (Outcome{TestResult::NotApplicable, {"Info NO_ENCLOSURES_FOUND", "100%"}}));
  const auto machine = InstallLsi();
  machine->Faults().FailEvery("STORELIB_ENCLOSURE_LIST");
  EXPECT_EQ(RunOn<EnclosuresStatusTest>(OpenLsiDevice()),
            (Outcome{TestResult::NotApplicable, {"Info CANT_GET_ENCLOSURES_INFO", "100%"}}));
}

TEST(BatteryBackupUnitStatusTestTest, DecidesByTheFirstCondition) {
  struct Case {
    StorelibBatteryDescription battery;
    Outcome outcome;
  };
  const Outcome hot{TestResult::Warning, {"Warning BATTERY_TEMPERATURE_HIGH", "100%"}};
  const Outcome absent{TestResult::NotApplicable, {"Info BATTERY_BACKUP_UNIT_NOT_PRESENT", "100%"}};
  const Outcome missing{TestResult::NotApplicable, {"Info BATTERY_PACK_MISSING", "100%"}};
  for (const Case& row : std::vector<Case>{
           {{}, {TestResult::Passed, {"100%"}}},
           {{.type = 0, .packMissing = true, .lowVoltage = true}, absent},
           {{.packMissing = true, .temperatureHigh = true}, missing},
           {{.lowVoltage = true, .temperatureHigh = true}, hot},
           {{.temperatureHigh = true}, hot},
           {{.lowVoltage = true}, {TestResult::Warning, {"Warning LOW_BATTERY_VOLTAGE", "100%"}}},
       }) {
    auto controller = LsiController();
    controller.battery = row.battery;
    InstallLsi(controller);
    EXPECT_EQ(RunOn<BatteryBackupUnitStatusTest>(OpenLsiDevice()), row.outcome);
  }
}

TEST(BatteryBackupUnitStatusTestTest, ReportsWhatCouldNotBeRead) {
  auto controller = LsiController();
  controller.batterySupported = false;
  auto machine = InstallLsi(controller);
  EXPECT_EQ(RunOn<BatteryBackupUnitStatusTest>(OpenLsiDevice()),
            (Outcome{TestResult::NotApplicable, {"100%", "Info BATTERY_BACKUP_UNIT_NOT_SUPPORTED"}}));
  machine->Faults().FailEvery("STORELIB_CONTROLLER_INFO");
  EXPECT_EQ(RunOn<BatteryBackupUnitStatusTest>(OpenLsiDevice()),
            (Outcome{TestResult::Warning, {"100%", "Warning CANT_CHECK_BATTERY_BACKUP_UNIT_API_SUPPORT"}}));
  machine = InstallLsi();
  machine->Faults().FailEvery("STORELIB_BATTERY_STATUS");
  EXPECT_EQ(RunOn<BatteryBackupUnitStatusTest>(OpenLsiDevice()),
            (Outcome{TestResult::Warning, {"Warning CANT_GET_BATTERY_STATUS", "100%"}}));
}

}  // namespace
}  // namespace orvik::module::raid
