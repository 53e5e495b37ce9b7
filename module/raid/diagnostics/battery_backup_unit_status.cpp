#include "module/raid/diagnostics/raid_tests.h"

#include <array>

#include "module/raid/diagnostics/message_keys.h"

namespace orvik::module::raid {

namespace {

using core::MessageType;
using core::TestResult;

struct Decision {
  bool BatteryStatus::*condition;
  MessageType type;
  const char* key;
  TestResult result;
};

// The first condition that holds decides: a battery that is both hot and low is reported as hot.
constexpr std::array<Decision, 4> kDecisions = {{
    {&BatteryStatus::notPresent, MessageType::Info, message::kBatteryNotPresent, TestResult::NotApplicable},
    {&BatteryStatus::packMissing, MessageType::Info, message::kBatteryPackMissing, TestResult::NotApplicable},
    {&BatteryStatus::temperatureHigh, MessageType::Warning, message::kBatteryTemperatureHigh, TestResult::Warning},
    {&BatteryStatus::lowVoltage, MessageType::Warning, message::kLowBatteryVoltage, TestResult::Warning},
}};

}  // namespace

TestResult BatteryBackupUnitStatusTest::Run(core::RunArguments& arguments) {
  if (CheckAborted(arguments)) return TestResult::Aborted;
  const auto device = std::dynamic_pointer_cast<LsiDevice>(arguments.device.lock());
  if (device == nullptr) return TestResult::NotApplicable;

  ControllerInfo info;
  const bool known = storage::Status{device->GetControllerInfo(info)}.Ok();
  // These two results report progress 100 before their message, the others after it.
  if (!known || !info.bbuSupported) {
    arguments.reporter->SetProgress(100);
    AddMessage(arguments, known ? MessageType::Info : MessageType::Warning,
               known ? message::kBatteryNotSupported : message::kCannotCheckBatterySupport);
    return known ? TestResult::NotApplicable : TestResult::Warning;
  }
  const TestResult result = Evaluate(arguments, *device);
  arguments.reporter->SetProgress(100);
  return result;
}

TestResult BatteryBackupUnitStatusTest::Evaluate(core::RunArguments& arguments, LsiDevice& device) {
  BatteryStatus battery;
  if (!device.GetBatteryStatus(battery).Ok()) {
    AddMessage(arguments, MessageType::Warning, message::kCannotGetBatteryStatus);
    return TestResult::Warning;
  }
  for (const Decision& decision : kDecisions) {
    if (!(battery.*decision.condition)) continue;
    AddMessage(arguments, decision.type, decision.key);
    return decision.result;
  }
  return TestResult::Passed;
}

}  // namespace orvik::module::raid
