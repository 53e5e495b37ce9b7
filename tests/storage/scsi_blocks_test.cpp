#include <array>
#include <tuple>

#include "module/storage/scsi/scsi_protocol.h"
#include "tests/storage/scripted_bridge.h"

namespace orvik::module::storage {
namespace {

constexpr auto kRead16 = "88 18 00 00 00 00 00 00 00 09 00 00 00 01 00 00 in 512";
constexpr auto kRead12 = "A8 18 00 00 00 09 00 00 00 01 00 00 in 512";
constexpr auto kRead10 = "28 18 00 00 00 09 00 00 01 00 in 512";
constexpr auto kWrite16 = "8A 08 00 00 00 00 00 00 00 09 00 00 00 01 00 00 out 512";
constexpr auto kWrite12 = "AA 08 00 00 00 09 00 00 00 01 00 00 out 512";
constexpr auto kWrite10 = "2A 08 00 00 00 09 00 00 01 00 out 512";

class ScsiBlocksTest : public DriveTest<ScsiProtocol, ScriptedScsi> {
 protected:
  /// Gives the drive a last LBA (high and low half) and a sector size.
  void IdentifyDrive(std::uint32_t lastHigh, std::uint32_t lastLow, std::uint32_t sectorSize) {
    Bytes capacity(32);
    const utils::MutableByteView view(capacity);
    view.Put(utils::Be32{0}, lastHigh);
    view.Put(utils::Be32{4}, lastLow);
    view.Put(utils::Be32{8}, sectorSize);
    bridge->Expect("12 00 00 00 40 00 in 64", Fails(34));
    bridge->Expect("12 01 80 00 40 00 in 64", Fails(34));
    bridge->Expect("9E 10 00 00 00 00 00 00 00 00 00 00 00 20 00 00 in 32", Answers(capacity));
    bridge->Expect("12 01 B1 00 40 00 in 64", Fails(34));
    properties.interfaceHint = 2;
    ASSERT_EQ(protocol.GetProperties(&properties), status::kSuccess);
  }

  Status Read(std::uint64_t lba = 9) { return protocol.Read(lba, 1, 5, data.data(), 512); }
  Status Write(std::uint64_t lba = 9) { return protocol.Write(lba, 1, 0, data.data()); }

  const std::function<Status(ScsiCmd&)> refuses = EndsWithStatus(kCheckCondition, FixedSense(5, 0x20));
  std::array<std::uint8_t, 512> data{};
};

TEST_F(ScsiBlocksTest, RemembersTheCdbThatTheDriveUnderstands) {
  EXPECT_EQ(Read(), status::kBadArgument);  // sector size unknown
  IdentifyDrive(0, 0x7FFFFFFF, 512);
  bridge->Expect(kRead16, refuses);
  bridge->Expect(kRead12, Answers(Bytes(512, 0x5A)));
  EXPECT_EQ(Read(), status::kSuccess);
  EXPECT_EQ(data[511], 0x5A);
  bridge->Expect(kRead12, Fails(34));
  bridge->Expect(kRead10, Answers(Bytes(512)));
  EXPECT_EQ(Read(), status::kSuccess);
  bridge->Expect(kRead10, refuses);
  EXPECT_EQ(Read(), status::kCommandRefused);

  for (int i = 0; i < 2; ++i) {  // writes start with the longest CDB every time
    bridge->Expect(kWrite16, refuses);
    bridge->Expect(kWrite12, Fails(34));
    bridge->Expect(kWrite10, Fails(125));
    EXPECT_EQ(Write(), status::kAccessDenied);
  }
}

TEST_F(ScsiBlocksTest, NeverAddressesAnotherSectorByAShorterCdb) {
  IdentifyDrive(1, 0, 512);
  bridge->Expect(kRead16, refuses);
  EXPECT_EQ(Read(), status::kDriveTooLarge);
  bridge->Expect(kWrite16, refuses);
  EXPECT_EQ(Write(), status::kDriveTooLarge);

  // A drive that a short CDB covers, and an address that it doesn't.
  IdentifyDrive(0, 0xFFFFFFFF, 512);
  bridge->Expect("88 18 00 00 00 01 00 00 00 09 00 00 00 01 00 00 in 512", refuses);
  EXPECT_EQ(Read(0x100000009), status::kDriveTooLarge);
  bridge->Expect("8A 08 00 00 00 01 00 00 00 09 00 00 00 01 00 00 out 512", refuses);
  EXPECT_EQ(Write(0x100000009), status::kDriveTooLarge);
  bridge->Expect(kRead16, refuses);
  bridge->Expect(kRead12, Answers(Bytes(512)));
  EXPECT_EQ(Read(), status::kSuccess);
  EXPECT_EQ(Read(0x100000009), status::kDriveTooLarge);
}

TEST_F(ScsiBlocksTest, SaysWhyAReadFailed) {
  using Case = std::tuple<Bytes, std::uint8_t, Status>;
  IdentifyDrive(0, 99, 512);
  for (const auto& [sense, scsiStatus, result] : std::vector<Case>{{FixedSense(3, 0x11), 2, 75},
                                                                   {FixedSense(4, 0x44), 2, 75},
                                                                   {FixedSense(14, 0x1D), 2, 75},
                                                                   {FixedSense(1, 0x11), 2, 75},
                                                                   {FixedSense(11, 0x47, 5), 2, 74},
                                                                   {FixedSense(4, 0x47, 0), 2, 74},
                                                                   {FixedSense(11, 0x47, 6), 2, 33},
                                                                   {FixedSense(2, 0x04, 1), 2, 33},
                                                                   {FixedSense(1, 0x17), 2, 0},
                                                                   {FixedSense(0, 0), 0, 0},
                                                                   {{}, 8, 33}}) {
    bridge->Expect(kRead16, EndsWithStatus(scsiStatus, sense));
    EXPECT_EQ(Read(), result);
  }
  bridge->Expect(kWrite16, EndsWithStatus(kCheckCondition, FixedSense(3, 0x0C)));
  EXPECT_EQ(Write(), status::kScsiStatusNotGood);
}

TEST_F(ScsiBlocksTest, RefusesSectorsThatNoPacketCarries) {
  IdentifyDrive(0, 99, 511);
  EXPECT_EQ(Read(), status::kBadArgument);
  EXPECT_EQ(Write(), status::kBadArgument);
  IdentifyDrive(0, 99, 0xFFFFFFFF);
  EXPECT_EQ(Read(), status::kBadArgument);
  IdentifyDrive(0, 99, 0x10000);
  EXPECT_EQ(Write(), status::kBadArgument);
  IdentifyDrive(0, 99, 512);
  EXPECT_EQ(protocol.Read(0, 1, 5, nullptr, 512), status::kBadArgument);
  EXPECT_EQ(protocol.Write(0, 1, 0, nullptr), status::kBadArgument);
}

}  // namespace
}  // namespace orvik::module::storage
