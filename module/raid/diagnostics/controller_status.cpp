#include "module/raid/diagnostics/raid_tests.h"

#include "module/raid/diagnostics/message_keys.h"

namespace orvik::module::raid {

using core::MessageType;
using core::TestResult;

TestResult ControllerStatusTest::Run(core::RunArguments& arguments) {
  if (CheckAborted(arguments)) return TestResult::Aborted;
  const auto anyDevice = arguments.device.lock();
  if (anyDevice == nullptr) return TestResult::Invalid;
  const auto device = std::dynamic_pointer_cast<CsmiDevice>(anyDevice);
  if (device == nullptr) {
    arguments.reporter->SetProgress(100);
    AddMessage(arguments, MessageType::Info, message::kDeviceNotIdentified);
    return TestResult::NotApplicable;
  }

  std::uint32_t status = 0;
  std::uint32_t offlineReason = 0;
  const bool known = device->GetControllerStatus(status, offlineReason).Ok();
  const TestResult result = known ? Evaluate(arguments, status) : TestResult::NotApplicable;
  arguments.reporter->SetProgress(100);
  return result;
}

TestResult ControllerStatusTest::Evaluate(core::RunArguments& arguments, std::uint32_t status) {
  switch (status) {
    case 2: AddMessage(arguments, MessageType::Error, message::kControllerFailed); return TestResult::Failed;
    case 3: AddMessage(arguments, MessageType::Warning, message::kControllerOffline); return TestResult::Warning;
    case 4: AddMessage(arguments, MessageType::Warning, message::kControllerPoweredOff); return TestResult::Warning;
    default: return TestResult::Passed;
  }
}

}  // namespace orvik::module::raid
