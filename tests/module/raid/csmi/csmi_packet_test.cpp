#include "module/raid/csmi/csmi_packet.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <numeric>

#include "module/storage/scsi/scsi_commands.h"

namespace orvik::module::raid {
namespace {

using Bytes = std::vector<std::uint8_t>;

Bytes Slice(const CsmiPacket& packet, std::size_t offset, std::size_t size) {
  const auto bytes = packet.View().Bytes().subspan(offset, size);
  return {bytes.begin(), bytes.end()};
}

Bytes PhyEntry() {
  Bytes entry(64);
  entry[20] = 3;
  entry[28] = 4;
  entry[36] = 0x10;
  std::iota(entry.begin() + 48, entry.begin() + 56, std::uint8_t{0xA0});
  return entry;
}

void ExpectHeader(const CsmiPacket& packet, const std::string& signature, std::uint8_t code, std::size_t size) {
  ASSERT_EQ(packet.View().Size(), size);
  const auto length = static_cast<std::uint32_t>(size - 28);
  Bytes header(28);
  header[0] = 28;
  std::ranges::copy(signature, header.begin() + 4);
  header[12] = 60;
  header[16] = code;
  header[24] = static_cast<std::uint8_t>(length);
  header[25] = static_cast<std::uint8_t>(length >> 8);
  EXPECT_EQ(Slice(packet, 0, 28), header);
}

TEST(CsmiPacketTest, EveryPacketHasItsHeader) {
  ExpectHeader(ControllerConfigurationPacket(), "CSMIALL", 2, 208);
  ExpectHeader(ControllerStatusPacket(), "CSMIALL", 3, 64);
  ExpectHeader(PhyInformationPacket(), "CSMISAS", 20, 2080);
  ExpectHeader(RaidInformationPacket(), "CSMIARY", 10, 128);
  ExpectHeader(RaidConfigurationPacket(2, 4), "CSMIARY", 11, 608);
  ExpectHeader(RaidConfigurationPacket(2, 4000), "CSMIARY", 11, 64 + 136 * 255);
  EXPECT_EQ(Slice(RaidConfigurationPacket(0x0102, 4), 28, 4), (Bytes{2, 1, 0, 0}));
}

TEST(CsmiPacketTest, SspCarriesACdb) {
  Bytes data(36);
  const Bytes entry = PhyEntry();
  const SspPassThroughPacket packet(storage::Inquiry(data.data(), 36, false, 0), utils::ByteView(entry));
  ExpectHeader(packet, "CSMISAS", 24, 408);
  EXPECT_EQ(Slice(packet, 28, 12), (Bytes{3, 4, 0, 0, 0xA0, 0xA1, 0xA2, 0xA3, 0xA4, 0xA5, 0xA6, 0xA7}));
  EXPECT_EQ(Slice(packet, 48, 10), (Bytes{6, 0, 0, 0, 0x12, 0, 0, 0, 36, 0}));
  EXPECT_EQ(Slice(packet, 68, 4), (Bytes{1, 0, 0, 0}));
  EXPECT_EQ(Slice(packet, 96, 4), (Bytes{36, 0, 0, 0}));
  EXPECT_EQ(packet.Data().Size(), 36U);
  EXPECT_EQ(packet.Data().Bytes().data(), packet.Buffer() + 368);
}

TEST(CsmiPacketTest, SspCarriesDataOutAndCommandsWithoutData) {
  Bytes data = {1, 2, 3, 4};
  storage::ScsiCmd command;
  command.cdbLength = 200;
  command.direction = storage::Direction::kOut;
  command.buffer = data.data();
  command.length = data.size();
  const Bytes entry = PhyEntry();
  const SspPassThroughPacket out(command, utils::ByteView(entry));
  EXPECT_EQ(out.View().Get(utils::U8{48}), 16);
  EXPECT_EQ(Slice(out, 68, 4), (Bytes{2, 0, 0, 0}));
  EXPECT_EQ(Slice(out, 368, 4), data);
  const SspPassThroughPacket none(storage::ScsiCmd{}, utils::ByteView(entry));
  ExpectHeader(none, "CSMISAS", 24, 372);
  EXPECT_EQ(Slice(none, 68, 4), (Bytes{4, 0, 0, 0}));
}

TEST(CsmiPacketTest, StpCarriesARegisterFis) {
  Bytes data(512);
  storage::AtaCmd command;
  command.command = 0x24;
  command.features = 0x1101;
  command.lbaLow = 0x1202;
  command.lbaMid = 0x1303;
  command.lbaHigh = 0x1404;
  command.sectorCount = 0x1505;
  command.device = 0x40;
  command.direction = storage::Direction::kIn;
  command.length = data.size();
  command.buffer = data.data();
  const Bytes entry = PhyEntry();
  const StpPassThroughPacket packet(command, utils::ByteView(entry));
  ExpectHeader(packet, "CSMISAS", 25, 680);
  EXPECT_EQ(Slice(packet, 28, 12), (Bytes{3, 4, 0, 0, 0xA0, 0xA1, 0xA2, 0xA3, 0xA4, 0xA5, 0xA6, 0xA7}));
  EXPECT_EQ(Slice(packet, 44, 20), (Bytes{0x27, 0x80, 0x24, 0x01, 0x02, 0x03, 0x04, 0x40, 0x12, 0x13,
                                          0x14, 0x11, 0x05, 0x15, 0,    0,    0,    0,    0,    0}));
  EXPECT_EQ(Slice(packet, 64, 8), (Bytes{0x11, 0, 0, 0, 0, 2, 0, 0}));
  EXPECT_EQ(packet.Data().Bytes().data(), packet.Buffer() + 164);
}

}  // namespace
}  // namespace orvik::module::raid
