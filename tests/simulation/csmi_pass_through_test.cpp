#include <tuple>

#include "tests/simulation/csmi_packets.h"

namespace orvik::simulation {
namespace {

// Phy 0 leads to a SATA drive, phy 1 to a SAS drive, 2 and 3 to such drives that do not answer, 4 to an expander,
// 5 to an SMP target, 6 to nothing.
class CsmiPassThrough : public testing::Test {
 protected:
  CsmiController controller{
      {.drives = {SataDriveDescription{.model = "ST4000OV001", .sectors = 100},
                  SasDriveDescription{.vendor = "ORVIK", .product = "SAS10K600", .sectors = 200},
                  SataDriveDescription{.sectors = 1, .silent = true},
                  SasDriveDescription{.sectors = 1, .silent = true}},
       .phys = {{.drive = 0},
                {.drive = 1},
                {.drive = 2},
                {.drive = 3},
                {.deviceType = SasDeviceType::EdgeExpander},
                {.deviceType = SasDeviceType::EndDevice, .protocol = SasProtocol::Smp},
                {}}}};
  Bytes phyInfo = Answered(controller, Packet("CSMISAS", 20, 2080));

  // A request to what is attached to a phy, by the phy's own numbers and address.
  Bytes Request(std::uint32_t controlCode, std::size_t phy, std::size_t size) {
    Bytes packet = Packet("CSMISAS", controlCode, size);
    const std::size_t entry = 32 + 64 * phy;
    packet.at(28) = phyInfo.at(entry + 20);
    packet.at(29) = phyInfo.at(entry + 28);
    std::ranges::copy(Slice(phyInfo, entry + 48, 8), packet.begin() + 32);
    return packet;
  }

  Bytes Ssp(std::size_t phy, const Bytes& cdb, std::uint32_t dataLength) {
    Bytes packet = Request(24, phy, 372 + dataLength);
    Put(packet, {48, 1, cdb.size()});
    Put(packet, {68, 4, dataLength == 0 ? 4U : 1U});
    Put(packet, {96, 4, dataLength});
    std::ranges::copy(cdb, packet.begin() + 52);
    return packet;
  }

  Bytes Stp(std::size_t phy, std::uint8_t command, std::uint32_t dataLength) {
    Bytes packet = Request(25, phy, 168 + dataLength);
    std::ranges::copy(Bytes{0x27, 0x80, command}, packet.begin() + 44);
    Put(packet, {64, 4, dataLength == 0 ? 0x14U : 0x11U});
    Put(packet, {68, 4, dataLength});
    return packet;
  }

  Bytes Send(const Bytes& packet) { return Answered(controller, packet); }
};

TEST_F(CsmiPassThrough, CarriesAtaCommands) {
  Bytes identify = Stp(0, 0xEC, 512);
  const Bytes reply = Send(identify);
  ExpectFields(reply, {{20, 4, 0}, {72, 1, 0}, {76, 4, 0x00504034}, {160, 4, 512}});
  EXPECT_EQ(Text(reply, 164 + 54, 10), "TS0400VO00");
  // Sent without a data direction it must not reach into the data area.
  Put(identify, {64, 4, 0x14});
  EXPECT_EQ(Slice(Send(identify), 160, 520), Bytes(520));

  Bytes refused = Stp(0, 0x42, 0);
  const Bytes registers = {0x11, 0x22, 0x33, 0x40, 0x44, 0x55, 0x66};
  std::ranges::copy(registers, refused.begin() + 48);
  Put(refused, {56, 2, 0x0201});
  const Bytes back = Send(refused);
  ExpectFields(back, {{20, 4, 0}, {78, 1, 0x51}, {79, 1, 0x04}, {88, 2, 0x0201}});
  EXPECT_EQ(Slice(back, 80, 7), registers);
}

TEST_F(CsmiPassThrough, CarriesScsiCommands) {
  const Bytes reply = Send(Ssp(1, {0x12, 0, 0, 0, 36, 0}, 36));
  ExpectFields(reply, {{20, 4, 0}, {100, 8, 0}, {364, 4, 36}});
  EXPECT_EQ(Text(reply, 368 + 8, 25), "ORVIK   SAS10K600        ");
  const Bytes refused = Send(Ssp(1, {0xC0, 0, 0, 0, 0, 0}, 0));
  ExpectFields(refused, {{20, 4, 0}, {104, 4, 0x00120202}, {108, 1, 0x70}, {110, 1, 0x05}, {120, 1, 0x20}});
}

TEST_F(CsmiPassThrough, TellsWhyADriveCannotBeReached) {
  using Row = std::tuple<std::size_t, PacketField, std::uint64_t, std::uint64_t>;
  // No such phy, the phy of another port, neither phy nor port, no such port, another address; then each phy.
  for (const auto& [phy, change, stpCode, sspCode] :
       {Row{0, {28, 1, 9}, 2003, 2003}, Row{0, {29, 1, 1}, 2004, 2004}, Row{0, {28, 2, 0xFFFF}, 2006, 2006},
        Row{0, {28, 2, 0x09FF}, 2007, 2007}, Row{0, {32, 8, 1}, 2009, 2009}, Row{0, {}, 0, 2009}, Row{1, {}, 2010, 0},
        Row{2, {}, 2009, 2009}, Row{3, {}, 2010, 2009}, Row{4, {}, 2013, 2013}, Row{5, {}, 2009, 2009},
        Row{6, {}, 2009, 2009}}) {
    SCOPED_TRACE(phy);
    Bytes stp = Stp(phy, 0xEC, 512);
    Put(stp, change);
    ExpectFields(stp = Send(stp), {{20, 4, stpCode}});
    EXPECT_EQ(stp[72] != 0, stpCode != 0);
    Bytes ssp = Ssp(phy, Bytes(6), 0);
    Put(ssp, change);
    ExpectFields(ssp = Send(ssp), {{20, 4, sspCode}});
    EXPECT_EQ(ssp[101] != 0, sspCode != 0);
  }
}

TEST_F(CsmiPassThrough, RefusesMalformedRequests) {
  // Data beyond the packet, and near 4 GiB; a FIS of another type, and without its command bit; a CDB too long.
  for (const PacketField& change : {PacketField{68, 4, 517}, PacketField{68, 4, 0xFFFFFFFF}, PacketField{44, 1, 0x34},
                                    PacketField{45, 1, 0}, PacketField{48, 1, 17}}) {
    Bytes packet = change.offset == 48 ? Ssp(1, Bytes(6), 0) : Stp(0, 0xEC, 512);
    Put(packet, change);
    ExpectFields(Send(packet), {{20, 4, 3}});
  }
}

}  // namespace
}  // namespace orvik::simulation
