#include "simulation/machine/machine.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace orvik::simulation {
namespace {

constexpr std::uint32_t kMiniport = 0x0004D008;

using Bytes = std::vector<std::uint8_t>;

/// The bytes with some of them replaced.
Bytes With(Bytes bytes, std::size_t offset, const Bytes& others) {
  std::ranges::copy(others, bytes.begin() + static_cast<std::ptrdiff_t>(offset));
  return bytes;
}

class Faults : public testing::Test {
 protected:
  static AdapterDescription RaidAdapter() {
    AdapterDescription adapter = PciRaidAdapter("2822", 1);
    adapter.csmi = CsmiControllerDescription{.raidSets = {{}, {}}};
    return adapter;
  }

  // Sends RAID information; the reply is in `packet_`.
  IoResult Send() {
    packet_ = request_;
    return machine_.Control(*machine_.Adapters()[0], kMiniport, packet_, packet_.size(), packet_.size());
  }

  IoResult SendWith(const FaultEffects& effects) {
    machine_.Faults().Clear();
    machine_.Faults().Add({.operation = "CC_CSMI_SAS_GET_RAID_INFO", .effects = effects});
    return Send();
  }

  Machine machine_{{.adapters = {RaidAdapter()}}};
  // RAID information, byte by byte.
  const Bytes request_ =
      With(With(With(Bytes(128), 0, {28, 0, 0, 0, 'C', 'S', 'M', 'I', 'A', 'R', 'Y'}), 16, {10}), 24, {100});
  Bytes packet_;
};

TEST_F(Faults, DistortWhatComesBack) {
  Send();
  const Bytes healthy = packet_;
  const Bytes patched = With(With(healthy, 28, Bytes(4, 0xFF)), 126, {1, 2});
  EXPECT_EQ(SendWith({.returnCode = 1001}).returned, 128U);
  EXPECT_EQ(packet_, With(request_, 20, {0xE9, 0x03}));
  EXPECT_EQ(SendWith({.truncateTo = 32}).returned, 32U);
  EXPECT_EQ(packet_, With(request_, 0, Bytes(healthy.begin(), healthy.begin() + 32)));
  EXPECT_EQ(SendWith({.patches = {{28, {0xFF, 0xFF, 0xFF, 0xFF}}, {126, {1, 2, 3, 4}}}}).returned, 128U);
  EXPECT_EQ(packet_, patched);
  SendWith({.garbleSeed = 7});
  const Bytes garbled = packet_;
  EXPECT_TRUE(std::equal(garbled.begin(), garbled.begin() + 28, healthy.begin())) << "the header stays";
  SendWith({.garbleSeed = 7});
  EXPECT_EQ(packet_, garbled);
  SendWith({.garbleSeed = 8});
  EXPECT_NE(packet_, garbled);
}

}  // namespace
}  // namespace orvik::simulation
