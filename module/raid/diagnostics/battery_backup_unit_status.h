#pragma once

#include "module/raid/diagnostics/raid_test_base.h"
#include "module/raid/storelib/storelib_device.h"

namespace orvik::module::raid {

/// Whether the battery backup unit of a storelib controller is there and well.
class BatteryBackupUnitStatusTest final : public QuickRaidTest<LsiDevice> {
 public:
  BatteryBackupUnitStatusTest() : QuickRaidTest(QuickDescriptor(1, "BATTERY_STATUS_TEST")) {}

  core::TestResult Run(core::RunArguments& arguments) override;

 private:
  static core::TestResult Evaluate(core::RunArguments& arguments, LsiDevice& device);
};

}  // namespace orvik::module::raid
