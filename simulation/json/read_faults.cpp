#include <algorithm>

#include "simulation/csmi/csmi_controller.h"
#include "simulation/faults/fault_book.h"
#include "simulation/json/node.h"
#include "simulation/json/readers.h"
#include "simulation/physical/physical_drive.h"
#include "simulation/storelib/storelib.h"

namespace orvik::simulation {

namespace {

// Functions that a rule can name but that "*" does not cover.
constexpr std::array<std::string_view, 1> kByNameOnly = {"SetThreadAffinityMask"};

bool IsStorelibCommand(std::string_view operation) {
  return operation == "ProcessLibCommand" || Storelib::HasCommand(operation);
}

// Packets with a header that has a ReturnCode, and commands, which answer a status.
bool CarriesReturnCode(std::string_view operation) {
  return operation == "DeviceIoControl" || operation == kNvmePassThroughName ||
         CsmiController::HasPacket(operation) || IsStorelibCommand(operation);
}

bool CarriesPackets(std::string_view operation) {
  return CarriesReturnCode(operation) || PhysicalDrive::HasRequest(operation);
}

bool IsKnown(std::string_view operation) {
  return operation == kEveryOutsideCall || IsOutsideCall(operation) || CarriesPackets(operation) ||
         std::ranges::find(kByNameOnly, operation) != kByNameOnly.end();
}

BytePatch ReadPatch(const Node& node) {
  BytePatch patch;
  ObjectReader object(node);
  object.Required("offset", "a whole number").Read(patch.offset);
  object.Required("bytes", "a text of pairs of hexadecimal digits").ReadBytes(patch.bytes);
  object.End();
  return patch;
}

bool HasEffect(const FaultEffects& effects) {
  return effects.delayMilliseconds || effects.error || effects.returnCode || effects.garbleSeed ||
         effects.truncateTo || !effects.patches.empty();
}

}  // namespace

FaultRule ReadFault(const Node& node) {
  FaultRule fault;
  FaultEffects& effects = fault.effects;
  ObjectReader object(node);
  const Node operation = object.Required("operation", "a text");
  operation.Read(fault.operation);
  if (!fault.operation.empty() && !IsKnown(fault.operation)) {
    operation.Reject("\"*\", a Windows function or a packet that can be made to fail");
  }
  object.Optional("call").Read(fault.call, std::uint64_t{1}, std::numeric_limits<std::uint64_t>::max());
  object.Optional("delayMilliseconds").Read(effects.delayMilliseconds);
  object.Optional("error").Read(effects.error);
  if (CarriesReturnCode(fault.operation)) object.Optional("returnCode").Read(effects.returnCode);
  if (CarriesPackets(fault.operation)) {
    object.Optional("garble").Read(effects.garbleSeed);
    object.Optional("patch").ForEach([&](const Node& each) { effects.patches.push_back(ReadPatch(each)); });
    object.Optional("truncate").Read(effects.truncateTo);
  }
  object.End();
  if (!HasEffect(effects)) node.Reject("an effect such as \"error\"", "none");
  return fault;
}

}  // namespace orvik::simulation
