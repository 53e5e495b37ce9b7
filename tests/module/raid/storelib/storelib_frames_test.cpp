// The bytes sent to the vendor's library, and the limits on those that come back.

#include <gtest/gtest.h>

#include <array>
#include <bit>
#include <map>

#include "module/raid/storelib/storelib_bridges.h"
#include "module/storage/status.h"

namespace orvik::module::raid {
namespace {

using Bytes = std::vector<std::uint8_t>;
/// Bytes by offset; all others are zero.
using Spots = std::map<std::size_t, Bytes>;

Bytes Expand(std::size_t size, const Spots& spots) {
  Bytes bytes(size);
  for (const auto& [offset, part] : spots)
    std::copy(part.begin(), part.end(), bytes.begin() + std::ptrdiff_t(offset));
  return bytes;
}

Bytes DataOf(const LsiCommand& command) {
  return {command.Data().Bytes().begin(), command.Data().Bytes().end()};
}

Bytes AddressOf(const LsiCommand& command) {
  const auto address = std::bit_cast<std::array<std::uint8_t, 8>>(command.Data().Bytes().data());
  return {address.begin(), address.end()};
}

TEST(LsiCommandTest, PacketsCarryTheirFieldsAndNothingElse) {
  using namespace lsi::code;
  const Bytes id = {0x78, 0x56, 0x34, 0x12};
  LsiCommand initialise(kInitialise);
  LsiCommand close(kClose);
  LsiCommand information = ControllerCommand(kControllerInformation, 0x12345678);
  LsiCommand drive = DriveCommand(kPhysicalDriveInformation, 0x12345678, 0x0A0B);
  LsiCommand start = LogicalDriveCommand(kStartCheck, 0x12345678, 5, 0x0102);
  LsiCommand progress = LogicalDriveCommand(kCheckProgress, 0x12345678, 5);
  struct Case {
    LsiCommand& command;
    Spots spots;
  };
  for (const Case& row : std::vector<Case>{
           {initialise, {{28, {0x04, 0x01}}, {32, AddressOf(initialise)}}},
           {close, {{1, {9}}}},
           {information, {{0, {1, 0}}, {4, id}, {28, {0xB0, 0x09}}, {32, AddressOf(information)}}},
           {drive, {{0, {2, 0}}, {4, id}, {8, {0x0B, 0x0A}}, {28, {0x00, 0x02}}, {32, AddressOf(drive)}}},
           {start, {{0, {3, 7}}, {4, id}, {8, {0x02, 0x01, 5}}}},
           {progress, {{0, {3, 8}}, {4, id}, {10, {5}}, {28, {36}}, {32, AddressOf(progress)}}},
       }) {
    const Bytes packet(row.command.Packet().begin(), row.command.Packet().end());
    EXPECT_EQ(packet, Expand(40, row.spots));
  }
}

class LsiFramesTest : public testing::Test {
 protected:
  storage::ScsiCmd Inquiry() {
    storage::ScsiCmd command;
    command.cdb = {0x12, 0, 0, 0, 36};
    command.cdbLength = 6;
    command.direction = storage::Direction::kIn;
    command.buffer = buffer_.data();
    command.length = 36;
    return command;
  }

  storage::AtaCmd Identify() {
    storage::AtaCmd command;
    command.command = 0xEC;
    command.device = 0xA0;
    command.sectorCount = 1;
    command.direction = storage::Direction::kIn;
    command.buffer = buffer_.data();
    command.length = 512;
    return command;
  }

