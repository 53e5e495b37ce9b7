#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

#include "core/device_scanner.h"
#include "core/dispatcher.h"
#include "core/test.h"

namespace orvik::core {

using TestId = std::int32_t;

struct ModuleVersion {
  std::uint8_t major = 0;
  std::uint16_t minor = 0;
  std::uint16_t patch = 0;
  std::string suffix;
};

/// Makes the tests of a module.
class TestFactory {
 public:
  TestFactory() = default;
  TestFactory(const TestFactory&) = delete;
  TestFactory& operator=(const TestFactory&) = delete;

  virtual ~TestFactory() = default;  // slot 0

  /// Slot 1: a new test, owned by the caller; null for an unknown id.
  virtual std::unique_ptr<Test> CreateTest(TestId id) const = 0;
};

/// The object that a module library exports; everything else is reached through it.
class Module : public TestFactory {
 public:
  virtual std::int32_t GetTestCount() const = 0;                            // slot 2
  virtual std::string GetShortName() const = 0;                             // slot 3
  virtual std::string GetName() const = 0;                                  // slot 4
  virtual ModuleVersion GetVersion() const = 0;                             // slot 5
  virtual std::shared_ptr<DeviceScanner> GetDeviceScanner() const = 0;      // slot 6
  virtual std::shared_ptr<DiagnosticDispatcher> GetDispatcher() const = 0;  // slot 7
  virtual void ClearStringSet() = 0;                                        // slot 8
  virtual std::vector<TestId> GetTestIds() const = 0;                       // slot 9: in listing order
  virtual std::vector<std::string> GetAuxiliaryList() const = 0;            // slot 10
  virtual std::string GetAuxiliaryText() const = 0;                         // slot 11
};

}  // namespace orvik::core

/// The undecorated names that a module library exports, and the types behind them.
extern "C" {
using CreateModuleInstanceFunction = orvik::core::Module*();
using DestroyModuleInstanceFunction = void(orvik::core::Module*);
}
