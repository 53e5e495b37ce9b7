#include <gtest/gtest.h>

#include "tests/simulation/csmi_packets.h"

namespace orvik::simulation {
namespace {

const SataDriveDescription kSata{
    .model = "WDC WD40ORVK-68N32N0", .serial = "OV-WX21A0000001", .firmware = "82.00A82", .sectors = 7814037168};
const SasDriveDescription kSas{.vendor = "ORVIK",
                               .product = "SAS10K600",
                               .revision = "OV07",
                               .serial = "OVD600000001",
                               .sectors = 1172123568,
                               .sasAddress = 0x5001F00D00000001};
const NvmeDriveDescription kNvme{.model = "NVMe ORVK SSD 512GB", .serial = "OVN512000001", .sectors = 1000215216};

TEST(CsmiController, ReportsItsConfiguration) {
  CsmiController controller({.flags = 0x12345608, .serial = "OVR0000001", .boardId = 0xA77F8086});
  const Bytes reply = Answered(controller, Packet("CSMIALL", 2, 208));
  EXPECT_EQ(ReturnCode(reply), 0U);
  EXPECT_EQ(Le(reply, 40, 4), 0xA77F8086U);
  EXPECT_EQ(Text(reply, 80, 11), std::string("OVR0000001\0", 11));
  EXPECT_EQ(Le(reply, 162, 2), 17U);
  EXPECT_EQ(Le(reply, 168, 2), 1009U);
  EXPECT_EQ(Le(reply, 180, 4), 0x12345608U);
}

TEST(CsmiController, ReportsItsStatusAsItChanges) {
  CsmiController controller({});
  EXPECT_EQ(Le(Answered(controller, Packet("CSMIALL", 3, 64)), 28, 8), 1U);
  controller.SetStatus(CsmiStatus::Offline, CsmiOfflineReason::BusFailure);
  const Bytes reply = Answered(controller, Packet("CSMIALL", 3, 64));
  EXPECT_EQ(Le(reply, 28, 4), 3U);
  EXPECT_EQ(Le(reply, 32, 4), 3U);
}

TEST(CsmiController, ListsItsPhysWithWhatIsAttached) {
  CsmiController controller({.sasAddress = 0x5001A5E000000010,
                             .drives = {kSata, kNvme, kSas},
                             .phys = {{.drive = 2},
                                      {},
                                      {.drive = 0, .identifier = 7, .port = 3, .protocol = SasProtocol::Stp},
                                      {.deviceType = SasDeviceType::EdgeExpander, .protocol = SasProtocol::Smp}}});
  const Bytes reply = PhyInfo(controller);
  EXPECT_EQ(ReturnCode(reply), 0U);
  EXPECT_EQ(reply[28], 4);

  struct Row {
    std::uint8_t identifier, port, rate, type, protocol;
    std::uint64_t attached;
  };
  const Row rows[] = {{0, 0, 0x0A, 0x10, 0x08, 0x5001F00D00000001},
                      {1, 1, 0, 0, 0, 0},
                      {7, 3, 0x0A, 0x10, 0x04, 0x5001A5E000000112},
                      {3, 3, 0x0A, 0x20, 0x02, 0x5001A5E000000113}};
  for (std::size_t i = 0; i < std::size(rows); ++i) {
    SCOPED_TRACE(i);
    const std::size_t entry = 32 + 64 * i;
    EXPECT_EQ(Be(reply, entry + 12, 8), 0x5001A5E000000010 + i);
    EXPECT_EQ(reply[entry + 20], rows[i].identifier);
    EXPECT_EQ(reply[entry + 28], rows[i].port);
    EXPECT_EQ(reply[entry + 29], rows[i].rate);
    EXPECT_EQ(reply[entry + 36], rows[i].type);
    EXPECT_EQ(reply[entry + 39], rows[i].protocol);
    EXPECT_EQ(Be(reply, entry + 48, 8), rows[i].attached);
  }
}

TEST(CsmiController, CountsItsRaidSets) {
  CsmiController small({.raidSets = {{}, {}}});
  Bytes reply = Answered(small, Packet("CSMIARY", 10, 128));
  EXPECT_EQ(Le(reply, 28, 4), 2U);
  EXPECT_EQ(Le(reply, 32, 4), 8U);
  CsmiController large({.raidSets = {{.members = std::vector<CsmiRaidMemberDescription>(12)}}});
  EXPECT_EQ(Le(Answered(large, Packet("CSMIARY", 10, 128)), 32, 4), 12U);
  CsmiController given({.maxDrivesPerSet = 300});
  EXPECT_EQ(Le(Answered(given, Packet("CSMIARY", 10, 128)), 32, 4), 300U);
}

CsmiController DegradedController() {
  return CsmiController(
      {.drives = {kSata, kSas, kNvme},
       .raidSets = {{},
                    {.type = CsmiRaidType::Raid5,
                     .status = CsmiRaidStatus::Degraded,
                     .information = 3,
                     .capacityMiB = 0x01020304,
                     .stripeKiB = 128,
                     .members = {{.drive = 0},
                                 {.drive = 1},
                                 {.drive = 2},
                                 {.model = "Gone", .serial = "G-1", .status = CsmiDriveStatus::Failed}}}}});
}

Bytes RaidConfig(std::uint32_t set, std::size_t drives) {
  Bytes packet = Packet("CSMIARY", 11, 64 + 136 * drives);
  PutLe(packet, 28, 4, set);
  return packet;
}

TEST(CsmiController, DescribesARaidSetAndItsMembers) {
  CsmiController controller = DegradedController();
  const Bytes reply = Answered(controller, RaidConfig(1, 4));
  EXPECT_EQ(ReturnCode(reply), 0U);
  EXPECT_EQ(Le(reply, 32, 4), 0x01020304U);
  EXPECT_EQ(Le(reply, 36, 4), 128U);
  EXPECT_EQ(Bytes(reply.begin() + 40, reply.begin() + 44), (Bytes{4, 1, 3, 4}));

  struct Row {
    std::string model, firmware, serial;
    std::uint8_t status, type;
    std::uint64_t blocks;
  };
  const Row rows[] = {{"WDC WD40ORVK-68N32N0", "82.00A82", "OV-WX21A0000001", 0, 3, 7814037168},
                      {"ORVIK   SAS10K600", "OV07    ", "OVD600000001", 0, 1, 1172123568},
                      {"NVMe ORVK SSD 512GB", "        ", "OVN512000001", 0, 255, 1000215216},
                      {"Gone", "        ", "G-1", 2, 0, 0}};
  for (std::size_t i = 0; i < std::size(rows); ++i) {
    SCOPED_TRACE(i);
    const std::size_t entry = 64 + 136 * i;
    EXPECT_EQ(Text(reply, entry, 40), rows[i].model + std::string(40 - rows[i].model.size(), ' '));
    EXPECT_EQ(Text(reply, entry + 40, 8), rows[i].firmware);
    EXPECT_EQ(Text(reply, entry + 48, 40), rows[i].serial + std::string(40 - rows[i].serial.size(), ' '));
    EXPECT_EQ(reply[entry + 104], rows[i].status);
    EXPECT_EQ(reply[entry + 108], rows[i].type);
    EXPECT_EQ(Le(reply, entry + 124, 4), i);
    EXPECT_EQ(Le(reply, entry + 128, 8), rows[i].blocks);
  }
}

// A caller that brought room for too few drives must still learn how many there are.
TEST(CsmiController, CountsMembersThatDoNotFitThePacket) {
  CsmiController controller = DegradedController();
  const Bytes reply = Answered(controller, RaidConfig(1, 2));
  EXPECT_EQ(ReturnCode(reply), 0U);
  EXPECT_EQ(reply[43], 4);
  EXPECT_EQ(Text(reply, 64 + 136, 5), "ORVIK");
}

TEST(CsmiController, RefusesASetPastTheLast) {
  CsmiController controller = DegradedController();
  EXPECT_EQ(ReturnCode(Answered(controller, RaidConfig(2, 4))), 1000U);
  EXPECT_EQ(ReturnCode(Answered(controller, RaidConfig(0xFFFFFFFF, 4))), 1000U);
}

TEST(CsmiController, RefusesPacketsThatAreNotItsOwn) {
  struct Row {
    const char* signature;
    std::uint32_t code;
    std::size_t size;
    std::uint64_t returnCode;
  };
  const Row rows[] = {
      {"CSMIALL", 1, 208, 2},  // a control code that is not offered
      {"CSMISAS", 2, 208, 2},  // the signature of another group
      {"CSMIALL", 2, 207, 3},  // each packet one byte short
      {"CSMIALL", 3, 63, 3},   {"CSMISAS", 20, 2079, 3}, {"CSMIARY", 10, 127, 3}, {"CSMIARY", 11, 63, 3},
      {"CSMISAS", 24, 367, 3}, {"CSMISAS", 25, 163, 3},  {"CSMIALL", 2, 28, 3},
  };
  CsmiController controller = DegradedController();
  for (const Row& row : rows) {
    SCOPED_TRACE(testing::Message() << row.signature << " " << row.code << " " << row.size);
    Bytes packet = Packet(row.signature, row.code, row.size);
    const Bytes sent = packet;
    controller.Answer(packet);
    EXPECT_EQ(ReturnCode(packet), row.returnCode);
    PutLe(packet, 20, 4, 0);
    EXPECT_EQ(packet, sent);
  }
}

}  // namespace
}  // namespace orvik::simulation
