#pragma once

#include "module/raid/diagnostics/raid_abstract_test.h"
#include "module/raid/storelib/lsi_device.h"

// The tests of the storelib family. There is no device of that family yet (issue 5), so a run gets no further than
// the checks that come before the device is asked for anything; what follows arrives with the family.

namespace orvik::module::raid {

/// The battery backup unit of a storelib controller.
class BatteryBackupUnitStatusTest final : public QuickRaidTest<LsiDevice> {
 public:
  BatteryBackupUnitStatusTest() : QuickRaidTest(QuickDescriptor(1, "BATTERY_STATUS_TEST")) {}

  core::TestResult Run(core::RunArguments& arguments) override;
};

/// The enclosures of a storelib controller.
class EnclosuresStatusTest final : public QuickRaidTest<LsiDevice> {
 public:
  EnclosuresStatusTest() : QuickRaidTest(QuickDescriptor(2, "ENCLOSURES_STATUS_TEST")) {}

  core::TestResult Run(core::RunArguments& arguments) override;
};

/// The states of the logical drives of a storelib controller.
class LogicalDrivesStatusTest final : public QuickRaidTest<LsiDevice> {
 public:
  LogicalDrivesStatusTest()
      : QuickRaidTest(QuickDescriptor(3, "LOGICAL_DRIVES_STATUS_TEST", "QUICK_RAID_TESTS_TOOLTIP")) {}

  core::TestResult Run(core::RunArguments& arguments) override;
};

/// A consistency check of every logical drive with redundancy of a storelib controller. The one exclusive test.
class CheckConsistencyTest final : public RaidAbstractTest {
 public:
  CheckConsistencyTest();

  core::TestResult Run(core::RunArguments& arguments) override;
  bool IsExclusive() const override { return true; }
  std::uint32_t GetEstimatedDuration() const override { return 6000; }
  bool IsSupported(const core::Device& device, std::shared_ptr<void> reserved) const override;
};

}  // namespace orvik::module::raid
