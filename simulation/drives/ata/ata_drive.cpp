#include "simulation/drives/ata/ata_drive.h"

#include <algorithm>
#include <array>
#include <utility>

#include "simulation/drives/ata/ata_registers.h"

namespace orvik::simulation {

namespace {

// The sector count register after CHECK POWER MODE.
constexpr std::uint8_t kStandby = 0x00;
constexpr std::uint8_t kIdle = 0x80;
constexpr std::uint8_t kActiveOrIdle = 0xFF;

}  // namespace

AtaDrive::AtaDrive(SataDriveDescription description, std::shared_ptr<const Clock> clock)
    : description_(std::move(description)),
      identify_(description_.identify.empty() ? MakeIdentifyData(description_) : description_.identify),
      features_(FeaturesOf(identify_)),
      clock_(std::move(clock)),
      store_(features_.sectors, features_.sectorSize, description_.unreadableSectors),
      smartEnabled_(features_.smartEnabled),
      powerMode_(kActiveOrIdle),
      selfTests_(description_.selfTest, description_.powerOnHours, clock_) {}

std::span<const AtaDrive::Command> AtaDrive::Commands() {
  using enum DataDirection;
  static constexpr std::array<Command, 11> kCommands = {{
      {0x20, In, false, &AtaDrive::ReadSectors},
      {0x24, In, true, &AtaDrive::ReadSectors},
      {0x2F, In, false, &AtaDrive::ReadLogExt},
      {0x30, Out, false, &AtaDrive::WriteSectors},
      {0x34, Out, true, &AtaDrive::WriteSectors},
      {0x45, None, true, &AtaDrive::WriteUncorrectableExt},
      {0xB0, In, false, &AtaDrive::Smart},  // the data direction depends on the feature
      {0xE0, None, false, &AtaDrive::StandbyImmediate},
      {0xE1, None, false, &AtaDrive::IdleImmediate},
      {0xE5, None, false, &AtaDrive::CheckPowerMode},
      {0xEC, In, false, &AtaDrive::IdentifyDevice},
  }};
  return kCommands;
}

const AtaDrive::Command* AtaDrive::Find(std::uint8_t code) {
  const auto commands = Commands();
  const auto found = std::ranges::find(commands, code, &Command::code);
  return found == commands.end() ? nullptr : &*found;
}

DataDirection AtaDrive::DirectionOf(const AtaTaskFile& command) {
  const Command* known = Find(command.command);
  if (known == nullptr) return DataDirection::None;
  if (known->execute == &AtaDrive::Smart && !IsSmartRead(command)) return DataDirection::None;
  return known->direction;
}

std::optional<AtaCompletion> AtaDrive::Execute(const AtaTaskFile& command, std::span<std::uint8_t> data) {
  if (description_.silent) return std::nullopt;
  const std::scoped_lock lock(mutex_);
  clock_->Wait(description_.commandMilliseconds);
  const auto& refused = description_.unsupportedOpcodes;
  const Command* known = Find(command.command);
  if (known == nullptr || (known->extended && !features_.lba48)) return Aborted(command);
  if (std::ranges::find(refused, command.command) != refused.end()) return Aborted(command);
  return (this->*known->execute)(command, data);
}

// Given data is returned unchanged; generated data shows the current settings.
AtaCompletion AtaDrive::IdentifyDevice(const AtaTaskFile& command, Data data) {
  if (!description_.identify.empty()) return Delivered(command, identify_, data);
  return Delivered(command, WithSmartEnabled(identify_, smartEnabled_), data);
}

// NOLINTNEXTLINE(readability-make-member-function-const): commands have one signature
AtaCompletion AtaDrive::CheckPowerMode(const AtaTaskFile& command, Data /*data*/) {
  AtaCompletion completion = Completed(command);
  completion.count = powerMode_;
  return completion;
}

AtaCompletion AtaDrive::IdleImmediate(const AtaTaskFile& command, Data /*data*/) {
  powerMode_ = kIdle;
  return Completed(command);
}

// Spinning down aborts a running self-test.
AtaCompletion AtaDrive::StandbyImmediate(const AtaTaskFile& command, Data /*data*/) {
  selfTests_.Abort();
  powerMode_ = kStandby;
  return Completed(command);
}

}  // namespace orvik::simulation
