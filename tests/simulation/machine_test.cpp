#include "simulation/machine/machine.h"

#include <tuple>

#include "tests/simulation/packets.h"

namespace orvik::simulation {
namespace {

constexpr std::uint32_t kMiniport = 0x0004D008;

class Faults : public testing::Test {
 protected:
  static AdapterDescription RaidAdapter() {
    AdapterDescription adapter = PciRaidAdapter("2822", 1);
    adapter.csmi = CsmiControllerDescription{.raidSets = {{}, {}}};
    return adapter;
  }

  // Sends RAID information; what comes back is in `packet`.
  IoResult Send() {
    packet = request;
    return machine.Control(*machine.Adapters()[0], kMiniport, packet, packet.size(), packet.size());
  }

  IoResult SendWith(const FaultEffects& effects) {
    machine.Faults().Clear();
    machine.Faults().Add({.operation = "CC_CSMI_SAS_GET_RAID_INFO", .effects = effects});
    return Send();
  }

  Machine machine{{.adapters = {RaidAdapter()}}};
  const Bytes request = Packet("CSMIARY", 10, 128);
  Bytes packet;
};

TEST_F(Faults, DistortWhatComesBack) {
  Send();
  Bytes patched = packet;
  Put(patched, {28, 4, 0xFFFFFFFF});
  Put(patched, {126, 2, 0x0201});
  Bytes truncated = request;
  std::copy_n(packet.begin(), 32, truncated.begin());
  Bytes refused = request;
  Put(refused, {20, 4, 1001});
  EXPECT_EQ(SendWith({.returnCode = 1001}).returned, 128U);
  EXPECT_EQ(packet, refused);
  EXPECT_EQ(SendWith({.truncateTo = 32}).returned, 32U);
  EXPECT_EQ(packet, truncated);
  EXPECT_EQ(SendWith({.patches = {{28, {0xFF, 0xFF, 0xFF, 0xFF}}, {126, {1, 2, 3, 4}}}}).returned, 128U);
  EXPECT_EQ(packet, patched);
  SendWith({.garbleSeed = 7});
  const Bytes garbled = packet;
  EXPECT_EQ(Slice(garbled, 0, 28), Slice(patched, 0, 28));
  SendWith({.garbleSeed = 7});
  EXPECT_EQ(packet, garbled);
  SendWith({.garbleSeed = 8});
  EXPECT_NE(packet, garbled);
}

// The port driver looks at the header before the controller sees the packet, and no fault repairs what it refuses.
TEST_F(Faults, AreNotNeededForAMalformedHeaderToFail) {
  machine.Faults().Add({.operation = "DeviceIoControl", .effects = {.patches = {{100, {1}}}}});
  // Another control code, another header, a request shorter than it, a length beyond both buffers and one that
  // overflows, the signature of no interface; and an answer longer than its request, which is right.
  using Row = std::tuple<std::uint32_t, PacketField, std::size_t, std::uint32_t>;
  for (const auto& [code, change, inputSize, error] :
       {Row{0x1234, {}, 128, 1}, Row{kMiniport, {0, 4, 24}, 128, 1306}, Row{kMiniport, {}, 27, 87},
        Row{kMiniport, {24, 4, 101}, 128, 122}, Row{kMiniport, {24, 4, 0xFFFFFFFF}, 128, 122},
        Row{kMiniport, {4, 4, 0x58585858}, 128, 1}, Row{kMiniport, {}, 64, 0}}) {
    packet = request;
    Put(packet, change);
    EXPECT_EQ(machine.Control(*machine.Adapters()[0], code, packet, inputSize, 128).error, error);
    EXPECT_EQ(packet[100], error == 0 ? 1 : 0) << error;
  }
}

TEST(Clock, RunsAtItsSpeed) {
  Clock slow(0.001);
  slow.Advance(3600000);
  EXPECT_LT(slow.Milliseconds(), 3660000U);
}

}  // namespace
}  // namespace orvik::simulation
