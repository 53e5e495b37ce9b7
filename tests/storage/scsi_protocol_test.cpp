#include "module/storage/scsi/scsi_protocol.h"

#include <array>
#include <tuple>

#include "tests/storage/scripted_bridge.h"

namespace orvik::module::storage {
namespace {

constexpr auto kTemperature = "4D 00 4D 00 00 00 00 00 FC 00 in 252";
constexpr auto kSelfTests = "4D 00 50 00 00 00 00 00 FC 00 in 252";
constexpr auto kRequestSense = "03 00 00 00 FC 00 00 00 00 00 in 252";
constexpr auto kAbort = "1D 80 00 00 00 00 no data";

using ScsiProtocolTest = DriveTest<ScsiProtocol, ScriptedScsi>;

TEST_F(ScsiProtocolTest, SenseDataDecidesWhetherACommandWasTaken) {
  for (const auto& [sense, result] : std::vector<std::pair<Bytes, Status>>{{FixedSense(5, 0x24), 78},
                                                                           {FixedSense(7, 0x27), 78},
                                                                           {FixedSense(6, 0x29), 0},
                                                                           {FixedSense(3, 0x11), 0},
                                                                           {{0x72, 5, 0x24}, 78},
                                                                           {{0x7F}, 79},
                                                                           {{0x00}, 79}}) {
    bridge->Expect("1D 20 00 00 00 00 no data", EndsWithStatus(kCheckCondition, sense));
    EXPECT_EQ(protocol.StartSelfTest(1, 0), result);
  }
  EXPECT_EQ(protocol.LastSelfTestStatus(), kCheckCondition);
  EXPECT_EQ(protocol.StartSelfTest(8, 0), status::kBadArgument);
  bridge->Expect(kAbort, EndsWithStatus(kCheckCondition, FixedSense(6, 0x29)));
  EXPECT_EQ(protocol.AbortSelfTest(), status::kFailure);
  bridge->Expect(kAbort, Answers());
  EXPECT_EQ(protocol.AbortSelfTest(), status::kSuccess);
}

TEST_F(ScsiProtocolTest, ReadsLogPagesAsFarAsTheyCame) {
  using Case = std::tuple<std::function<Status(ScsiCmd&)>, Status, std::uint8_t>;
  for (const auto& [answer, result, value] : std::vector<Case>{{Answers(Reply(16, {{0, {0x0D}}, {9, {38}}})), 0, 38},
                                                               {Answers(Reply(16, {{9, {0xFF}}})), 1, 99},
                                                               {Answers(Bytes(9, 1)), 1, 99},
                                                               {Answers(), 1, 99},
                                                               {EndsWithStatus(8), 1, 99},
                                                               {EndsWithStatus(2, FixedSense(5, 0x24)), 1, 99}}) {
    bridge->Expect(kTemperature, answer);
    std::uint8_t degrees = 99;
    EXPECT_EQ(protocol.GetTemperature(degrees), result);
    EXPECT_EQ(degrees, value);
  }

  const Bytes failed = Reply(24, {{8, {0x27}}, {12, {1, 2, 3, 4, 5, 6, 7, 8}}});
  const Bytes passed = Reply(24, {{8, {0x20}}, {12, Bytes(8, 0xFF)}});
  std::uint8_t code = 99;
  std::uint64_t lba = 99;
  bridge->Expect(kSelfTests, Answers(failed));
  EXPECT_EQ(protocol.GetSelfTestResult(code), status::kSuccess);
  EXPECT_EQ(code, 7);
  bridge->Expect(kSelfTests, Answers(failed));
  EXPECT_EQ(protocol.GetSelfTestFailingLba(lba), status::kSuccess);
  EXPECT_EQ(lba, 0x0102030405060708U);
  bridge->Expect(kSelfTests, Answers(passed));
  EXPECT_EQ(protocol.GetSelfTestFailingLba(lba), status::kFailure);
  EXPECT_EQ(lba, ~std::uint64_t{0});
  for (const std::size_t size : {0U, 8U}) {
    bridge->Expect(kSelfTests, Answers(Bytes(size, 1)));
    EXPECT_EQ(protocol.GetSelfTestResult(code), status::kFailure);
  }
  bridge->Expect(kSelfTests, Answers(Bytes(19, 1)));
  EXPECT_EQ(protocol.GetSelfTestFailingLba(lba), status::kFailure);
}

TEST_F(ScsiProtocolTest, TellsHowFarASelfTestIs) {
  const auto fixed = [](std::uint8_t key, std::uint8_t high, std::uint8_t low) {
    return Reply(18, {{0, {0x70, 0, key}}, {15, {0x80, high, low}}});
  };
  using Case = std::tuple<Bytes, Status, std::uint8_t>;
  for (const auto& [sense, result, percent] :
       std::vector<Case>{{fixed(2, 0x80, 0), 0, 50},
                         {fixed(0, 0xFF, 0xFF), 0, 99},
                         {fixed(3, 0x80, 0), 1, 77},
                         {Reply(16, {{0, {0x72, 2, 4, 9}}, {7, {8}}, {8, {2, 6, 0, 0, 0x80, 0x40, 0}}}), 0, 25},
                         {Reply(8, {{0, {0x72, 2, 4, 9}}}), 1, 77},
                         {Reply(17, {{0, {0x70, 0, 2}}}), 1, 77},
                         {Bytes(18), 1, 77},
                         {{}, 1, 77}}) {
    bridge->Expect(kRequestSense, Answers(sense));
    std::uint8_t output = 77;
    EXPECT_EQ(protocol.GetSelfTestProgress(output), result);
    EXPECT_EQ(output, percent);
  }
}

}  // namespace
}  // namespace orvik::module::storage
