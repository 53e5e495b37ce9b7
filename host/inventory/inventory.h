#pragma once

#include <QString>
#include <QStringList>
#include <memory>
#include <string>
#include <vector>

#include "core/device_scanner.h"
#include "core/module.h"
#include "host/result.h"
#include "host/text/text.h"

namespace orvik::host {

/// A device as the last scan described it.
struct ListedDevice {
  int index = 0;  ///< position in scan order
  core::DeviceDescription description;
  std::weak_ptr<core::Device> device;  ///< expires when the module drops the device
};

/// A test of the module with its names for people.
struct ListedTest {
  core::TestId id = 0;
  std::unique_ptr<core::Test> test;
  QString name;         ///< in the user's language
  QString englishName;  ///< accepted on the command line in every language
};

/// The module's tests in its own order.
struct TestList {
  std::vector<ListedTest> tests;
  QStringList errors;  ///< one line per test that the module lists but does not create
};

/// Scans for devices and returns them in scan order. Blocks until the scan has ended.
Result<std::vector<ListedDevice>> ScanDevices(core::DeviceScanner& scanner);

/// Whether there is any device, without a scan.
Result<bool> CheckPresence(core::DeviceScanner& scanner);

TestList ListTests(const core::Module& module, const Translations& translations);

/// The error of an operation on a device that the module has dropped since the scan.
Error DeviceGone();

/// Whether the test supports the device; false once the device is gone.
bool AppliesTo(const ListedTest& test, const ListedDevice& device);

/// The devices named in `wanted`, in scan order; all if it is empty. A name is an id (every device that has it) or,
/// if no device has that id, an index. The error names the first unknown one and lists the devices. Points into
/// `devices`.
Result<std::vector<const ListedDevice*>> SelectDevices(const std::vector<ListedDevice>& devices,
                                                       const std::vector<std::string>& wanted);

/// The tests named in `wanted`, in module order; all if it is empty. A name is an id, a key or a name, in any case.
/// The error names the first unknown one and lists the tests. Points into `tests`.
Result<std::vector<const ListedTest*>> SelectTests(const std::vector<ListedTest>& tests,
                                                   const std::vector<std::string>& wanted);

}  // namespace orvik::host
