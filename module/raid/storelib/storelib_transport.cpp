#include "module/raid/storelib/storelib_transport.h"

#include <hostkit.h>

#include <bit>
#include <stdexcept>

namespace orvik::module::raid {

namespace {

// The only mode that the host's loader knows.
constexpr std::int32_t kLoadMode = 1;

}  // namespace

LsiCommand::LsiCommand(const lsi::Code& code, std::size_t dataSize) : data_(dataSize) {
  Writer().Put(lsi::packet::kType, code.type);
  Writer().Put(lsi::packet::kCommand, code.command);
  Writer().Put(lsi::packet::kDataSize, static_cast<std::uint32_t>(dataSize));
  // Moving the command does not move the block, so the address stays valid.
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

LoadedLibrary::LoadedLibrary(const std::string& path) : handle_(get_module()->Load(path.c_str(), kLoadMode)) {}

LoadedLibrary::~LoadedLibrary() {
  if (handle_ != nullptr) get_module()->Unload(handle_);
}

LsiSender::LsiSender() : library_(std::string(get_filesystem()->LibraryDirectory()) + "\\storelib.dll") {
  if (library_.Get() == nullptr) throw std::runtime_error("Failed to open the library handle.");
  void* const entry = get_module()->FindSymbol(library_.Get(), "ProcessLibCommand");
  if (entry == nullptr) throw std::runtime_error("Failed to obtain the function pointer.");
  processLibCommand_ = std::bit_cast<ProcessLibCommand*>(entry);
  LsiCommand initialise(lsi::code::kInitialise);
  if (SendCommand(initialise) != 0) throw std::runtime_error("Failed to execute the LSI Init command.");
}

LsiSender::~LsiSender() {
  LsiCommand close(lsi::code::kClose);
  // The library is unloaded whether or not it closes cleanly.
  static_cast<void>(SendCommand(close));
}

std::uint32_t LsiSender::SendCommand(LsiCommand& command) const {
  return processLibCommand_(command.Packet().data());
}

}  // namespace orvik::module::raid
