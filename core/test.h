#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "core/device.h"
#include "core/run_arguments.h"

namespace orvik::core {

/// Describes one parameter of a test; the tests of this module have none.
struct ParameterDescription {
  std::string text1;
  std::string text2;
  std::string text3;
  std::string text4;
  std::string text5;
  std::uint32_t number1 = 0;
  std::uint32_t number2 = 0;
  std::string text6;
};

/// Describes a test to the host. Names, tooltips and groups are message keys.
struct TestDescriptor {
  std::uint32_t id = 0;
  std::string nameKey;
  std::string tooltipKey;
  std::vector<ParameterDescription> parameters;
  std::string groupKey;
  std::uint32_t groupKind = 0;  ///< 1 quick, 2 extended
  std::string auxText1;
  std::string auxText2;
  bool auxFlag = false;
};

/// A test. It keeps no state between runs, so one object may be run any number of times.
class Test {
 public:
  explicit Test(TestDescriptor descriptor) : descriptor_(std::move(descriptor)) {}
  Test(const Test&) = delete;
  Test& operator=(const Test&) = delete;

  virtual ~Test() = default;  // slot 0

  /// Slot 1: runs the test on the calling thread.
  virtual TestResult Run(RunArguments& arguments) = 0;

  /// Slot 2: whether at most one run of the test may be in progress, across all devices.
  virtual bool IsExclusive() const = 0;

  /// Slot 3: a relative duration, without a unit: long tests return thousands, quick tests 1.
  virtual std::uint32_t GetEstimatedDuration() const = 0;

  /// Slot 4: whether the test applies to this device. `reserved` is released without being read.
  virtual bool IsSupported(const Device& device, std::shared_ptr<void> reserved) const = 0;

  const TestDescriptor& Descriptor() const { return descriptor_; }

 private:
  TestDescriptor descriptor_;
  std::vector<std::pair<std::string, std::uint64_t>> hostValues_;  // reserved for the host; starts empty
};

}  // namespace orvik::core
