#pragma once

// Raw CSMI packets, put together byte by byte: offsets are written out, so that an error in the layouts of the
// simulated controller cannot cancel itself out.

#include <cstddef>
#include <cstdint>
#include <initializer_list>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "simulation/csmi/csmi_controller.h"

namespace orvik::simulation {

using Bytes = std::vector<std::uint8_t>;

inline void PutLe(Bytes& packet, std::size_t offset, std::size_t width, std::uint64_t value) {
  for (std::size_t i = 0; i < width; ++i) packet.at(offset + i) = static_cast<std::uint8_t>(value >> (8 * i));
}

inline std::uint64_t Le(const Bytes& packet, std::size_t offset, std::size_t width) {
  std::uint64_t value = 0;
  for (std::size_t i = width; i-- > 0;) value = value << 8 | packet.at(offset + i);
  return value;
}

inline std::uint64_t Be(const Bytes& packet, std::size_t offset, std::size_t width) {
  std::uint64_t value = 0;
  for (std::size_t i = 0; i < width; ++i) value = value << 8 | packet.at(offset + i);
  return value;
}

inline std::string Text(const Bytes& packet, std::size_t offset, std::size_t width) {
  return {packet.begin() + static_cast<std::ptrdiff_t>(offset),
          packet.begin() + static_cast<std::ptrdiff_t>(offset + width)};
}

inline Bytes Packet(std::string_view signature, std::uint32_t controlCode, std::size_t size) {
  Bytes packet(size);
  PutLe(packet, 0, 4, 28);
  for (std::size_t i = 0; i < signature.size(); ++i) packet.at(4 + i) = static_cast<std::uint8_t>(signature[i]);
  PutLe(packet, 12, 4, 60);
  PutLe(packet, 16, 4, controlCode);
  PutLe(packet, 24, 4, size - 28);
  return packet;
}

inline std::uint64_t ReturnCode(const Bytes& packet) {
  return Le(packet, 20, 4);
}

inline Bytes Answered(CsmiController& controller, Bytes packet) {
  controller.Answer(packet);
  return packet;
}

/// A request to the drive behind phy entry `phy` of a phy information packet; `dataOffset` is where data begins.
inline Bytes PassThrough(std::uint32_t controlCode, const Bytes& phyInfo, std::size_t phy, std::size_t size) {
  Bytes packet = Packet("CSMISAS", controlCode, size);
  const std::size_t entry = 32 + 64 * phy;
  packet.at(28) = phyInfo.at(entry + 20);
  packet.at(29) = phyInfo.at(entry + 28);
  for (std::size_t i = 0; i < 8; ++i) packet.at(32 + i) = phyInfo.at(entry + 48 + i);
  return packet;
}

inline Bytes SspRequest(const Bytes& phyInfo, std::size_t phy, std::initializer_list<std::uint8_t> cdb,
                        std::uint32_t dataLength) {
  Bytes packet = PassThrough(24, phyInfo, phy, 372 + dataLength);
  packet.at(48) = static_cast<std::uint8_t>(cdb.size());
  std::size_t offset = 52;
  for (const std::uint8_t byte : cdb) packet.at(offset++) = byte;
  PutLe(packet, 68, 4, dataLength == 0 ? 4 : 1);
  PutLe(packet, 96, 4, dataLength);
  return packet;
}

inline Bytes StpRequest(const Bytes& phyInfo, std::size_t phy, std::uint8_t command, std::uint32_t dataLength) {
  Bytes packet = PassThrough(25, phyInfo, phy, 168 + dataLength);
  packet.at(44) = 0x27;
  packet.at(45) = 0x80;
  packet.at(46) = command;
  packet.at(56) = 1;
  PutLe(packet, 64, 4, dataLength == 0 ? 0x14 : 0x11);
  PutLe(packet, 68, 4, dataLength);
  return packet;
}

inline Bytes PhyInfo(CsmiController& controller) {
  return Answered(controller, Packet("CSMISAS", 20, 2080));
}

}  // namespace orvik::simulation
