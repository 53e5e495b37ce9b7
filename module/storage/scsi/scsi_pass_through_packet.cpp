#include "module/storage/scsi/scsi_pass_through_packet.h"

#include <algorithm>

namespace orvik::module::storage {

namespace {

using utils::Block;
using utils::ByteView;
using utils::Le16;
using utils::Le32;
using utils::Le64;
using utils::MutableByteView;
using utils::U8;

/// SCSI_PASS_THROUGH on 64-bit Windows, the sense area right behind it and the data behind that.
namespace packet {
constexpr Le16 kLength{0};
constexpr U8 kScsiStatus{2};
constexpr U8 kCdbLength{6};
constexpr U8 kSenseInfoLength{7};
constexpr U8 kDataIn{8};
constexpr Le32 kDataTransferLength{12};
constexpr Le32 kTimeOutValue{16};  // seconds
constexpr Le64 kDataBufferOffset{24};
constexpr Le32 kSenseInfoOffset{32};
constexpr Block kCdb{36, 16};
constexpr std::uint16_t kSize = 56;
constexpr Block kSense{kSize, 32};
constexpr std::uint32_t kData = 88;
static_assert(kSense.offset + kSense.size == kData);
}  // namespace packet

/// SCSI_IOCTL_DATA_OUT, _IN and _UNSPECIFIED.
std::uint8_t DataIn(Direction direction) {
  switch (direction) {
    case Direction::kIn: return 1;
    case Direction::kOut: return 0;
    case Direction::kNone: break;
  }
  return 2;
}

}  // namespace

ScsiPassThroughPacket::ScsiPassThroughPacket(const ScsiCmd& command, std::int32_t spare)
    : exchanged_(packet::kData + static_cast<std::size_t>(command.length)),
      buffer_(exchanged_ + static_cast<std::size_t>(std::max(spare, 0))) {
  const MutableByteView view(buffer_);
  view.Put(packet::kLength, packet::kSize);
  view.Put(packet::kCdbLength, command.cdbLength);
  view.Put(packet::kSenseInfoLength, packet::kSense.size);
  view.Put(packet::kDataIn, DataIn(command.direction));
  view.Put(packet::kDataTransferLength, static_cast<std::uint32_t>(command.length));
  view.Put(packet::kTimeOutValue, command.timeout);
  view.Put(packet::kDataBufferOffset, packet::kData);
  view.Put(packet::kSenseInfoOffset, packet::kSense.offset);
  view.PutBytes(packet::kCdb, command.cdb);
  if (command.direction == Direction::kOut) {
    const auto data = DataOf(command);
    view.PutBytes({packet::kData, data.size()}, data);
  }
}

void ScsiPassThroughPacket::TakeReply(ScsiCmd& command) const {
  const ByteView view(buffer_);
  command.length = std::min<std::uint64_t>(view.Get(packet::kDataTransferLength), command.length);
  if (command.direction == Direction::kIn) {
    DeliverData(command, view.Sub({packet::kData, static_cast<std::size_t>(command.length)}));
  }
  std::ranges::copy(view.Sub(packet::kSense).Bytes(), command.sense.begin());
  command.senseLength = std::min<std::size_t>(view.Get(packet::kSenseInfoLength), packet::kSense.size);
  command.status = view.Get(packet::kScsiStatus);
}

}  // namespace orvik::module::storage
