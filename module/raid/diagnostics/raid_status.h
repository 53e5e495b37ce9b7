#pragma once

#include "module/raid/csmi/csmi_device.h"
#include "module/raid/diagnostics/raid_test_base.h"

namespace orvik::module::raid {

/// The state of every logical drive of a CSMI controller: one message per drive, and a warning when one needs care.
class RaidStatusTest final : public QuickRaidTest<CsmiDevice> {
 public:
  RaidStatusTest() : QuickRaidTest(QuickDescriptor(5, "RAID_STATUS_TEST")) {}

  core::TestResult Run(core::RunArguments& arguments) override;

 private:
  static core::TestResult EvaluateDrives(core::RunArguments& arguments, const std::vector<LogicalDrive>& drives);
  static core::TestResult EvaluateDrive(core::RunArguments& arguments, const LogicalDrive& drive);
};

}  // namespace orvik::module::raid
