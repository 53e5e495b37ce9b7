#include "module/storage/ata/ata_protocol.h"

#include <array>
#include <tuple>

#include "tests/storage/scripted_bridge.h"

namespace orvik::module::storage {
namespace {

constexpr auto kReadSmart = "B0 fD0 n0001 l0000.004F.00C2 d00 in 512";

class AtaProtocolTest : public DriveTest<AtaProtocol, ScriptedAta> {
 protected:
  /// Makes the drive one of 512-byte sectors.
  void IdentifyDrive(bool lba48, std::uint16_t sizeHigh = 0) {
    bridge->Expect(
        "EC f00 n0001 l0000.0000.0000 d00 in 512",
        Answers(
            Reply(512, {{121, {1}},
                        {167, {static_cast<std::uint8_t>(lba48 ? 4 : 0)}},
                        {213, {static_cast<std::uint8_t>(sizeHigh != 0 ? 0x50 : 0)}},
                        {236, {static_cast<std::uint8_t>(sizeHigh), static_cast<std::uint8_t>(sizeHigh >> 8)}}})));
    bridge->Expect("2F f00 n0001 l00DF.0000.0000 d00 in 512", Fails(status::kIoctlFailed));
    ASSERT_EQ(protocol.GetProperties(&properties), status::kSuccess);
  }

