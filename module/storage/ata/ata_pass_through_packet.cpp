#include "module/storage/ata/ata_pass_through_packet.h"

#include <algorithm>

#include "module/storage/ata/ata_commands.h"

namespace orvik::module::storage {

namespace {

using utils::Block;
using utils::ByteView;
using utils::Le16;
using utils::Le32;
using utils::Le64;
using utils::MutableByteView;
using utils::U8;

/// ATA_PASS_THROUGH_EX on 64-bit Windows.
namespace packet {
constexpr Le16 kLength{0};
constexpr Le16 kAtaFlags{2};
constexpr Le32 kDataTransferLength{8};
constexpr Le32 kTimeOutValue{12};  // seconds
constexpr Le64 kDataBufferOffset{24};
constexpr Block kPreviousTaskFile{32, 8};
constexpr Block kCurrentTaskFile{40, 8};
constexpr std::uint16_t kSize = 48;
// One byte more than is exchanged, so that a packet without data is followed by a byte too.
constexpr std::size_t kSpare = 1;
}  // namespace packet

namespace ata_flags {
constexpr unsigned kDeviceReadyRequired = 0x01;
constexpr unsigned kDataIn = 0x02;
constexpr unsigned kDataOut = 0x04;
constexpr unsigned k48BitCommand = 0x08;
constexpr unsigned kNoMultiple = 0x20;
}  // namespace ata_flags

/// The register bytes of a task file.
namespace task_file {
constexpr U8 kFeatures{0};  // returned: ERROR
constexpr U8 kSectorCount{1};
constexpr U8 kLbaLow{2};
constexpr U8 kLbaMid{3};
constexpr U8 kLbaHigh{4};
constexpr U8 kDevice{5};
constexpr U8 kCommand{6};  // returned: STATUS
}  // namespace task_file

std::uint16_t Flags(const AtaCmd& command) {
  unsigned flags = ata_flags::kDeviceReadyRequired;
  if (Is48BitCommand(command.command)) flags |= ata_flags::k48BitCommand;
  if (IsSmartReadLog(command) && command.sectorCount > 1) flags |= ata_flags::kNoMultiple;
  if (command.direction == Direction::kIn) flags |= ata_flags::kDataIn;
  if (command.direction == Direction::kOut) flags |= ata_flags::kDataOut;
  return static_cast<std::uint16_t>(flags);
}

void PutTaskFiles(MutableByteView view, const AtaCmd& command) {
  const MutableByteView previous = view.Sub(packet::kPreviousTaskFile);
  previous.Put(task_file::kSectorCount, Previous(command.sectorCount));
  previous.Put(task_file::kLbaLow, Previous(command.lbaLow));
  previous.Put(task_file::kLbaMid, Previous(command.lbaMid));
  previous.Put(task_file::kLbaHigh, Previous(command.lbaHigh));

  const MutableByteView current = view.Sub(packet::kCurrentTaskFile);
  current.Put(task_file::kFeatures, Current(command.features));
  current.Put(task_file::kSectorCount, Current(command.sectorCount));
  current.Put(task_file::kLbaLow, Current(command.lbaLow));
  current.Put(task_file::kLbaMid, Current(command.lbaMid));
  current.Put(task_file::kLbaHigh, Current(command.lbaHigh));
  current.Put(task_file::kDevice, command.device);
  current.Put(task_file::kCommand, command.command);
}

void TakeTaskFile(ByteView current, AtaCmd& command) {
  SetCurrent(command.features, current.Get(task_file::kFeatures));
  SetCurrent(command.sectorCount, current.Get(task_file::kSectorCount));
  SetCurrent(command.lbaLow, current.Get(task_file::kLbaLow));
  SetCurrent(command.lbaMid, current.Get(task_file::kLbaMid));
  SetCurrent(command.lbaHigh, current.Get(task_file::kLbaHigh));
  command.device = current.Get(task_file::kDevice);
  command.command = current.Get(task_file::kCommand);
}

}  // namespace

AtaPassThroughPacket::AtaPassThroughPacket(const AtaCmd& command)
    : buffer_(packet::kSize + static_cast<std::size_t>(command.length) + packet::kSpare) {
  const MutableByteView view(buffer_);
  view.Put(packet::kLength, packet::kSize);
  view.Put(packet::kAtaFlags, Flags(command));
  view.Put(packet::kDataTransferLength, static_cast<std::uint32_t>(command.length));
  view.Put(packet::kTimeOutValue, command.timeout);
  view.Put(packet::kDataBufferOffset, packet::kSize);
  PutTaskFiles(view, command);
  if (command.direction == Direction::kOut) {
    const auto data = DataOf(command);
    view.PutBytes({packet::kSize, data.size()}, data);
  }
}

Status AtaPassThroughPacket::TakeReply(AtaCmd& command) const {
  const ByteView view(buffer_);
  TakeTaskFile(view.Sub(packet::kCurrentTaskFile), command);
  if (command.direction != Direction::kIn || command.length == 0) return status::kSuccess;
  const std::uint32_t received = view.Get(packet::kDataTransferLength);
  if (received == 0) return status::kNoDataTransferred;
  command.length = std::min<std::uint64_t>(received, command.length);
  DeliverData(command, view.Sub({packet::kSize, static_cast<std::size_t>(command.length)}));
  return status::kSuccess;
}

}  // namespace orvik::module::storage
