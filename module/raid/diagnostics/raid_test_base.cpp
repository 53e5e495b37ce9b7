#include "module/raid/diagnostics/raid_test_base.h"

#include <QCoreApplication>

#include <utility>

#include "module/raid/diagnostics/message_keys.h"

namespace orvik::module::raid {

namespace {

constexpr char kTranslationContext[] = "RAID";

// The system events that could change an outcome: bits 0, 1, 3, 5, 6 and 7.
constexpr std::uint32_t kSpoilingEvents = 0xEB;

constexpr std::uint32_t kQuickGroup = 1;

bool SpoilingEventPending(core::SystemEventState* events) {
  if (events == nullptr) return false;
  const std::lock_guard lock(events->mutex);
  return (events->flags & kSpoilingEvents) != 0;
}

}  // namespace

bool RaidAbstractTest::CheckAborted(core::RunArguments& arguments) {
  if (*arguments.abortFlag != 0) {
    arguments.reporter->SetProgress(100);
    return true;
  }
  if (!SpoilingEventPending(arguments.systemEvents)) return false;
  arguments.reporter->SetProgress(100);
  AddMessage(arguments, core::MessageType::Info, message::kAbortedBySystemEvent);
  return true;
}

std::string RaidAbstractTest::Translate(const char* key) {
  return QCoreApplication::translate(kTranslationContext, key).toStdString();
}

void RaidAbstractTest::AddMessage(core::RunArguments& arguments, core::MessageType type, std::string text) {
  arguments.reporter->AddMessage({type, std::move(text)});
}

void RaidAbstractTest::AddMessage(core::RunArguments& arguments, core::MessageType type, const char* key,
                                  const std::string& value) {
  AddMessage(arguments, type, std::string(key) + ": " + value);
}

core::TestDescriptor QuickDescriptor(std::uint32_t id, const char* nameKey, const char* groupKey) {
  return {.id = id,
          .nameKey = nameKey,
          .tooltipKey = std::string(nameKey) + "_TOOLTIP",
          .parameters = {},
          .groupKey = groupKey,
          .groupKind = kQuickGroup,
          .auxText1 = {},
          .auxText2 = {},
          .auxFlag = false};
}

}  // namespace orvik::module::raid
