#pragma once

#include <array>
#include <cstdint>
#include <vector>

#include "module/raid/storelib/storelib_layout.h"
#include "utils/bytes/byte_view.h"

namespace orvik::module::raid {

/// One request to the vendor's library: the packet and the zeroed data block that it points to. The library reads and
/// writes both in place.
class LsiCommand {
 public:
  explicit LsiCommand(const lsi::Code& code) : LsiCommand(code, code.dataSize) {}
  LsiCommand(const lsi::Code& code, std::size_t dataSize);
  LsiCommand(LsiCommand&&) = default;
  LsiCommand& operator=(LsiCommand&&) = delete;
  LsiCommand(const LsiCommand&) = delete;
  LsiCommand& operator=(const LsiCommand&) = delete;
  ~LsiCommand() = default;

  std::array<std::uint8_t, lsi::packet::kSize>& Packet() { return packet_; }
  utils::MutableByteView Writer() { return {packet_}; }

  utils::ByteView Data() const { return {data_}; }
  utils::MutableByteView DataWriter() { return {data_}; }
  /// The packet's data size as it stands: what was asked for, or what the library made of it.
  std::uint32_t DataSize() const { return utils::ByteView(packet_).Get(lsi::packet::kDataSize); }

 private:
  std::array<std::uint8_t, lsi::packet::kSize> packet_{};
  std::vector<std::uint8_t> data_;
};

LsiCommand ControllerCommand(const lsi::Code& code, std::uint32_t controllerId);

/// Of a physical drive.
LsiCommand DriveCommand(const lsi::Code& code, std::uint32_t controllerId, std::uint16_t deviceId);

/// For commands that want no sequence number it is 0.
LsiCommand LogicalDriveCommand(const lsi::Code& code, std::uint32_t controllerId, std::uint8_t targetId,
                               std::uint16_t sequenceNumber = 0);

/// `frameSize`: of the frame with its data.
LsiCommand PassThroughCommand(const lsi::Code& code, std::uint32_t controllerId, std::uint16_t deviceId,
                              std::size_t frameSize);

}  // namespace orvik::module::raid
