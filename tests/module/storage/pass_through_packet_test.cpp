// The packets of the operating system's and the miniports' pass-throughs, both ways.

#include <algorithm>
#include <tuple>

#include "module/storage/ata/ata_commands.h"
#include "module/storage/ata/ata_pass_through_packet.h"
#include "module/storage/nvme/nvme_commands.h"
#include "module/storage/nvme/nvme_intel_packet.h"
#include "module/storage/scsi/scsi_commands.h"
#include "module/storage/scsi/scsi_pass_through_packet.h"
#include "tests/module/storage/scripted_bridge.h"

namespace orvik::module::storage {
namespace {

Bytes Exchanged(auto& packet) {
  return {packet.Exchanged().begin(), packet.Exchanged().end()};
}

void Return(auto& packet, std::size_t offset, const Bytes& bytes) {
  utils::MutableByteView(packet.Exchanged()).PutBytes({offset, bytes.size()}, bytes);
}

TEST(AtaPassThroughPacketTest, IsLaidOutAsTheDriverExpects) {
  Bytes data = {1, 2, 3, 4, 5, 6, 7, 8};
  WriteSectorsExt write(0x665544332211, 0x0102, 512, data.data());
  write.features = 0xEE99;
  write.length = data.size();
  AtaPassThroughPacket packet(write);
  EXPECT_EQ(Exchanged(packet), Reply(48 + 8, {{0, {48, 0, 0x0D}},
                                              {8, {8, 0, 0, 0, 30}},
                                              {24, {48}},
                                              {32, {0, 0x01, 0x44, 0x55, 0x66}},
                                              {40, {0x99, 0x02, 0x11, 0x22, 0x33, 0x40, 0x34}},
                                              {48, data}}));
}

TEST(AtaPassThroughPacketTest, FlagsTheCommandsKind) {
  Bytes data(1024);
  const auto flags = [](const AtaCmd& command) { return int{AtaPassThroughPacket(command).Exchanged()[2]}; };
  EXPECT_EQ(flags(SmartReadLog(6, 1, data.data())), 0x03);
  EXPECT_EQ(flags(SmartReadLog(6, 2, data.data())), 0x23);
  EXPECT_EQ(flags(ReadLogExt(7, 1, data.data(), 0)), 0x0B);
  EXPECT_EQ(flags(WriteUncorrectableExt(0, 1, true)), 0x09);
}

TEST(AtaPassThroughPacketTest, TakesRegistersAndNoMoreDataThanItAskedFor) {
  using Case = std::tuple<Bytes, Status, std::string, std::ptrdiff_t>;
  for (const auto& [length, result, taken, bytes] :
       {Case{{2, 0, 0, 0}, 0, "in 2", 2}, Case{{0, 0, 0, 0xFF}, 0, "in 512", 512},
        Case{{0, 0, 0, 0}, status::kNoDataTransferred, "in 512", 0}}) {
    Bytes data(513, 0x77);
    ReadSectorsExt read(0x665544332211, 1, 512, data.data(), 30);
    AtaPassThroughPacket packet(read);
    Return(packet, 8, length);
    Return(packet, 40, {0x84, 0x0F, 0xA1, 0xA2, 0xA3, 0xE0, 0x51, 0xFF});
    Return(packet, 48, Bytes(512, 0x11));
    EXPECT_EQ(packet.TakeReply(read), result);
    EXPECT_EQ(Describe(read), "51 f84 n000F l44A1.55A2.66A3 dE0 " + taken);
    EXPECT_EQ(std::ranges::count(data, 0x77), 513 - bytes);
  }
}

TEST(ScsiPassThroughPacketTest, IsLaidOutAsTheDriverExpects) {
  Bytes page(20, 0x5A);
  ScsiPassThroughPacket packet(ModeSelect10IecPage(page.data()), 1);
  EXPECT_EQ(Exchanged(packet), Reply(88 + 20, {{0, {56}},
                                               {6, {10, 32, 0}},
                                               {12, {20, 0, 0, 0, 30}},
                                               {24, {88}},
                                               {32, {56, 0, 0, 0, 0x55, 0x10, 0, 0, 0, 0, 0, 0, 20}},
                                               {88, page}}));
}

TEST(ScsiPassThroughPacketTest, TakesNoMoreThanItAskedFor) {
  Bytes data(37, 0x77);
  Inquiry inquiry(data.data(), 36, false, 0);
  ScsiPassThroughPacket packet(inquiry, 1);
  EXPECT_EQ(packet.Exchanged()[8], 1);  // data in
  Return(packet, 2, {kCheckCondition, 0, 0, 0, 0, 200});
  Return(packet, 12, {0, 0, 1, 0});
  Return(packet, 32, {0xFF, 0xFF});  // a sense offset that the driver made up
  Return(packet, 56, Bytes(32 + 36, 0x11));
  packet.TakeReply(inquiry);
  EXPECT_EQ(inquiry.status, kCheckCondition);
  EXPECT_EQ(inquiry.senseLength, 32U);
  EXPECT_EQ(inquiry.sense[31], 0x11);
  EXPECT_EQ(data, Reply(37, {{0, Bytes(36, 0x11)}, {36, {0x77}}}));
}

TEST(NvmeIntelPacketTest, IsLaidOutAsTheMiniportExpects) {
  Bytes data(4);
  NvmeRead read(data.data(), 0x1122334455667788, 2, 1, true);
  read.commandDword0 = 0xABCD8302;  // what belongs to the driver is cleared
  read.metadataPointer = 0x0102030405060708;
  read.pathId = 9;
  read.timeout = 7;
  read.length = data.size();
  NvmeIntelPacket packet(read);
  EXPECT_EQ(Exchanged(packet), Reply(172, {{0, {28}},
                                           {4, Chars("IntelNvm")},
                                           {12, {7}},
                                           {16, {0x08, 0x28, 0x00, 0xF0}},
                                           {24, {144}},
                                           {28, {1, 9}},
                                           {32, {0x02, 0, 0, 0, 1}},
                                           {48, {8, 7, 6, 5, 4, 3, 2, 1}},
                                           {72, {0x88, 0x77, 0x66, 0x55, 0x44, 0x33, 0x22, 0x11, 1, 0, 0, 0x40}},
                                           {96, {1}},
                                           {116, {168, 0, 0, 0, 4}}}));
  Return(packet, 168, {1, 2, 3, 4});
  packet.TakeReply(read);
  EXPECT_EQ(data, (Bytes{1, 2, 3, 4}));
}

}  // namespace
}  // namespace orvik::module::storage
