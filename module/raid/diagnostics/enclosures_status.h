#pragma once

#include "module/raid/diagnostics/raid_test_base.h"
#include "module/raid/storelib/storelib_device.h"

namespace orvik::module::raid {

/// Whether an enclosure of a storelib controller signals a fault.
class EnclosuresStatusTest final : public QuickRaidTest<LsiDevice> {
 public:
  EnclosuresStatusTest() : QuickRaidTest(QuickDescriptor(2, "ENCLOSURES_STATUS_TEST")) {}

  core::TestResult Run(core::RunArguments& arguments) override;

 private:
  static core::TestResult Evaluate(core::RunArguments& arguments, const std::vector<EnclosureInfo>& enclosures);
};

}  // namespace orvik::module::raid
