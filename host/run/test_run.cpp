#include "host/run/test_run.h"

#include <QCoreApplication>

namespace orvik::host {
namespace {

constexpr std::uint32_t kExtendedGroup = 2;

std::int32_t ModeOf(const core::Test& test) {
  return test.Descriptor().groupKind == kExtendedGroup ? core::DispatchRequest::kExclusiveMode
                                                       : core::DispatchRequest::kSharedMode;
}

}  // namespace

TestRun::TestRun(const ListedDevice& onDevice, const ListedTest& ofTest, const core::AbortFlag& abortFlag)
    : Run(onDevice, ModeOf(*ofTest.test), ofTest.test.get()), test(&ofTest) {
  arguments.device = onDevice.device;
  arguments.abortFlag = &abortFlag;
  arguments.reporter = &recorder;
}

QString TestRun::Name() const {
  return QCoreApplication::translate("orvik-diag", "Device %1: %2").arg(device->index).arg(test->name);
}

core::TestResult TestRun::Perform() {
  return test->test->Run(arguments);
}

}  // namespace orvik::host
