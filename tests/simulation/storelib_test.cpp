// Commands to the vendor's library, byte by byte: offsets are written out, so that an error in the layouts of the
// simulated controllers cannot cancel itself out.

#include "simulation/machine/machine.h"
#include "tests/simulation/packets.h"

namespace orvik::simulation {
namespace {

constexpr std::uint32_t kId = 0x01020304;

const StorelibControllerDescription kController{
    .controllerId = kId,
    .logicalDrives = {{.targetId = 5, .sequenceNumber = 0x0102},
                      {.targetId = 6, .consistent = false, .check = {.seconds = 1000, .runningAt = 16384}},
                      {.targetId = 7, .check = {.startStatus = 27}}}};

struct Command {
  std::uint8_t type, command;
  std::size_t size;
  std::uint16_t device = 0;  // or sequence number
  std::uint8_t target = 0;
};

class StorelibTest : public testing::Test {
 protected:
  static Bytes Filled(std::size_t size, std::initializer_list<PacketField> fields) {
    Bytes bytes(size);
    for (const PacketField& field : fields) Put(bytes, field);
    return bytes;
  }
  std::uint32_t Send(const Command& command) {
    packet = Filled(40, {{0, 1, command.type},
                         {1, 1, command.command},
                         {4, 4, kId},
                         {8, 2, command.device},
                         {10, 1, command.target},
                         {28, 4, command.size}});
    data.resize(command.size);
    return machine.ProcessLibCommand(packet, data);
  }
  // Into a block that must be filled from end to end.
  void Ask(const Command& command) {
    data = Bytes(command.size, 0xEE);
    EXPECT_EQ(Send(command), 0U);
  }
  std::uint32_t Progress(std::uint8_t target) {
    Ask({3, 8, 36, 0, target});
    EXPECT_EQ(data[0] != 0, machine.Storelib().FindController(kId)->IsChecking(target));
    return data[0] == 0 ? 0xFFFFFFFF : static_cast<std::uint32_t>(Le(data, 4, 2));
  }
  bool Consistent(std::uint8_t target) { return Send({3, 0, 384, 0, target}) == 0 && data[40] == 1; }

  Machine machine{{.speed = 0.001, .storelib = {.controllers = {kController}}}};
  Bytes packet;
  Bytes data;
};

TEST_F(StorelibTest, ChecksConsistencyInMachineTime) {
  EXPECT_EQ(Progress(5), 0xFFFFFFFF);
  EXPECT_EQ(Progress(6), 16383U);
  EXPECT_EQ(Send({3, 7, 0, 1, 7}), 27U);
  EXPECT_NE(Send({3, 6, 0, 0x0102, 5}), 0U);
  EXPECT_EQ(Send({3, 7, 0, 0x0102, 5}), 0U);
  EXPECT_NE(Send({3, 7, 0, 0x0102, 5}), 0U);
  EXPECT_NE(Send({3, 7, 0, 1, 6}), 0U);
  machine.Clock().Advance(60000);
  EXPECT_NEAR(Progress(5), 32768, 10);
  EXPECT_NEAR(Progress(6), 16384 + 3932, 10);
  EXPECT_EQ(Send({3, 6, 0, 0x0102, 5}), 0U);
  EXPECT_EQ(Progress(5), 0xFFFFFFFF);
  // A check that was cancelled has found nothing; one that ran to its end has.
  EXPECT_TRUE(Consistent(5));
  machine.Clock().Advance(689000);
  EXPECT_FALSE(Consistent(6));
  machine.Clock().Advance(2000);
  EXPECT_TRUE(Consistent(6));
  EXPECT_EQ(Progress(6), 0xFFFFFFFF);
  EXPECT_EQ(Send({3, 7, 0, 1, 6}), 0U);
  EXPECT_EQ(Progress(6), 0U);
}

TEST_F(StorelibTest, IsOpenToFaults) {
  const auto with = [&](const FaultEffects& effects) {
    machine.Faults().Clear();
    machine.Faults().Add({.operation = "STORELIB_LOGICAL_DRIVE_LIST", .effects = effects});
    data = Bytes(4104, 0xEE);
    return Send({1, 13, 4104});
  };
  const std::uint64_t before = machine.Clock().Milliseconds();
  EXPECT_EQ(with({.delayMilliseconds = 5000, .error = 31}), 31U);
  EXPECT_GE(machine.Clock().Milliseconds(), before + 5000);
  EXPECT_EQ(with({.returnCode = 5}), 5U);
  EXPECT_EQ(data, Bytes(4104, 0xEE));
  EXPECT_EQ(with({.patches = {{0, {0xFF, 0xFF}}}, .truncateTo = 4}), 0U);
  ExpectFields(data, {{0, 4, 0xFFFF}, {4, 4, 0xEEEEEEEE}});
  for (const char* name : {"*", "ProcessLibCommand", "STORELIB_LOGICAL_DRIVE_LIST"}) {
    EXPECT_EQ(machine.Faults().CallsMade(name), 3U) << name;
  }
}

}  // namespace
}  // namespace orvik::simulation
