#include "module/raid/storelib/storelib_frames.h"

#include <algorithm>

#include "module/raid/family/register_fis.h"

namespace orvik::module::raid {

namespace {

using storage::Direction;
using utils::ByteView;
using utils::MutableByteView;

// The registers that make the controller treat a command specially.
constexpr std::uint8_t kIdentifyDevice = 0xEC;
constexpr std::uint8_t kExecuteOffLineImmediate = 0xD4;

std::uint8_t DirectionByte(Direction direction) {
  switch (direction) {
    case Direction::kIn: return lsi::direction::kIn;
    case Direction::kOut: return lsi::direction::kOut;
    case Direction::kNone: break;
  }
  return lsi::direction::kNone;
}

/// At most as much data as the frame holds and as the library says that came.
ByteView ReturnedData(ByteView frame, std::size_t offset, std::size_t reported) {
  return frame.Sub({offset, std::min(reported, frame.Size() - offset)});
}

template <typename Command>
void PutDataOut(MutableByteView frame, std::size_t offset, const Command& command) {
  if (command.direction != Direction::kOut) return;
  const auto data = storage::DataOf(command);
  frame.PutBytes({offset, data.size()}, data);
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
  std::uint32_t flags = kNoData;
  if (command.direction == Direction::kIn) flags = kDataIn;
  if (command.direction == Direction::kOut) flags = kDataOut;
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

void TakeRegisters(ByteView fis, storage::AtaCmd& command) {
  storage::SetCurrent(command.features, fis.Get(status_fis::kError));
  storage::SetCurrent(command.sectorCount, fis.Get(status_fis::kSectorCount));
  storage::SetCurrent(command.lbaLow, fis.Get(status_fis::kLbaLow));
  storage::SetCurrent(command.lbaMid, fis.Get(status_fis::kLbaMid));
  storage::SetCurrent(command.lbaHigh, fis.Get(status_fis::kLbaHigh));
  command.device = fis.Get(status_fis::kDevice);
  command.command = fis.Get(status_fis::kStatus);
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
    // The library counts the frame as well; no more than the buffer can have come.
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
  TakeRegisters(frame.Sub(lsi::sata_frame::kStatusFis), command);
  const std::uint32_t received = frame.Get(lsi::sata_frame::kDataLength);
  storage::DeliverData(command, ReturnedData(frame, lsi::sata_frame::kData, received));
  command.length = std::min<std::uint64_t>(command.length, received);
}

}  // namespace orvik::module::raid
