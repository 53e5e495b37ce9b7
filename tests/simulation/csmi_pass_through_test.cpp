#include <gtest/gtest.h>

#include <functional>

#include "tests/simulation/csmi_packets.h"

namespace orvik::simulation {
namespace {

// Phy 0 leads to a SATA drive, phy 1 to a SAS drive, 2 and 3 to such drives that do not answer, 4 to an expander,
// 5 to an SMP target, 6 to nothing.
class CsmiPassThrough : public testing::Test {
 protected:
  CsmiController controller{
      {.drives = {SataDriveDescription{.model = "ST4000OV001", .serial = "OVZ1", .sectors = 100},
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
  Bytes phyInfo = PhyInfo(controller);

  Bytes Send(const Bytes& packet) { return Answered(controller, packet); }
};

TEST_F(CsmiPassThrough, CarriesAnAtaCommandThere) {
  const Bytes reply = Send(StpRequest(phyInfo, 0, 0xEC, 512));
  EXPECT_EQ(ReturnCode(reply), 0U);
  EXPECT_EQ(reply[72], 0);
  EXPECT_EQ(Bytes(reply.begin() + 76, reply.begin() + 80), (Bytes{0x34, 0x40, 0x50, 0x00}));
  EXPECT_EQ(Le(reply, 160, 4), 512U);
  EXPECT_EQ(Text(reply, 164 + 54, 10), "TS0400VO00");
}

TEST_F(CsmiPassThrough, BringsBackTheRegistersOfARefusedAtaCommand) {
  Bytes request = StpRequest(phyInfo, 0, 0x42, 0);
  const Bytes registers = {0x11, 0x22, 0x33, 0x40, 0x44, 0x55, 0x66};
  std::ranges::copy(registers, request.begin() + 44 + 4);
  PutLe(request, 44 + 12, 2, 0x0201);
  const Bytes reply = Send(request);
  EXPECT_EQ(ReturnCode(reply), 0U);
  EXPECT_EQ(reply[78], 0x51);
  EXPECT_EQ(reply[79], 0x04);
  EXPECT_EQ(Bytes(reply.begin() + 80, reply.begin() + 87), registers);
  EXPECT_EQ(Le(reply, 88, 2), 0x0201U);
}

TEST_F(CsmiPassThrough, CarriesAScsiCommandThere) {
  const Bytes reply = Send(SspRequest(phyInfo, 1, {0x12, 0, 0, 0, 36, 0}, 36));
  EXPECT_EQ(ReturnCode(reply), 0U);
  EXPECT_EQ(Bytes(reply.begin() + 100, reply.begin() + 108), Bytes(8));
  EXPECT_EQ(Le(reply, 364, 4), 36U);
  EXPECT_EQ(Text(reply, 368 + 8, 25), "ORVIK   SAS10K600        ");
}

TEST_F(CsmiPassThrough, BringsBackTheSenseOfARefusedScsiCommand) {
  const Bytes reply = Send(SspRequest(phyInfo, 1, {0xC0, 0, 0, 0, 0, 0}, 0));
  EXPECT_EQ(ReturnCode(reply), 0U);
  EXPECT_EQ(Bytes(reply.begin() + 104, reply.begin() + 108), (Bytes{2, 2, 18, 0}));
  EXPECT_EQ(reply[108], 0x70);
  EXPECT_EQ(reply[110], 0x05);
  EXPECT_EQ(reply[120], 0x20);
}

// A command sent without a data direction must not reach into the data area.
TEST_F(CsmiPassThrough, MovesNoDataWithoutADirection) {
  Bytes request = StpRequest(phyInfo, 0, 0xEC, 512);
  PutLe(request, 64, 4, 0x14);
  const Bytes reply = Send(request);
  EXPECT_EQ(Le(reply, 160, 4), 0U);
  EXPECT_EQ(Bytes(reply.begin() + 164, reply.end()), Bytes(516));
}

TEST_F(CsmiPassThrough, TellsWhyADriveCannotBeReached) {
  struct Row {
    const char* what;
    std::size_t phy;
    std::function<void(Bytes&)> change;
    std::uint64_t stpCode, sspCode;
  };
  const auto nothing = [](Bytes&) {};
  const Row rows[] = {
      {"no such phy", 0, [](Bytes& p) { p[28] = 9; }, 2003, 2003},
      {"another port", 0, [](Bytes& p) { p[29] = 1; }, 2004, 2004},
      {"neither phy nor port", 0, [](Bytes& p) { p[28] = p[29] = 0xFF; }, 2006, 2006},
      {"no such port", 0, [](Bytes& p) { p[28] = 0xFF, p[29] = 9; }, 2007, 2007},
      {"another address", 0, [](Bytes& p) { p[39] ^= 1; }, 2009, 2009},
      {"SATA drive", 0, nothing, 0, 2009},
      {"SAS drive", 1, nothing, 2010, 0},
      {"silent SATA drive", 2, nothing, 2009, 2009},
      {"silent SAS drive", 3, nothing, 2010, 2009},
      {"expander", 4, nothing, 2013, 2013},
      {"SMP target", 5, nothing, 2009, 2009},
      {"nothing attached", 6, nothing, 2009, 2009},
  };
  for (const Row& row : rows) {
    SCOPED_TRACE(row.what);
    Bytes stp = StpRequest(phyInfo, row.phy, 0xEC, 512);
    row.change(stp);
    const Bytes stpReply = Send(stp);
    EXPECT_EQ(ReturnCode(stpReply), row.stpCode);
    EXPECT_EQ(stpReply[72] != 0, row.stpCode != 0);
    Bytes ssp = SspRequest(phyInfo, row.phy, {0, 0, 0, 0, 0, 0}, 0);
    row.change(ssp);
    const Bytes sspReply = Send(ssp);
    EXPECT_EQ(ReturnCode(sspReply), row.sspCode);
    EXPECT_EQ(sspReply[101] != 0, row.sspCode != 0);
  }
}

TEST_F(CsmiPassThrough, RefusesMalformedRequests) {
  const std::pair<const char*, std::function<void(Bytes&)>> stpRows[] = {
      {"data length beyond the packet", [](Bytes& p) { PutLe(p, 68, 4, 517); }},
      {"data length near 4 GiB", [](Bytes& p) { PutLe(p, 68, 4, 0xFFFFFFFF); }},
      {"not a command FIS", [](Bytes& p) { p[44] = 0x34; }},
      {"command bit clear", [](Bytes& p) { p[45] = 0; }},
  };
  for (const auto& [what, change] : stpRows) {
    SCOPED_TRACE(what);
    Bytes request = StpRequest(phyInfo, 0, 0xEC, 512);
    change(request);
    EXPECT_EQ(ReturnCode(Send(request)), 3U);
  }
  Bytes request = SspRequest(phyInfo, 1, {0x12, 0, 0, 0, 36, 0}, 36);
  request[48] = 17;
  EXPECT_EQ(ReturnCode(Send(request)), 3U);
  request[48] = 6;
  PutLe(request, 96, 4, 41);
  EXPECT_EQ(ReturnCode(Send(request)), 3U);
}

}  // namespace
}  // namespace orvik::simulation
