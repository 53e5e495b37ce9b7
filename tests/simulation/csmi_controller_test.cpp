#include <tuple>

#include "tests/simulation/csmi_packets.h"

namespace orvik::simulation {
namespace {

const SataDriveDescription kSata{.model = "WDC WD40", .serial = "WX2", .firmware = "82.00A82", .sectors = 7814037168};
const SasDriveDescription kSas{
    .vendor = "ORVIK", .product = "SAS10K", .serial = "D6", .sectors = 9, .sasAddress = 0x5001F00D00000001};
const NvmeDriveDescription kNvme{.model = "NVMe ORVK", .serial = "N5", .sectors = 1000215216};

class CsmiControllerTest : public testing::Test {
 protected:
  CsmiController controller{
      {.flags = 0x12345608,
       .status = CsmiStatus::Offline,
       .offlineReason = CsmiOfflineReason::BusDegraded,
       .serial = "OVR0000001",
       .boardId = 0xA77F8086,
       .sasAddress = 0x5001A5E000000010,
       .drives = {kSata, kSas, kNvme},
       .phys = {{.drive = 1},
                {},
                {.drive = 0, .identifier = 7, .port = 3, .protocol = SasProtocol::Stp},
                {.deviceType = SasDeviceType::EdgeExpander, .protocol = SasProtocol::Smp}},
       .raidSets = {
           {.members = std::vector<CsmiRaidMemberDescription>(12)},
           {.type = CsmiRaidType::Raid5,
            .status = CsmiRaidStatus::Degraded,
            .information = 3,
            .capacityMiB = 0x01020304,
            .stripeKiB = 128,
            .members = {
                {.drive = 0}, {.drive = 1}, {.drive = 2}, {.model = "Gone", .status = CsmiDriveStatus::Failed}}}}}};

  Bytes RaidConfig(std::uint32_t set, std::size_t drives) {
    Bytes packet = Packet("CSMIARY", 11, 64 + 136 * drives);
    Put(packet, {28, 4, set});
    return Answered(controller, packet);
  }
};

TEST_F(CsmiControllerTest, ReportsConfigurationStatusAndRaidSets) {
  const Bytes reply = Answered(controller, Packet("CSMIALL", 2, 208));
  ExpectFields(reply, {{20, 4, 0}, {40, 4, 0xA77F8086}, {162, 2, 17}, {168, 2, 1009}, {180, 4, 0x12345608}});
  EXPECT_EQ(Text(reply, 80, 11), std::string("OVR0000001\0", 11));
  ExpectFields(Answered(controller, Packet("CSMIALL", 3, 64)), {{20, 4, 0}, {28, 4, 3}, {32, 4, 2}});
  ExpectFields(Answered(controller, Packet("CSMIARY", 10, 128)), {{20, 4, 0}, {28, 4, 2}, {32, 4, 12}});
}

TEST_F(CsmiControllerTest, ListsItsPhysWithWhatIsAttached) {
  const Bytes reply = Answered(controller, Packet("CSMISAS", 20, 2080));
  ExpectFields(reply, {{20, 4, 0}, {28, 1, 4}});
  using Row = std::tuple<std::uint8_t, std::uint8_t, std::uint8_t, std::uint8_t, std::uint8_t, Bytes>;
  const Row rows[] = {{0, 0, 0x0A, 0x10, 0x08, {0x50, 0x01, 0xF0, 0x0D, 0, 0, 0, 0x01}},
                      {1, 1, 0, 0, 0, Bytes(8)},
                      {7, 3, 0x0A, 0x10, 0x04, {0x50, 0x01, 0xA5, 0xE0, 0, 0, 0x01, 0x12}},
                      {3, 3, 0x0A, 0x20, 0x02, {0x50, 0x01, 0xA5, 0xE0, 0, 0, 0x01, 0x13}}};
  for (std::size_t i = 0; i < std::size(rows); ++i) {
    const auto& [identifier, port, rate, type, protocol, attached] = rows[i];
    const std::size_t entry = 32 + 64 * i;
    ExpectFields(reply, {{19, 1, 0x10 + i}, {20, 1, identifier}, {28, 1, port}, {29, 1, rate}}, entry);
    ExpectFields(reply, {{36, 1, type}, {39, 1, protocol}}, entry);
    EXPECT_EQ(Slice(reply, entry + 48, 8), attached);
  }
}

TEST_F(CsmiControllerTest, DescribesARaidSetAndItsMembers) {
  const Bytes reply = RaidConfig(1, 4);
  ExpectFields(reply, {{20, 4, 0}, {32, 4, 0x01020304}, {36, 4, 128}, {40, 4, 0x04030104}});
  using Row = std::tuple<const char*, const char*, const char*, std::uint8_t, std::uint8_t, std::uint64_t>;
  const Row rows[] = {{"WDC WD40", "82.00A82", "WX2", 0, 3, 7814037168},
                      {"ORVIK   SAS10K", "        ", "D6", 0, 1, 9},
                      {"NVMe ORVK", "        ", "N5", 0, 255, 1000215216},
                      {"Gone", "        ", "", 2, 0, 0}};
  for (std::size_t i = 0; i < std::size(rows); ++i) {
    const auto& [model, firmware, serial, status, type, blocks] = rows[i];
    const std::size_t entry = 64 + 136 * i;
    std::string text = model;
    text.resize(40, ' ');
    text.append(firmware).append(serial).resize(88, ' ');
    EXPECT_EQ(Text(reply, entry, 88), text);
    ExpectFields(reply, {{104, 1, status}, {108, 1, type}, {124, 4, i}, {128, 8, blocks}}, entry);
  }
  // A caller that brought room for too few drives must still learn how many there are.
  ExpectFields(RaidConfig(1, 2), {{20, 4, 0}, {43, 1, 4}});
  for (const std::uint32_t set : {2U, 0xFFFFFFFFU}) ExpectFields(RaidConfig(set, 4), {{20, 4, 1000}});
}

TEST_F(CsmiControllerTest, RefusesPacketsThatAreNotItsOwn) {
  // A control code that is not offered, the signature of another group, and each packet one byte short.
  using Row = std::tuple<const char*, std::uint32_t, std::size_t, std::uint64_t>;
  for (const auto& [signature, code, size, returnCode] :
       {Row{"CSMIALL", 1, 208, 2}, Row{"CSMISAS", 2, 208, 2}, Row{"CSMIALL", 2, 207, 3}, Row{"CSMIALL", 3, 63, 3},
        Row{"CSMISAS", 20, 2079, 3}, Row{"CSMIARY", 10, 127, 3}, Row{"CSMIARY", 11, 63, 3},
        Row{"CSMISAS", 24, 367, 3}, Row{"CSMISAS", 25, 163, 3}}) {
    Bytes expected = Packet(signature, code, size);
    const Bytes reply = Answered(controller, expected);
    Put(expected, {20, 4, returnCode});
    EXPECT_EQ(reply, expected) << signature << " " << code << " " << size;
  }
}

}  // namespace
}  // namespace orvik::simulation
