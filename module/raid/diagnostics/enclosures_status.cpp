#include "module/raid/diagnostics/raid_tests.h"

#include <hostkit.h>

#include "module/raid/diagnostics/message_keys.h"

namespace orvik::module::raid {

using core::MessageType;
using core::TestResult;

TestResult EnclosuresStatusTest::Run(core::RunArguments& arguments) {
  if (CheckAborted(arguments)) return TestResult::Aborted;
  const auto anyDevice = arguments.device.lock();
  if (anyDevice == nullptr) return TestResult::Invalid;

  // Unlike in the other tests the message comes before the progress.
  const auto notApplicable = [&arguments](const char* key) {
    AddMessage(arguments, MessageType::Info, key);
    arguments.reporter->SetProgress(100);
    return TestResult::NotApplicable;
  };
  const auto device = std::dynamic_pointer_cast<LsiDevice>(anyDevice);
  if (device == nullptr) return notApplicable(message::kDeviceNotIdentified);
  std::vector<EnclosureInfo> enclosures;
  if (!device->GetEnclosures(enclosures).Ok()) return notApplicable(message::kCannotGetEnclosures);
  if (enclosures.empty()) return notApplicable(message::kNoEnclosures);
  return Evaluate(arguments, enclosures);
}

TestResult EnclosuresStatusTest::Evaluate(core::RunArguments& arguments,
                                          const std::vector<EnclosureInfo>& enclosures) {
  TestResult result = TestResult::Passed;
  for (const EnclosureInfo& enclosure : enclosures) {
    if (enclosure.faulty) {
      result = TestResult::Failed;
      std::string number;
      get_number_handler()->NumberText(number, enclosure.enclosureId);
      // A blank instead of the usual colon, on purpose: translation files have the key alone.
      AddMessage(arguments, MessageType::Error, std::string(message::kFaultyEnclosure) + " " + number);
    }
    if (CheckAborted(arguments)) return TestResult::Aborted;
  }
  if (result == TestResult::Failed) AddMessage(arguments, MessageType::Error, message::kFaultyEnclosureFound);
  arguments.reporter->SetProgress(100);
  return result;
}

}  // namespace orvik::module::raid
