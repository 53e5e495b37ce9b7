#include "simulation/drives/scsi/scsi_drive.h"

#include <algorithm>
#include <array>
#include <utility>

namespace orvik::simulation {

ScsiCompletion Deliver(std::span<const std::uint8_t> reply, std::size_t allocation, std::span<std::uint8_t> data) {
  const std::size_t size = std::min({reply.size(), allocation, data.size()});
  std::ranges::copy(reply.first(size), data.begin());
  return {.transferred = size};
}

ScsiDrive::ScsiDrive(SasDriveDescription description, std::shared_ptr<const Clock> clock)
    : description_(std::move(description)),
      clock_(std::move(clock)),
      store_(description_.sectors, description_.sectorSize, description_.unreadableSectors),
      exceptions_(description_.informationalExceptions),
      selfTests_(description_.selfTest, description_.powerOnHours, clock_) {}

std::span<const ScsiDrive::Command> ScsiDrive::Commands() {
  using enum DataDirection;
  static constexpr std::array<Command, 17> kCommands = {{
      {0x00, None, &ScsiDrive::TestUnitReady},
      {0x03, In, &ScsiDrive::RequestSense},
      {0x12, In, &ScsiDrive::Inquiry},
      {0x15, Out, &ScsiDrive::ModeSelect},
      {0x1A, In, &ScsiDrive::ModeSense},
      {0x1D, None, &ScsiDrive::SendDiagnostic},
      {0x25, In, &ScsiDrive::ReadCapacity10},
      {0x28, In, &ScsiDrive::ReadBlocks},
      {0x2A, Out, &ScsiDrive::WriteBlocks},
      {0x4D, In, &ScsiDrive::LogSense},
      {0x55, Out, &ScsiDrive::ModeSelect},
      {0x5A, In, &ScsiDrive::ModeSense},
      {0x88, In, &ScsiDrive::ReadBlocks},
      {0x8A, Out, &ScsiDrive::WriteBlocks},
      {0x9E, In, &ScsiDrive::ServiceActionIn16},
      {0xA8, In, &ScsiDrive::ReadBlocks},
      {0xAA, Out, &ScsiDrive::WriteBlocks},
  }};
  return kCommands;
}

const ScsiDrive::Command* ScsiDrive::Find(Cdb cdb) {
  const auto commands = Commands();
  const auto found = std::ranges::find(commands, Get(cdb, U8{0}), &Command::operation);
  return found == commands.end() ? nullptr : &*found;
}

DataDirection ScsiDrive::DirectionOf(std::span<const std::uint8_t> cdb) {
  const Command* known = Find(cdb);
  return known == nullptr ? DataDirection::None : known->direction;
}

std::optional<ScsiCompletion> ScsiDrive::Execute(std::span<const std::uint8_t> cdb, std::span<std::uint8_t> data) {
  if (description_.silent) return std::nullopt;
  const std::scoped_lock lock(mutex_);
  clock_->Wait(description_.commandMilliseconds);
  const auto& refused = description_.unsupportedOpcodes;
  const Command* known = Find(cdb);
  if (known == nullptr || std::ranges::find(refused, known->operation) != refused.end()) {
    return Refuse({.code = kInvalidOperationCode});
  }
  return (this->*known->execute)(cdb, data);
}

ScsiCompletion ScsiDrive::Refuse(const Sense& sense) const {
  const auto format = description_.descriptorSense ? SenseFormat::Descriptor : SenseFormat::Fixed;
  return {.status = kScsiCheckCondition, .sense = MakeSenseData(sense, format)};
}

ScsiCompletion ScsiDrive::RefuseField(U8 field) const {
  return Refuse({.code = kInvalidFieldInCdb, .field = static_cast<std::uint16_t>(field.offset)});
}

ScsiCompletion ScsiDrive::TestUnitReady(Cdb /*cdb*/, Data /*data*/) {
  return {};
}

}  // namespace orvik::simulation
