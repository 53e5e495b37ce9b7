#include <gtest/gtest.h>

#include "simulation/machine/machine.h"
#include "tests/simulation/csmi_packets.h"

namespace orvik::simulation {
namespace {

constexpr std::uint32_t kMiniport = 0x0004D008;

AdapterDescription RaidAdapter() {
  AdapterDescription adapter = PciRaidAdapter("2822", 1);
  adapter.csmi = CsmiControllerDescription{.serial = "OVR1", .raidSets = {{}, {}}};
  return adapter;
}

class Faults : public testing::Test {
 protected:
  Machine machine{{.adapters = {RaidAdapter()}}};

  // Sends RAID information; what comes back is in `packet`.
  IoResult Send() {
    packet = Packet("CSMIARY", 10, 128);
    return machine.Control(*machine.Adapters()[0], kMiniport, packet, packet.size(), packet.size());
  }

  Bytes packet;
};

TEST_F(Faults, HitTheNthOutsideCallOnly) {
  machine.Faults().OnCall({"CreateFileW"});
  machine.Faults().FailCall(2, 5);
  EXPECT_FALSE(machine.Faults().OnCall({"RegGetValueW"}).error);
  EXPECT_EQ(Send().error, 5U);
  EXPECT_EQ(Send().error, 0U);
  EXPECT_EQ(machine.Faults().CallsMade("*"), 4U);
  EXPECT_EQ(machine.Faults().CallsMade("DeviceIoControl"), 2U);
  EXPECT_EQ(machine.Faults().CallsMade("CC_CSMI_SAS_GET_RAID_INFO"), 2U);
}

TEST_F(Faults, AnswerWithAReturnCodeAndNothingElse) {
  machine.Faults().Add({.operation = "CC_CSMI_SAS_GET_RAID_INFO", .effects = {.returnCode = 1001}});
  EXPECT_EQ(Send().returned, 128U);
  Bytes expected = Packet("CSMIARY", 10, 128);
  PutLe(expected, 20, 4, 1001);
  EXPECT_EQ(packet, expected);
}

TEST_F(Faults, TruncateWhatComesBack) {
  machine.Faults().Add({.operation = "DeviceIoControl", .effects = {.truncateTo = 32}});
  EXPECT_EQ(Send().returned, 32U);
  EXPECT_EQ(Le(packet, 28, 4), 2U);
  EXPECT_EQ(Bytes(packet.begin() + 32, packet.end()), Bytes(96));
}

TEST_F(Faults, PatchWhatComesBackInsideThePacket) {
  machine.Faults().Add({.operation = "CC_CSMI_SAS_GET_RAID_INFO",
                        .effects = {.patches = {{28, {0xFF, 0xFF, 0xFF, 0xFF}}, {126, {1, 2, 3, 4}}}}});
  EXPECT_EQ(Send().error, 0U);
  EXPECT_EQ(Le(packet, 28, 4), 0xFFFFFFFFU);
  EXPECT_EQ(Le(packet, 32, 4), 8U);
  EXPECT_EQ(Le(packet, 124, 4), 0x02010000U);
}

TEST_F(Faults, GarbleTheSameWayForTheSameSeed) {
  machine.Faults().Add({.operation = "DeviceIoControl", .call = 1, .effects = {.garbleSeed = 7}});
  machine.Faults().Add({.operation = "DeviceIoControl", .call = 2, .effects = {.garbleSeed = 7}});
  machine.Faults().Add({.operation = "DeviceIoControl", .call = 3, .effects = {.garbleSeed = 8}});
  Send();
  const Bytes first = packet;
  Send();
  EXPECT_EQ(packet, first);
  Send();
  EXPECT_NE(packet, first);
  EXPECT_EQ(Bytes(packet.begin(), packet.begin() + 28), Bytes(first.begin(), first.begin() + 28));
}

TEST_F(Faults, DoNotRepairAFailedCall) {
  machine.Faults().Add({.operation = "DeviceIoControl", .effects = {.patches = {{28, {1}}}}});
  packet = Packet("CSMIARY", 10, 128);
  EXPECT_EQ(machine.Control(*machine.Adapters()[0], 0x1234, packet, 128, 128).error, 1U);
  EXPECT_EQ(packet, Packet("CSMIARY", 10, 128));
}

// The port driver looks at the header before the controller sees the packet.
TEST_F(Faults, AreNotNeededForAMalformedHeaderToFail) {
  struct Row {
    const char* what;
    std::size_t offset;
    std::uint64_t value;
    std::size_t inputSize, outputSize;
    std::uint32_t error;
  };
  const Row rows[] = {
      {"header of another revision", 0, 24, 128, 128, 1306},
      {"request shorter than its header", 0, 28, 27, 128, 87},
      {"length beyond both buffers", 24, 101, 128, 128, 122},
      {"length that overflows", 24, 0xFFFFFFFF, 128, 128, 122},
      {"signature of no interface", 4, 0x58585858, 128, 128, 1},
      {"answer longer than the request", 0, 28, 64, 128, 0},
  };
  for (const Row& row : rows) {
    SCOPED_TRACE(row.what);
    Bytes request = Packet("CSMIARY", 10, 128);
    PutLe(request, row.offset, 4, row.value);
    EXPECT_EQ(machine.Control(*machine.Adapters()[0], kMiniport, request, row.inputSize, row.outputSize).error,
              row.error);
  }
}

}  // namespace
}  // namespace orvik::simulation
