#include <array>
#include <tuple>

#include "module/storage/scsi/scsi_protocol.h"
#include "tests/storage/scripted_bridge.h"

namespace orvik::module::storage {
namespace {

constexpr auto kExceptions = "4D 00 6F 00 00 00 00 00 FC 00 in 252";
constexpr auto kRequestSense = "03 00 00 00 FC 00 00 00 00 00 in 252";
constexpr auto kModeSense6 = "1A 08 1C 00 10 00 in 16";
constexpr auto kModeSense10 = "5A 08 1C 00 00 00 00 00 14 00 in 20";
constexpr auto kModeSelect6 = "15 10 00 00 10 00 out 16";
constexpr auto kModeSelect6Save = "15 11 00 00 10 00 out 16";
constexpr auto kModeSelect10 = "55 10 00 00 00 00 00 00 14 00 out 20";

using ScsiFailurePredictionTest = DriveTest<ScsiProtocol, ScriptedScsi>;

Bytes Exceptions(std::uint16_t length, std::uint8_t code, std::uint8_t parameter = 0) {
  return Reply(252, {{0, {0x2F, 0, static_cast<std::uint8_t>(length >> 8), static_cast<std::uint8_t>(length)}},
                     {5, {parameter, 0, 4, code}}});
}

TEST_F(ScsiFailurePredictionTest, JudgesHealthByPageThenSenseThenOperatingSystem) {
  using Case = std::tuple<std::function<Status(ScsiCmd&)>, std::function<Status(ScsiCmd&)>, Status, std::uint8_t>;
  const auto sense = [](std::uint8_t code) { return Answers(Reply(252, {{0, {0x70, 0, 0}}, {12, {code}}})); };
  for (const auto& [page, asked, result, healthy] :
       std::vector<Case>{{Answers(Exceptions(8, 0x5D)), {}, 0, 0},
                         {Answers(Exceptions(8, 0)), sense(0), 0, 1},
                         {Answers(Exceptions(8, 0)), sense(0x5D), 0, 0},
                         {Answers(Exceptions(8, 0x5D, 1)), sense(0), 0, 1},  // another parameter
                         {Answers(Exceptions(6, 0x5D)), sense(0), 0, 1},     // page too short
                         {Answers(Bytes(8)), sense(0x5D), 0, 0},
                         {EndsWithStatus(8), sense(0), 0, 1},
                         {Fails(125), Fails(125), 34, 9},
                         {Answers(Exceptions(8, 0)), Answers(FixedSense(0, 0)), 34, 9},  // 18 bytes only
                         {Answers(Exceptions(8, 0)), Answers(Bytes(252)), 34, 9},
                         {Answers(Exceptions(8, 0)), EndsWithStatus(8), 34, 9}}) {
    bridge->Expect(kExceptions, page);
    if (asked) bridge->Expect(kRequestSense, asked);
    std::uint8_t output = 9;
    EXPECT_EQ(protocol.GetHealthStatus(output), result);
    EXPECT_EQ(output, healthy);
  }
}

TEST_F(ScsiFailurePredictionTest, AsksAgainForALongPage) {
  using Case = std::tuple<std::uint16_t, const char*, std::function<Status(ScsiCmd&)>>;
  const Bytes small = Exceptions(8, 0x5D);
  for (const auto& [length, again, answer] :
       std::vector<Case>{{300, "4D 00 6F 00 00 00 00 01 30 00 in 304", Answers(small)},
                         {0xFFFF, "4D 00 6F 00 00 00 00 FF FF 00 in 65535", AnswersUncounted(small)}}) {
    bridge->Expect(kExceptions, Answers(Exceptions(length, 0)));
    bridge->Expect(again, answer);
    std::uint8_t output = 9;
    EXPECT_EQ(protocol.GetHealthStatus(output), status::kSuccess);
    EXPECT_EQ(output, 0);
  }
  bridge->Expect(kExceptions, Answers(Exceptions(249, 0x5D)));
  bridge->Expect("4D 00 6F 00 00 00 00 00 FD 00 in 253", EndsWithStatus(8));
  bridge->Expect(kRequestSense, Fails(34));
  std::uint8_t output = 9;
  EXPECT_EQ(protocol.GetHealthStatus(output), status::kIoctlFailed);
}

/// A mode page, as the drive has it or as it must come back.
Bytes Page(std::size_t size, std::uint8_t code, std::uint8_t flags, std::uint8_t method) {
  return Reply(size, {{size - 12, {code, 10, flags, method, 1, 2, 3, 4}}});
}

auto Takes(const Bytes& expected, std::uint8_t scsiStatus = 0) {
  return [expected, scsiStatus](ScsiCmd& command) {
    const auto data = DataOf(command);
    EXPECT_EQ(Bytes(data.begin(), data.end()), expected);
    command.status = scsiStatus;
    return status::kSuccess;
  };
}

TEST_F(ScsiFailurePredictionTest, DisablingRestoresWhatWasThereFirst) {
  bridge->Expect(kModeSense6, Answers(Page(16, 0x9C, 0x18, 0x01)));
  bridge->Expect(kModeSelect6Save, Takes(Page(16, 0x9C, 0x10, 0x07)));
  EXPECT_EQ(protocol.SetSmartEnabled(1), status::kSuccess);
  bridge->Expect(kModeSense6, Answers(Page(16, 0x1C, 0x10, 0x06)));
  bridge->Expect(kModeSelect6, Takes(Page(16, 0x1C, 0x18, 0x01)));
  EXPECT_EQ(protocol.SetSmartEnabled(0), status::kSuccess);
}

TEST_F(ScsiFailurePredictionTest, SwitchesByTheLongCommandsWhenTheShortOnesFail) {
  bridge->Expect(kModeSense6, Answers(Bytes(15)));
  bridge->Expect(kModeSense10, Answers(Page(20, 0x1C, 0x08, 0)));
  bridge->Expect(kModeSelect10, Takes(Page(20, 0x1C, 0x00, 0x06)));
  EXPECT_EQ(protocol.SetSmartEnabled(1), status::kSuccess);

  bridge->Expect(kModeSense6, Answers(Page(16, 0x1C, 0, 6)));
  bridge->Expect(kModeSelect6, Takes(Page(16, 0x1C, 0x08, 0), kCheckCondition));
  bridge->Expect(kModeSense10, Answers(Page(20, 0x1C, 0x00, 6)));
  bridge->Expect(kModeSelect10, Takes(Page(20, 0x1C, 0x08, 0), kCheckCondition));
  EXPECT_EQ(protocol.SetSmartEnabled(0), status::kFailure);

  bridge->Expect(kModeSense6, Fails(34));
  bridge->Expect(kModeSense10, Fails(125));
  EXPECT_EQ(protocol.SetSmartEnabled(0), status::kAccessDenied);
}

}  // namespace
}  // namespace orvik::module::storage
