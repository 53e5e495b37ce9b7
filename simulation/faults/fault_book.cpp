#include "simulation/faults/fault_book.h"

#include <algorithm>
#include <array>
#include <utility>

namespace orvik::simulation {

namespace {

constexpr std::array<std::string_view, 12> kOutsideCalls = {
    "CreateFileW",
    "DeviceIoControl",
    "GetProcAddress",
    "LoadLibraryW",
    "ProcessLibCommand",
    "RegGetValueW",
    "SetupDiEnumDeviceInfo",
    "SetupDiEnumDeviceInterfaces",
    "SetupDiGetClassDevsW",
    "SetupDiGetDeviceInstanceIdW",
    "SetupDiGetDeviceInterfaceDetailW",
    "SetupDiGetDeviceRegistryPropertyW",
};

void Merge(FaultEffects& into, const FaultEffects& from) {
  if (from.delayMilliseconds) into.delayMilliseconds = from.delayMilliseconds;
  if (from.error && !into.error) into.error = from.error;
  if (from.returnCode) into.returnCode = from.returnCode;
  if (from.garbleSeed) into.garbleSeed = from.garbleSeed;
  if (from.truncateTo) into.truncateTo = from.truncateTo;
  into.patches.insert(into.patches.end(), from.patches.begin(), from.patches.end());
}

}  // namespace

bool IsOutsideCall(std::string_view operation) {
  return std::ranges::find(kOutsideCalls, operation) != kOutsideCalls.end();
}

void FaultBook::Add(FaultRule rule) {
  const std::scoped_lock lock(mutex_);
  rules_.push_back({std::move(rule)});
}

void FaultBook::AskForEach(FaultSource source) {
  const std::scoped_lock lock(mutex_);
  source_ = std::move(source);
}

void FaultBook::FailCall(std::uint64_t n, std::uint32_t error) {
  Add({.operation = std::string(kEveryOutsideCall), .call = n, .effects = {.error = error}});
}

void FaultBook::FailEvery(std::string_view operation, std::uint32_t error) {
  Add({.operation = std::string(operation), .effects = {.error = error}});
}

void FaultBook::Clear() {
  const std::scoped_lock lock(mutex_);
  rules_.clear();
  source_ = nullptr;
}

std::uint64_t FaultBook::CallsMade(std::string_view operation) const {
  const std::scoped_lock lock(mutex_);
  const auto found = calls_.find(operation);
  return found == calls_.end() ? 0 : found->second;
}

FaultEffects FaultBook::OnCall(std::initializer_list<std::string_view> names) {
  std::vector<std::string_view> known;
  std::ranges::copy_if(names, std::back_inserter(known), [](auto name) { return !name.empty(); });
  if (std::ranges::any_of(known, IsOutsideCall)) known.push_back(kEveryOutsideCall);

  const std::scoped_lock lock(mutex_);
  for (const std::string_view name : known) ++calls_[std::string(name)];
  FaultEffects effects;
  for (ActiveRule& active : rules_) {
    if (std::ranges::find(known, active.rule.operation) == known.end()) continue;
    ++active.seen;
    if (active.rule.call.value_or(active.seen) == active.seen) Merge(effects, active.rule.effects);
  }
  if (source_) Merge(effects, source_(known));
  return effects;
}

}  // namespace orvik::simulation