  std::array<std::uint8_t, 516> buffer_{};
};

TEST_F(LsiFramesTest, FrameScsiCommands) {
  LsiCommand in = FrameScsiCommand(7, 0x0123, Inquiry());
  EXPECT_EQ(DataOf(in),
            Expand(100, {{0, {0x23, 0x01, 1, 0, 2}}, {8, {30}}, {11, {6, 0x12, 0, 0, 0, 36}}, {60, {36}}}));
  EXPECT_EQ(in.DataSize(), 100);

  storage::ScsiCmd write = Inquiry();
  write.direction = storage::Direction::kOut;
  write.cdbLength = 200;
  write.length = 2;
  buffer_ = {0xAA, 0xBB};
  const Bytes out = DataOf(FrameScsiCommand(7, 1, write));
  EXPECT_EQ(out[4], 1);
  EXPECT_EQ(out[11], 16) << "a CDB is no longer than its field";
  EXPECT_EQ(Bytes(out.begin() + 60, out.end()), (Bytes{2, 0, 0, 0, 0xAA, 0xBB}));
}

TEST_F(LsiFramesTest, FrameAtaCommands) {
  EXPECT_EQ(DataOf(FrameAtaCommand(7, 9, Identify())),
            Expand(572, {{0, {9, 2, 30, 0, 0x11}}, {8, {0x27, 0x80, 0xEC}}, {20, {1}}, {32, {20}}, {37, {0x02}}}));

  storage::AtaCmd offLine;
  offLine.command = 0xB0;
  offLine.features = 0xA5D4;
  offLine.lbaLow = 0x0401;
  offLine.lbaMid = 0x054F;
  offLine.lbaHigh = 0x06C2;
  offLine.sectorCount = 0x0708;
  EXPECT_EQ(DataOf(FrameAtaCommand(7, 9, offLine)),
            Expand(60, {{0, {9, 0, 30, 0, 0x04, 0x01}},
                        {8, {0x27, 0x80, 0xB0, 0xD4, 0x01, 0x4F, 0xC2, 0, 0x04, 0x05, 0x06, 0xA5, 0x08, 0x07}},
                        {32, {20}}}));
}

TEST_F(LsiFramesTest, LimitScsiRepliesToTheCommand) {
  for (const auto& [reported, packetSize, length] :
       std::vector<std::tuple<std::uint32_t, std::uint32_t, std::size_t>>{
           {36, 100, 36}, {10, 20, 20}, {0xFFFFFFFF, 0xFFFFFFFF, 36}, {36, 0, 36}}) {
    storage::ScsiCmd command = Inquiry();
    LsiCommand frame = FrameScsiCommand(7, 1, command);
    for (std::uint8_t i = 0; i < 36; ++i) frame.DataWriter().Put(utils::U8{64U + i}, i + 1);
    frame.DataWriter().Put(lsi::scsi_frame::kDataLength, reported);
    frame.DataWriter().Put(lsi::scsi_frame::kScsiStatus, 2);
    frame.Writer().Put(lsi::packet::kDataSize, packetSize);
    buffer_ = {};
    TakeScsiReply(frame, false, command);
    EXPECT_EQ(command.length, length);
    EXPECT_EQ(command.status, 2);
    EXPECT_EQ(command.senseLength, 0);
    const std::size_t delivered = packetSize == 0 ? 0 : std::min<std::size_t>(reported, 36);
    for (std::size_t i = 0; i < 40; ++i) EXPECT_EQ(buffer_.at(i), i < delivered ? i + 1 : 0) << reported << ' ' << i;
  }

  // The data of a write is the caller's: a reply does not change it.
  storage::ScsiCmd write = Inquiry();
  write.direction = storage::Direction::kOut;
  buffer_.fill(0x5A);
  LsiCommand written = FrameScsiCommand(7, 1, write);
  std::ranges::fill(written.DataWriter().Bytes().subspan(64), std::uint8_t{0xEE});
  written.Writer().Put(lsi::packet::kDataSize, 20);
  TakeScsiReply(written, false, write);
  EXPECT_EQ(buffer_.front(), 0x5A);
  EXPECT_EQ(write.length, 36);

  storage::ScsiCmd refused = Inquiry();
  LsiCommand frame = FrameScsiCommand(7, 1, refused);
  for (std::uint8_t i = 0; i < 32; ++i) frame.DataWriter().Put(utils::U8{28U + i}, 0x70 + i);
  TakeScsiReply(frame, true, refused);
  EXPECT_EQ(refused.senseLength, 32);
  EXPECT_EQ(refused.sense.front(), 0x70);
  EXPECT_EQ(refused.sense.back(), 0x70 + 31);
}

TEST_F(LsiFramesTest, LimitAtaRepliesToTheCommand) {
  for (const std::uint32_t reported : {512U, 100U, 0U, 0xFFFFFFFFU}) {
    storage::AtaCmd command = Identify();
    command.features = 0x1100;
    command.lbaLow = 0x2200;
    LsiCommand frame = FrameAtaCommand(7, 9, command);
    for (std::size_t i = 40; i < 572; ++i) frame.DataWriter().Put(utils::U8{i}, static_cast<std::uint8_t>(i));
    frame.DataWriter().Put(lsi::sata_frame::kDataLength, reported);
    buffer_ = {};
    EXPECT_TRUE(IsCompleted(frame));
    TakeAtaReply(frame, command);
    const std::size_t delivered = std::min(reported, 512U);
    EXPECT_EQ(command.length, delivered);
    EXPECT_EQ(command.command, 42);
    EXPECT_EQ(command.features, 0x1100 + 43);
    EXPECT_EQ(command.lbaLow, 0x2200 + 44);
    EXPECT_EQ(command.lbaMid, 45);
    EXPECT_EQ(command.lbaHigh, 46);
    EXPECT_EQ(command.device, 47);
    EXPECT_EQ(command.sectorCount, 52);
    EXPECT_EQ(buffer_.at(511), delivered == 512 ? static_cast<std::uint8_t>(571) : 0);
    EXPECT_EQ(buffer_.at(99), delivered == 0 ? 0 : 159);
    EXPECT_EQ(buffer_.at(512), 0);
    frame.DataWriter().Put(lsi::sata_frame::kCompletionStatus, 5);
    EXPECT_FALSE(IsCompleted(frame));
  }
}

}  // namespace
}  // namespace orvik::module::raid
