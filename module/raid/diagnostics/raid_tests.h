#pragma once

// The six RAID tests. Each applies to one controller family; `Run` uses no state of the test object.

#include "module/raid/csmi/csmi_device.h"
#include "module/raid/diagnostics/raid_test_base.h"
#include "module/raid/storelib/storelib_device.h"

namespace orvik::module::raid {

/// Checks the state of every logical drive of a CSMI controller: one message per drive, a warning if any needs
/// attention.
class RaidStatusTest final : public QuickRaidTest<CsmiDevice> {
 public:
  RaidStatusTest() : QuickRaidTest(QuickDescriptor(5, "RAID_STATUS_TEST")) {}

  core::TestResult Run(core::RunArguments& arguments) override;

 private:
  static core::TestResult EvaluateDrives(core::RunArguments& arguments, const std::vector<LogicalDrive>& drives);
  static core::TestResult EvaluateDrive(core::RunArguments& arguments, const LogicalDrive& drive);
};

/// Checks whether a CSMI controller has failed, is offline or is powered off.
class ControllerStatusTest final : public QuickRaidTest<CsmiDevice> {
 public:
  ControllerStatusTest() : QuickRaidTest(QuickDescriptor(6, "RAID_CONTROLLER_STATUS_TEST")) {}

  core::TestResult Run(core::RunArguments& arguments) override;

 private:
  static core::TestResult Evaluate(core::RunArguments& arguments, std::uint32_t status);
};

/// Checks the state of every logical drive of a storelib controller.
class LogicalDrivesStatusTest final : public QuickRaidTest<LsiDevice> {
 public:
  LogicalDrivesStatusTest()
      : QuickRaidTest(QuickDescriptor(3, "LOGICAL_DRIVES_STATUS_TEST", "QUICK_RAID_TESTS_TOOLTIP")) {}

  core::TestResult Run(core::RunArguments& arguments) override;

 private:
  static core::TestResult Evaluate(core::RunArguments& arguments);
  static core::TestResult EvaluateDrive(core::RunArguments& arguments, const LogicalDrive& drive);
};

/// Checks the battery backup unit of a storelib controller.
class BatteryBackupUnitStatusTest final : public QuickRaidTest<LsiDevice> {
 public:
  BatteryBackupUnitStatusTest() : QuickRaidTest(QuickDescriptor(1, "BATTERY_STATUS_TEST")) {}

  core::TestResult Run(core::RunArguments& arguments) override;

 private:
  static core::TestResult Evaluate(core::RunArguments& arguments, LsiDevice& device);
};

/// Checks the enclosures of a storelib controller for faults.
class EnclosuresStatusTest final : public QuickRaidTest<LsiDevice> {
 public:
  EnclosuresStatusTest() : QuickRaidTest(QuickDescriptor(2, "ENCLOSURES_STATUS_TEST")) {}

  core::TestResult Run(core::RunArguments& arguments) override;

 private:
  static core::TestResult Evaluate(core::RunArguments& arguments, const std::vector<EnclosureInfo>& enclosures);
};

/// Checks the consistency of every redundant logical drive of a storelib controller, one drive at a time. The only
/// exclusive test, and the only one that asks the user.
class CheckConsistencyTest final : public RaidAbstractTest {
 public:
  CheckConsistencyTest();

  core::TestResult Run(core::RunArguments& arguments) override;
  bool IsExclusive() const override { return true; }
  std::uint32_t GetEstimatedDuration() const override { return 6000; }
  bool IsSupported(const core::Device& device, std::shared_ptr<void> reserved) const override;

 private:
  class ActiveRun;
};

}  // namespace orvik::module::raid
