#include "module/raid/csmi/csmi_bridges.h"

#include <algorithm>

#include "module/raid/family/pass_through.h"

namespace orvik::module::raid {

namespace {

using storage::Direction;
using utils::ByteView;

PhyEntry CopyEntry(ByteView phyEntry) {
  PhyEntry copy{};
  utils::MutableByteView(copy).PutBytes({0, copy.size()}, phyEntry.Bytes());
  return copy;
}

}  // namespace

void TakeScsiStatus(ByteView packet, storage::ScsiCmd& command) {
  const std::size_t reported = packet.Get(csmi::ssp::kResponseLength);
  if (packet.Get(csmi::ssp::kDataPresent) == csmi::ssp::kSensePresent && reported != 0) {
    const auto sense = packet.Sub(csmi::ssp::kResponse).Bytes();
    const std::size_t length = std::min({reported, sense.size(), command.sense.size()});
    utils::MutableByteView(command.sense).PutBytes({0, length}, sense);
    command.senseLength = length;
  }
  command.status = packet.Get(csmi::ssp::kScsiStatus);
}

CsmiSspBridge::CsmiSspBridge(HANDLE port, ByteView phyEntry) : ScsiBridge(port), phyEntry_(CopyEntry(phyEntry)) {}

storage::Status CsmiSspBridge::Send(storage::ScsiCmd& command) {
  SspPassThroughPacket packet(command, ByteView(phyEntry_));
  const storage::Status sent = SendCsmiPacket(GetHandle(), packet);
  if (sent.Ok() && command.direction == Direction::kIn) {
    storage::DeliverData(command, packet.Data());
  }
  TakeScsiStatus(packet.View(), command);
  return sent;
}

CsmiStpBridge::CsmiStpBridge(HANDLE port, ByteView phyEntry) : AtaBridge(port), phyEntry_(CopyEntry(phyEntry)) {}

storage::Status CsmiStpBridge::Send(storage::AtaCmd& command) {
  StpPassThroughPacket packet(command, ByteView(phyEntry_));
  const storage::Status sent = SendCsmiPacket(GetHandle(), packet);
  if (sent.Ok() && command.direction == Direction::kIn) {
    storage::DeliverData(command, packet.Data());
  }
  TakeAllRegisters(packet.StatusFis(), command);
  return sent;
}

}  // namespace orvik::module::raid
