#pragma once

#include <QString>
#include <optional>
#include <string>
#include <vector>

#include "host/run/test_run.h"

namespace orvik::host {

/// The devices that `wanted` names, in scan order; all when it is empty. Each is an id (every device that has it) or
/// else an index in scan order. Nothing, and one line in `error`, when one names no device.
std::optional<std::vector<const ListedDevice*>> SelectDevices(const std::vector<ListedDevice>& devices,
                                                              const std::vector<std::string>& wanted, QString& error);

/// The tests that `wanted` names, in module order; all when it is empty. Each is an id, a key or a name, in any case.
std::optional<std::vector<const ListedTest*>> SelectTests(const std::vector<ListedTest>& tests,
                                                          const std::vector<std::string>& wanted, QString& error);

/// A run for every test on every device that it applies to: device by device, in the order of the tests.
TestRunList PlanRuns(const std::vector<const ListedDevice*>& devices, const std::vector<const ListedTest*>& tests,
                     const core::AbortFlag& abortFlag);

}  // namespace orvik::host
