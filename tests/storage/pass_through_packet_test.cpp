// The packets of the operating system's and the miniport's pass-throughs, both ways.

#include <array>
#include <tuple>

#include "module/storage/ata/ata_commands.h"
#include "module/storage/ata/ata_pass_through_packet.h"
#include "module/storage/nvme/nvme_commands.h"
#include "module/storage/nvme/nvme_intel_packet.h"
#include "module/storage/scsi/block_commands.h"
#include "module/storage/scsi/scsi_commands.h"
#include "module/storage/scsi/scsi_pass_through_packet.h"
#include "tests/storage/scripted_bridge.h"

namespace orvik::module::storage {
namespace {

Bytes ToBytes(std::span<const std::uint8_t> bytes) {
  return {bytes.begin(), bytes.end()};
}

template <typename Packet>
void Return(Packet& packet, std::size_t offset, const Bytes& bytes) {
  utils::MutableByteView(packet.Exchanged()).PutBytes({offset, bytes.size()}, bytes);
}

constexpr std::size_t kAtaSize = 48;
constexpr std::size_t kAtaTransferLength = 8;

TEST(AtaPassThroughPacketTest, IsLaidOutAsTheDriverExpects) {
  std::array<std::uint8_t, 8> data = {1, 2, 3, 4, 5, 6, 7, 8};
  WriteSectorsExt write(0x665544332211, 0x0102, 512, data.data());
  write.features = 0xEE99;
  write.length = data.size();
  AtaPassThroughPacket packet(write);
  const Bytes expected = Reply(kAtaSize + 8, {{0, {48, 0, 0x0D}},
                                              {kAtaTransferLength, {8, 0, 0, 0, 30}},
                                              {24, {48}},
                                              {32, {0, 0x01, 0x44, 0x55, 0x66}},
                                              {40, {0x99, 0x02, 0x11, 0x22, 0x33, 0x40, 0x34}},
                                              {kAtaSize, {1, 2, 3, 4, 5, 6, 7, 8}}});
  EXPECT_EQ(ToBytes(packet.Exchanged()), expected);
}

TEST(AtaPassThroughPacketTest, FlagsTheCommandsKind) {
  std::array<std::uint8_t, 1024> data{};
  const std::vector<std::pair<AtaCmd, int>> commands = {{AtaIdleImmediate(), 0x01},
                                                        {IdentifyDevice(data.data()), 0x03},
                                                        {SmartReadLog(6, 1, data.data()), 0x03},
                                                        {SmartReadLog(6, 2, data.data()), 0x23},
                                                        {ReadLogExt(7, 1, data.data(), 0), 0x0B},
                                                        {WriteSectors(0, 1, 512, data.data()), 0x05},
                                                        {WriteUncorrectableExt(0, 1, true), 0x09}};
  for (const auto& [command, flags] : commands) {
    AtaPassThroughPacket packet(command);
    EXPECT_EQ(packet.Exchanged()[2], flags) << Describe(command);
  }
}

TEST(AtaPassThroughPacketTest, TakesRegistersAndData) {
  std::array<std::uint8_t, 512> data{};
  ReadSectorsExt read(0x665544332211, 1, 512, data.data(), 30);
  AtaPassThroughPacket packet(read);
  Return(packet, 40, {0x84, 0x0F, 0xA1, 0xA2, 0xA3, 0xE0, 0x51, 0xFF});
  Return(packet, kAtaTransferLength, {2, 0, 0, 0});
  Return(packet, kAtaSize, {0xAA, 0xBB, 0xCC});
  EXPECT_EQ(packet.TakeReply(read), status::kSuccess);
  EXPECT_EQ(Describe(read), "51 f84 n000F l44A1.55A2.66A3 dE0 in 2");
  EXPECT_EQ(data[1], 0xBB);
  EXPECT_EQ(data[2], 0);
}

TEST(AtaPassThroughPacketTest, JudgesTheReturnedLength) {
  using Case = std::tuple<std::uint8_t, Status, std::uint64_t>;
  for (const auto& [lengthByte, expected, length] :
       std::vector<Case>{{0xFF, status::kSuccess, 512}, {0, status::kNoDataTransferred, 512}}) {
    std::array<std::uint8_t, 513> data{};
    data.back() = 0x77;
    IdentifyDevice identify(data.data());
    AtaPassThroughPacket packet(identify);
    Return(packet, kAtaTransferLength, {0, 0, 0, lengthByte});
    Return(packet, kAtaSize, Bytes(512, 0x11));
    EXPECT_EQ(packet.TakeReply(identify), expected);
    EXPECT_EQ(identify.length, length);
    EXPECT_EQ(data.back(), 0x77);
  }
  SmartReturnStatus noData;
  AtaPassThroughPacket packet(noData);
  EXPECT_EQ(packet.TakeReply(noData), status::kSuccess);
}

constexpr std::size_t kScsiData = 88;

TEST(ScsiPassThroughPacketTest, IsLaidOutAsTheDriverExpects) {
  std::array<std::uint8_t, 20> page{};
  page.fill(0x5A);
  const ModeSelect10IecPage select(page.data());
  ScsiPassThroughPacket packet(select, 1);
  const Bytes expected = Reply(kScsiData + 20, {{0, {56}},
                                                {6, {10, 32, 0}},
                                                {12, {20, 0, 0, 0, 30}},
                                                {24, {88}},
                                                {32, {56}},
                                                {36, {0x55, 0x10, 0, 0, 0, 0, 0, 0, 20}},
                                                {kScsiData, Bytes(20, 0x5A)}});
  EXPECT_EQ(ToBytes(packet.Exchanged()), expected);

  std::array<std::uint8_t, 36> data{};
  EXPECT_EQ(ScsiPassThroughPacket(Inquiry(data.data(), 36, false, 0), -5).Exchanged()[8], 1);
  EXPECT_EQ(ScsiPassThroughPacket(SendDiagnostic(1), 0).Exchanged()[8], 2);
}

TEST(ScsiPassThroughPacketTest, TakesNoMoreThanItAskedFor) {
  std::array<std::uint8_t, 37> data{};
  data.back() = 0x77;
  Inquiry inquiry(data.data(), 36, false, 0);
  ScsiPassThroughPacket packet(inquiry, 1);
  Return(packet, 2, {kCheckCondition});
  Return(packet, 7, {200});
  Return(packet, 12, {0, 0, 1, 0});
  Return(packet, 32, {0xFF, 0xFF});  // a sense offset that the driver made up
  Return(packet, 56, {0x70, 0, 5});
  Return(packet, kScsiData, Bytes(36, 0x11));
  packet.TakeReply(inquiry);
  EXPECT_EQ(inquiry.status, kCheckCondition);
  EXPECT_EQ(inquiry.senseLength, 32U);
  EXPECT_EQ(inquiry.sense[2], 5);
  EXPECT_EQ(inquiry.length, 36U);
  EXPECT_EQ(data[35], 0x11);
  EXPECT_EQ(data.back(), 0x77);
}

TEST(NvmeIntelPacketTest, IsLaidOutAsTheMiniportExpects) {
  std::array<std::uint8_t, 4> data{};
  NvmeRead read(data.data(), 0x1122334455667788, 2, 1, true);
  read.commandDword0 = 0xABCD8302;  // what belongs to the driver is cleared
  read.metadataPointer = 0x0102030405060708;
  read.pathId = 9;
  read.timeout = 7;
  read.length = data.size();
  NvmeIntelPacket packet(read);
  const Bytes expected = Reply(172, {{0, {28}},
                                     {4, Chars("IntelNvm")},
                                     {12, {7}},
                                     {16, {0x08, 0x28, 0x00, 0xF0}},
                                     {24, {144}},
                                     {28, {1, 9}},
                                     {32, {0x02, 0, 0, 0, 1}},
                                     {48, {8, 7, 6, 5, 4, 3, 2, 1}},
                                     {72, {0x88, 0x77, 0x66, 0x55, 0x44, 0x33, 0x22, 0x11, 0x01, 0, 0, 0x40}},
                                     {96, {1}},
                                     {116, {168, 0, 0, 0, 4}}});
  EXPECT_EQ(ToBytes(packet.Exchanged()), expected);

  Return(packet, 168, {1, 2, 3, 4});
  packet.TakeReply(read);
  EXPECT_EQ(data, (std::array<std::uint8_t, 4>{1, 2, 3, 4}));
}

}  // namespace
}  // namespace orvik::module::storage
