#include "module/raid/storelib/storelib_command.h"

#include <bit>

namespace orvik::module::raid {

LsiCommand::LsiCommand(const lsi::Code& code, std::size_t dataSize) : data_(dataSize) {
  Writer().Put(lsi::packet::kType, code.type);
  Writer().Put(lsi::packet::kCommand, code.command);
  Writer().Put(lsi::packet::kDataSize, static_cast<std::uint32_t>(dataSize));
  // The address stays right when the command is moved: the block moves along without being copied.
  if (dataSize != 0) Writer().Put(lsi::packet::kDataAddress, std::bit_cast<std::uintptr_t>(data_.data()));
}

LsiCommand ControllerCommand(const lsi::Code& code, std::uint32_t controllerId) {
  LsiCommand command(code);
  command.Writer().Put(lsi::packet::kControllerId, controllerId);
  return command;
}

LsiCommand DriveCommand(const lsi::Code& code, std::uint32_t controllerId, std::uint16_t deviceId) {
  return PassThroughCommand(code, controllerId, deviceId, code.dataSize);
}

LsiCommand LogicalDriveCommand(const lsi::Code& code, std::uint32_t controllerId, std::uint8_t targetId,
                               std::uint16_t sequenceNumber) {
  LsiCommand command = ControllerCommand(code, controllerId);
  command.Writer().Put(lsi::packet::kSequenceNumber, sequenceNumber);
  command.Writer().Put(lsi::packet::kTargetId, targetId);
  return command;
}

LsiCommand PassThroughCommand(const lsi::Code& code, std::uint32_t controllerId, std::uint16_t deviceId,
                              std::size_t frameSize) {
  LsiCommand command(code, frameSize);
  command.Writer().Put(lsi::packet::kControllerId, controllerId);
  command.Writer().Put(lsi::packet::kDeviceId, deviceId);
  return command;
}

}  // namespace orvik::module::raid
