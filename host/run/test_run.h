#pragma once

#include <memory>
#include <vector>

#include "host/inventory/test_list.h"
#include "host/run/run.h"

namespace orvik::host {

/// One test on one device.
struct TestRun final : Run {
  TestRun(const ListedDevice& onDevice, const ListedTest& ofTest, const core::AbortFlag& abortFlag);

  QString Name() const override;
  core::TestResult Perform() override;

  const ListedTest* test;
  core::RunArguments arguments;
};

using TestRunList = std::vector<std::unique_ptr<TestRun>>;

}  // namespace orvik::host
