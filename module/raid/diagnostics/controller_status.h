#pragma once

#include "module/raid/csmi/csmi_device.h"
#include "module/raid/diagnostics/raid_test_base.h"

namespace orvik::module::raid {

/// Whether a CSMI controller has failed, is offline or is powered off.
class ControllerStatusTest final : public QuickRaidTest<CsmiDevice> {
 public:
  ControllerStatusTest() : QuickRaidTest(QuickDescriptor(6, "RAID_CONTROLLER_STATUS_TEST")) {}

  core::TestResult Run(core::RunArguments& arguments) override;

 private:
  static core::TestResult Evaluate(core::RunArguments& arguments, std::uint32_t status);
};

}  // namespace orvik::module::raid
