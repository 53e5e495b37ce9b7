#include "module/raid/csmi/csmi_bridges.h"

#include <tuple>

#include "tests/storage/scripted_bridge.h"

namespace orvik::module::raid {
namespace {

using storage::Bytes;
using storage::Reply;
using utils::ByteView;

TEST(CsmiBridgesTest, TakeSenseDataAsFarAsItFits) {
  using Case = std::tuple<Bytes, std::uint64_t, std::uint8_t>;
  for (const auto& [status, length, lastByte] : std::vector<Case>{{{2, 2, 18, 0}, 18, 0x00},
                                                                  {{2, 2, 40, 0}, 32, 0xAA},
                                                                  {{2, 2, 0xFF, 0xFF}, 32, 0xAA},
                                                                  {{2, 2, 0, 0}, 0, 0x00},
                                                                  {{1, 2, 18, 0}, 0, 0x00}}) {
    storage::ScsiCmd command;
    const Bytes packet = Reply(372, {{101, {9}}, {104, status}, {108, Bytes(256, 0xAA)}});
    TakeScsiStatus(ByteView(packet), command);
    EXPECT_EQ(command.senseLength, length);
    EXPECT_EQ(command.status, 2);
    EXPECT_EQ(command.sense[31], lastByte);
    EXPECT_EQ(command.sense[0], length != 0 ? 0xAA : 0);
  }
}

TEST(CsmiBridgesTest, TakeTheRegistersOfTheStatusFis) {
  storage::AtaCmd command;
  command.features = 0xAB00;
  const Bytes fis = {0x34, 0, 0x51, 0x04, 1, 2, 3, 0xE0, 4, 5, 6, 0, 7, 8, 0, 0, 0, 0, 0, 0};
  TakeRegisters(ByteView(fis), command);
  EXPECT_EQ(storage::Describe(command), "51 f04 n0807 l0401.0502.0603 dE0 no data");
  EXPECT_EQ(command.features, 0xAB04);
}

TEST(CsmiBridgesTest, AFailedPacketLeavesTheBufferAlone) {
  Bytes data(8, 0x77);
  storage::AtaCmd command;
  command.direction = storage::Direction::kIn;
  command.length = data.size();
  command.buffer = data.data();
  const Bytes entry(64, 1);
  CsmiStpBridge bridge(nullptr, ByteView(entry));
  EXPECT_EQ(bridge.Send(command), storage::status::kIoctlFailed);
  EXPECT_EQ(data, Bytes(8, 0x77));
}

}  // namespace
}  // namespace orvik::module::raid