  std::array<std::uint8_t, 2048> data{};
};

TEST_F(AtaProtocolTest, ReadsAndWritesByTheDrivesAddressing) {
  EXPECT_EQ(protocol.Read(0, 1, 5, data.data(), 512), status::kBadArgument);  // sector size unknown
  IdentifyDrive(false);
  bridge->Expect("20 f00 n0002 l00EF.00CD.00AB d4F in 1024", Answers(Bytes(1024, 0x5A)));
  EXPECT_EQ(protocol.Read(0xFABCDEF, 2, 5, data.data(), 0), status::kSuccess);
  EXPECT_EQ(data[1023], 0x5A);
  bridge->Expect("30 f00 n0001 l0000.0000.0000 d40 out 512", Answers());
  EXPECT_EQ(protocol.Write(0, 1, 0, data.data()), status::kSuccess);
  IdentifyDrive(true);
  bridge->Expect("24 f00 n0001 l00EF.00CD.00AB d40 in 512", Answers(Bytes(512)));
  EXPECT_EQ(protocol.Read(0xABCDEF, 1, 5, data.data(), 512), status::kSuccess);
  bridge->Expect("34 f00 n0001 l5500.0000.0000 d40 out 512", EndsWithError(0x10));
  EXPECT_EQ(protocol.Write(0x55000000, 1, 0, data.data()), status::kDeviceError);
}

TEST_F(AtaProtocolTest, SendsNothingThatTheRegistersCannotSay) {
  const auto refuses = [this](std::uint64_t lba, std::uint16_t count) {
    return protocol.Read(lba, count, 5, data.data(), 2048) == status::kBadArgument &&
           protocol.Write(lba, count, 0, data.data()) == status::kBadArgument;
  };
  IdentifyDrive(false);
  EXPECT_TRUE(refuses(0, 0));
  EXPECT_TRUE(refuses(0, 256));
  EXPECT_TRUE(refuses(0x0FFFFFFF, 2));
  IdentifyDrive(true);
  EXPECT_TRUE(refuses(~std::uint64_t{0}, 1));
  EXPECT_EQ(protocol.WriteUncorrectable(std::uint64_t{1} << 48), status::kBadArgument);
  EXPECT_EQ(protocol.Read(0, 1, 5, nullptr, 512), status::kBadArgument);
  IdentifyDrive(true, 0x8000);  // sectors of 2 GiB
  EXPECT_TRUE(refuses(0, 2));
}

TEST_F(AtaProtocolTest, SaysWhyAReadFailed) {
  using Case = std::tuple<std::uint8_t, Status, Status>;
  IdentifyDrive(false);
  for (const auto& [error, sent, result] :
       std::vector<Case>{{0x40, 89, 75}, {0xC0, 0, 75}, {0x84, 89, 74}, {0x04, 0, 88}, {0x40, 34, 34}}) {
    bridge->Expect("20 f00 n0001 l0000.0000.0000 d40 in 512", EndsWithError(error, sent));
    EXPECT_EQ(protocol.Read(0, 1, 5, data.data(), 512), result);
  }
  bridge->Expect("20 f00 n0001 l0000.0000.0000 d40 in 512", Fails(89));
  EXPECT_EQ(protocol.Read(0, 1, 5, data.data(), 512), status::kSuccess);
}

TEST_F(AtaProtocolTest, ReadsSmartData) {
  const Bytes smart = Reply(512, {{2, {194, 0, 0, 100, 0, 41}},
                                  {14, {233, 0, 0, 0}},
                                  {26, {233, 0, 0, 254}},
                                  {38, {233, 0, 0, 87}},
                                  {50, {233, 0, 0, 12}},
                                  {350, {194, 0, 0, 100, 0, 35}},
                                  {363, {0x73}}});
  for (int i = 0; i < 4; ++i) bridge->Expect(kReadSmart, AnswersUncounted(smart));
  std::uint8_t number = 0;
  std::uint32_t percent = 0;
  EXPECT_EQ(protocol.GetTemperature(number), status::kSuccess);
  EXPECT_EQ(number, 35);  // the last entry
  EXPECT_EQ(protocol.GetLifeRemaining(percent), status::kSuccess);
  EXPECT_EQ(percent, 87U);  // the first one in range
  EXPECT_EQ(protocol.GetSelfTestProgress(number), status::kSuccess);
  EXPECT_EQ(number, 70);
  EXPECT_EQ(protocol.GetSelfTestResult(number), status::kSuccess);
  EXPECT_EQ(number, 7);
}

TEST_F(AtaProtocolTest, LeavesOutputsAloneWithoutAnAnswer) {
  std::uint8_t number = 99;
  std::uint32_t percent = 99;
  bridge->Expect(kReadSmart, Answers(Bytes(512)));
  EXPECT_EQ(protocol.GetTemperature(number), status::kSuccess);
  for (const auto& [answer, result] : {std::pair<std::function<Status(AtaCmd&)>, Status>{EndsWithError(4), 88},
                                       {Fails(status::kAccessDenied), status::kAccessDenied}}) {
    for (int i = 0; i < 3; ++i) bridge->Expect(kReadSmart, answer);
    EXPECT_EQ(protocol.GetTemperature(number), result);
    EXPECT_EQ(protocol.GetSelfTestProgress(number), result);
    EXPECT_EQ(protocol.GetSelfTestResult(number), result);
  }
  bridge->Expect(kReadSmart, EndsWithError(4));
  EXPECT_EQ(protocol.GetLifeRemaining(percent), status::kSuccess);
  bridge->Expect(kReadSmart, Fails(34));
  EXPECT_EQ(protocol.GetLifeRemaining(percent), 34U);
  EXPECT_EQ(number, 99);
  EXPECT_EQ(percent, 99U);
}

TEST_F(AtaProtocolTest, AProgressBelowNothingIsNone) {
  bridge->Expect(kReadSmart, Answers(Reply(512, {{363, {0xFF}}})));
  std::uint8_t percent = 99;
  EXPECT_EQ(protocol.GetSelfTestProgress(percent), status::kSuccess);
  EXPECT_EQ(percent, 0);
}

TEST_F(AtaProtocolTest, StartsAndAbortsSelfTests) {
  constexpr auto kStart = "B0 fD4 n0003 l0081.004F.00C2 d00 no data";
  for (const auto& [error, result] :
       std::vector<std::pair<std::uint8_t, Status>>{{0x14, 108}, {0x10, 109}, {1, 88}}) {
    bridge->Expect(kStart, EndsWithError(error));
    EXPECT_EQ(protocol.StartSelfTest(0x81, 3), result);
  }
  bridge->Expect(kStart, Answers());
  EXPECT_EQ(protocol.StartSelfTest(0x81, 3), status::kSuccess);
  bridge->Expect("B0 fD4 n0000 l007F.004F.00C2 d00 no data", EndsWithError(4));
  EXPECT_EQ(protocol.AbortSelfTest(), status::kDeviceError);
  bridge->Expect("45 f55 n0001 l0001.0000.0000 d40 no data", Answers());
  EXPECT_EQ(protocol.WriteUncorrectable(1), status::kSuccess);
  bridge->Expect("B0 fD9 n0000 l0000.004F.00C2 d00 no data", Answers());
  EXPECT_EQ(protocol.SetSmartEnabled(0), status::kSuccess);
}

TEST_F(AtaProtocolTest, JudgesHealthByTheReturnedSignature) {
  using Case = std::tuple<std::uint16_t, std::uint16_t, std::uint8_t, Status, std::uint8_t>;
  // Without a verdict of the drive the operating system is asked, on a handle that is none here.
  for (const auto& [mid, high, ataStatus, result, healthy] : std::vector<Case>{{0x004F, 0x00C2, 0x50, 0, 1},
                                                                               {0x01F4, 0x022C, 0x50, 0, 0},
                                                                               {0x004F, 0x002C, 0x50, 34, 9},
                                                                               {0x00F4, 0x002C, 0x51, 34, 9}}) {
    bridge->Expect("B0 fDA n0000 l0000.004F.00C2 d00 no data",
                   [mid = mid, high = high, ataStatus = ataStatus](AtaCmd& command) {
                     command.lbaMid = mid;
                     command.lbaHigh = high;
                     command.command = ataStatus;
                     return status::kSuccess;
                   });
    std::uint8_t output = 9;
    EXPECT_EQ(protocol.GetHealthStatus(output), result);
    EXPECT_EQ(output, healthy);
  }
}

TEST_F(AtaProtocolTest, NamesThePowerMode) {
  for (const auto& [count, expected] : std::vector<std::pair<std::uint16_t, std::uint32_t>>{
           {0x00, 0}, {0x01, 0}, {0x80, 1}, {0x83, 1}, {0x84, 3}, {0x40, 3}, {0xFF, 2}, {0x01FF, 2}}) {
    bridge->Expect("E5 f00 n0000 l0000.0000.0000 d00 no data", [count = count](AtaCmd& command) {
      command.sectorCount = count;
      return status::kSuccess;
    });
    std::uint32_t mode = 9;
    EXPECT_EQ(protocol.GetPowerMode(mode), status::kSuccess);
    EXPECT_EQ(mode, expected) << count;
  }
}

}  // namespace
}  // namespace orvik::module::storage
