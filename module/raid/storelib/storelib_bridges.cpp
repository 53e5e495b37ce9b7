#include "module/raid/storelib/storelib_bridges.h"

#include <algorithm>
#include <bit>
#include <utility>

#include "module/raid/family/pass_through.h"

namespace orvik::module::raid {

namespace {

using storage::Direction;
using utils::ByteView;
using utils::MutableByteView;

// The registers that make the controller treat a command specially.
constexpr std::uint8_t kIdentifyDevice = 0xEC;
constexpr std::uint8_t kExecuteOffLineImmediate = 0xD4;

constexpr DirectionCodes kDirections{
    .in = lsi::direction::kIn, .out = lsi::direction::kOut, .none = lsi::direction::kNone};

std::uint8_t DirectionByte(Direction direction) {
  return static_cast<std::uint8_t>(kDirections.Of(direction));
}

HANDLE AsHandle(std::uint32_t controllerId) {
  return std::bit_cast<HANDLE>(std::uintptr_t{controllerId});
}

std::uint32_t ControllerIdOf(HANDLE handle) {
  return static_cast<std::uint32_t>(std::bit_cast<std::uintptr_t>(handle));
}

/// The smaller of frame capacity and reported length.
ByteView ReturnedData(ByteView frame, std::size_t offset, std::size_t reported) {
  return frame.Sub({offset, std::min(reported, frame.Size() - offset)});
}

void FillFrame(MutableByteView frame, std::uint16_t deviceId, const storage::ScsiCmd& command) {
  using namespace lsi::scsi_frame;
  const std::size_t cdbLength = std::min<std::size_t>(command.cdbLength, command.cdb.size());
  frame.Put(kDeviceId, deviceId);
  frame.Put(kUnit, 1);
  frame.Put(kDirection, DirectionByte(command.direction));
  frame.Put(kTimeout, lsi::kTimeoutSeconds);
  frame.Put(kCdbLength, static_cast<std::uint8_t>(cdbLength));
  frame.PutBytes(kCdb, std::span(command.cdb).first(cdbLength));
  frame.Put(kDataLength, static_cast<std::uint32_t>(command.length));
  PutDataOut(frame, kData, command);
}

std::uint32_t Flags(const storage::AtaCmd& command) {
  using namespace lsi::sata_frame;
  constexpr DirectionCodes kFlagsOf{.in = kDataIn, .out = kDataOut, .none = kNoData};
  std::uint32_t flags = kFlagsOf.Of(command.direction);
  if (command.command == kIdentifyDevice) flags |= kIdentify;
  if (storage::Current(command.features) == kExecuteOffLineImmediate) flags |= kOffLineImmediate;
  return flags;
}

void FillFrame(MutableByteView frame, std::uint8_t deviceId, const storage::AtaCmd& command) {
  using namespace lsi::sata_frame;
  frame.Put(kDeviceId, deviceId);
  frame.Put(kDirection, DirectionByte(command.direction));
  frame.Put(kTimeout, lsi::kTimeoutSeconds);
  frame.Put(kFlags, Flags(command));
  const MutableByteView fis = frame.Sub(kCommandFis);
  PutCommandFis(fis, command);
  fis.Put(command_fis::kDevice, 0);  // the controller addresses the drive itself
  frame.Put(kFisAreaLength, static_cast<std::uint32_t>(kCommandFis.size));
  frame.Put(kDataLength, static_cast<std::uint32_t>(command.length));
  PutDataOut(frame, kData, command);
}

void TakeSense(ByteView frame, storage::ScsiCmd& command) {
  const ByteView sense = frame.Sub(lsi::scsi_frame::kSense);
  MutableByteView(command.sense).PutBytes({0, command.sense.size()}, sense.Bytes());
  command.senseLength = sense.Size();
}

}  // namespace

LsiCommand FrameScsiCommand(std::uint32_t controllerId, std::uint16_t deviceId, const storage::ScsiCmd& command) {
  LsiCommand request = PassThroughCommand(lsi::code::kScsiPassThrough, controllerId, deviceId,
                                          lsi::scsi_frame::kData + command.length);
  FillFrame(request.DataWriter(), deviceId, command);
  return request;
}

void TakeScsiReply(const LsiCommand& request, bool failed, storage::ScsiCmd& command) {
  const ByteView frame = request.Data();
  if (failed) {
    TakeSense(frame, command);
  } else if (command.direction == Direction::kIn && request.DataSize() != 0 && command.buffer != nullptr) {
    const std::uint32_t received = frame.Get(lsi::scsi_frame::kDataLength);
    storage::DeliverData(command, ReturnedData(frame, lsi::scsi_frame::kData, received));
    // The library counts the frame too, so limit the length to the buffer.
    command.length = std::min<std::uint64_t>(command.length, request.DataSize());
  }
  command.status = frame.Get(lsi::scsi_frame::kScsiStatus);
}

LsiCommand FrameAtaCommand(std::uint32_t controllerId, std::uint8_t deviceId, const storage::AtaCmd& command) {
  LsiCommand request = PassThroughCommand(lsi::code::kSataPassThrough, controllerId, deviceId,
                                          lsi::sata_frame::kData + command.length);
  FillFrame(request.DataWriter(), deviceId, command);
  return request;
}

bool IsCompleted(const LsiCommand& ataFrame) {
  return ataFrame.Data().Get(lsi::sata_frame::kCompletionStatus) == 0;
}

void TakeAtaReply(const LsiCommand& request, storage::AtaCmd& command) {
  const ByteView frame = request.Data();
  TakeCurrentRegisters(frame.Sub(lsi::sata_frame::kStatusFis), command);
  const std::uint32_t received = frame.Get(lsi::sata_frame::kDataLength);
  storage::DeliverData(command, ReturnedData(frame, lsi::sata_frame::kData, received));
  command.length = std::min<std::uint64_t>(command.length, received);
}

LsiSspBridge::LsiSspBridge(std::uint32_t controllerId, std::uint16_t driveId,
                           std::shared_ptr<LsiSender> librarySender)
    : ScsiBridge(AsHandle(controllerId)), deviceId_(driveId), sender_(std::move(librarySender)) {}

storage::Status LsiSspBridge::Send(storage::ScsiCmd& command) {
  if (sender_ == nullptr) return storage::status::kFailure;
  LsiCommand frame = FrameScsiCommand(ControllerIdOf(GetHandle()), deviceId_, command);
  const bool failed = sender_->SendCommand(frame) != 0;
  TakeScsiReply(frame, failed, command);
  return failed ? storage::status::kFailure : storage::status::kSuccess;
}

LsiStpBridge::LsiStpBridge(std::uint32_t controllerId, std::uint8_t driveId, std::shared_ptr<LsiSender> librarySender)
    : AtaBridge(AsHandle(controllerId)), deviceId_(driveId), sender_(std::move(librarySender)) {}

storage::Status LsiStpBridge::Send(storage::AtaCmd& command) {
  if (sender_ == nullptr) return storage::status::kFailure;
  LsiCommand frame = FrameAtaCommand(ControllerIdOf(GetHandle()), deviceId_, command);
  if (sender_->SendCommand(frame) != 0 || !IsCompleted(frame)) return storage::status::kIoctlFailed;
  TakeAtaReply(frame, command);
  return storage::status::kSuccess;
}

}  // namespace orvik::module::raid
