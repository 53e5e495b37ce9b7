#include "host/run/run.h"

namespace orvik::host {
namespace {

constexpr std::uint32_t kExtendedGroup = 2;

std::int32_t ModeOf(const core::Test& test) {
  return test.Descriptor().groupKind == kExtendedGroup ? core::DispatchRequest::kExclusiveMode
                                                       : core::DispatchRequest::kSharedMode;
}

}  // namespace

Run::Run(const ListedDevice& onDevice, const ListedTest& ofTest, const core::AbortFlag& abortFlag)
    : device(&onDevice),
      test(&ofTest),
      request(std::make_unique<core::DispatchRequest>(onDevice.device, ModeOf(*ofTest.test), ofTest.test.get())) {
  arguments.device = onDevice.device;
  arguments.abortFlag = &abortFlag;
  arguments.reporter = &recorder;
}

}  // namespace orvik::host
