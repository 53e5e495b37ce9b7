#include <array>

#include "module/storage/ata/ata_logs.h"
#include "module/storage/ata/ata_protocol.h"
#include "module/storage/ata/self_test_log.h"
#include "tests/storage/scripted_bridge.h"

namespace orvik::module::storage {
namespace {

constexpr auto kSmartDirectory = "B0 fD5 n0001 l0000.004F.00C2 d00 in 512";
constexpr auto kDirectory = "2F f00 n0001 l0000.0000.0000 d00 in 512";
constexpr auto kShortLog = "B0 fD5 n0001 l0006.004F.00C2 d00 in 512";

std::string ExtendedPage(unsigned page) {
  return "2F f00 n0001 l0007." + Hex(page, 4) + ".0000 d00 in 512";
}

Bytes FirstPage(std::uint16_t index, std::size_t position = 0, const Bytes& lba = {}) {
  return WithChecksum(Reply(512, {{0, {1}},
                                  {2, {static_cast<std::uint8_t>(index), static_cast<std::uint8_t>(index >> 8)}},
                                  {4 + 26 * position + 5, lba}}));
}

Bytes ShortLog(std::uint8_t index, std::uint8_t revision = 1) {
  return WithChecksum(Reply(512, {{0, {revision}}, {508, {index}}, {2 + 24 * 20 + 5, {0x11, 0x22, 0x33, 0x44}}}));
}

class AtaSelfTestLogTest : public testing::Test {
 protected:
  AtaSelfTestLogTest() {
    bridges.Add(bridge);
    protocol.AddBridge(bridge);
  }

  /// The two directories; a log's size stands in the word of its address.
  void ExpectDirectory(std::uint8_t shortLogPages, std::uint8_t extendedLogPages) {
    bridge->Expect(kSmartDirectory, Answers(Reply(512, {{12, {shortLogPages}}, {14, {77}}})));
    bridge->Expect(kDirectory, Answers(Reply(512, {{14, {extendedLogPages}}, {12, {77}}})));
  }

  std::shared_ptr<ScriptedAta> bridge = std::make_shared<ScriptedAta>();
  BridgeList<AtaSendRule> bridges;
  AtaProtocol protocol;
  std::uint64_t lba = 9;
};

TEST_F(AtaSelfTestLogTest, FindsTheLatestDescriptorOfTheExtendedLog) {
  ExpectDirectory(1, 2);
  bridge->Expect(ExtendedPage(0), Answers(FirstPage(21)));  // the second descriptor of the second page
  bridge->Expect(ExtendedPage(1),
                 Answers(WithChecksum(Reply(512, {{4 + 26 + 5, {0x66, 0x55, 0x44, 0x33, 0x22, 0x11}}}))));
  EXPECT_EQ(protocol.GetSelfTestFailingLba(lba), status::kSuccess);
  EXPECT_EQ(lba, 0x112233445566U);

  // The directory is known from now on.
  bridge->Expect(ExtendedPage(0), Answers(FirstPage(1, 0, {5})));
  bridge->Expect(ExtendedPage(1), Answers(Bytes(512)));
  EXPECT_EQ(protocol.GetSelfTestFailingLba(lba), status::kSuccess);
  EXPECT_EQ(lba, 5U);
}

TEST_F(AtaSelfTestLogTest, TriesAPageFiveTimesAndGivesUpOnTheLog) {
  ExpectDirectory(1, 1);
  Bytes damaged = FirstPage(1);
  damaged[100] = 1;
  for (int attempt = 0; attempt < 5; ++attempt) bridge->Expect(ExtendedPage(0), Answers(damaged));
  EXPECT_EQ(protocol.GetSelfTestFailingLba(lba), status::kFailure);
  for (int attempt = 0; attempt < 4; ++attempt) bridge->Expect(ExtendedPage(0), Answers(damaged));
  bridge->Expect(ExtendedPage(0), Answers(FirstPage(1)));
  EXPECT_EQ(protocol.GetSelfTestFailingLba(lba), status::kSuccess);
  EXPECT_EQ(lba, 0U);
}

TEST_F(AtaSelfTestLogTest, TheNextPageTakesTheSlotOfABadOne) {
  AtaLogs logs(bridges);
  const Bytes good = WithChecksum(Bytes(512, 3));
  for (int attempt = 0; attempt < 5; ++attempt)
    bridge->Expect(ExtendedPage(0), Answers(good));  // doesn't begin with 1
  // Cut short, the last byte of the page before would make it right.
  bridge->Expect(ExtendedPage(1), Answers(Bytes(good.begin(), good.end() - 1)));
  bridge->Expect(ExtendedPage(1), Answers(good));
  std::array<std::uint8_t, 1024> pages{};
  std::uint16_t read = 9;
  EXPECT_EQ(logs.ReadPages(ata_log::kExtendedSelfTest, 2, pages.data(), &read), status::kSuccess);
  EXPECT_EQ(read, 1);
  EXPECT_EQ(Bytes(pages.begin(), pages.begin() + 512), good);

  bridge->Expect(ExtendedPage(0), Fails(status::kAccessDenied));
  EXPECT_EQ(logs.ReadPages(ata_log::kExtendedSelfTest, 2, pages.data(), &read), status::kAccessDenied);
  EXPECT_EQ(logs.ReadPages(ata_log::kExtendedSelfTest, 2, nullptr, &read), status::kBadArgument);
  EXPECT_EQ(logs.ReadPages(ata_log::kExtendedSelfTest, 2, pages.data(), nullptr), status::kBadArgument);
}

TEST_F(AtaSelfTestLogTest, FallsBackToTheShortLog) {
  bridge->Expect(kSmartDirectory, Answers(Reply(512, {{12, {1}}})));
  bridge->Expect(kDirectory, EndsWithError(4));
  bridge->Expect(kShortLog, Answers(ShortLog(21)));
  EXPECT_EQ(protocol.GetSelfTestFailingLba(lba), status::kSuccess);
  EXPECT_EQ(lba, 0x44332211U);
  bridge->Expect(kShortLog, Fails(34));
  EXPECT_EQ(protocol.GetSelfTestFailingLba(lba), status::kFailure);
}

TEST_F(AtaSelfTestLogTest, AnUnknownDirectoryOrSizeGivesNoLog) {
  bridge->Expect(kSmartDirectory, Fails(34));
  bridge->Expect(kDirectory, Fails(34));
  EXPECT_EQ(protocol.GetSelfTestFailingLba(lba), status::kFailure);
  EXPECT_EQ(protocol.GetSelfTestFailingLba(lba), status::kFailure);  // not asked again

  AtaProtocol other;
  other.AddBridge(bridge);
  ExpectDirectory(2, 0);
  EXPECT_EQ(other.GetSelfTestFailingLba(lba), status::kFailure);
  EXPECT_EQ(lba, 9U);
}

TEST(SelfTestLogTest, RefusesDamagedLogs) {
  const auto shortLba = [](const Bytes& log) { return FailingLbaOfSelfTestLog(utils::ByteView(log)).has_value(); };
  EXPECT_TRUE(shortLba(ShortLog(1)) && shortLba(ShortLog(21)));
  Bytes unbalanced = ShortLog(1);
  ++unbalanced[300];
  for (const Bytes& log : {ShortLog(0), ShortLog(22), ShortLog(255), ShortLog(1, 2), unbalanced, Bytes()}) {
    EXPECT_FALSE(shortLba(log));
  }

  const auto extendedLba = [](const Bytes& log) {
    return FailingLbaOfExtendedSelfTestLog(utils::ByteView(log)).has_value();
  };
  EXPECT_TRUE(extendedLba(FirstPage(1)) && extendedLba(FirstPage(19)));
  Bytes otherRevision = FirstPage(1);
  otherRevision[0] = 2;
  Bytes secondDamaged = FirstPage(20);
  secondDamaged.resize(1024, 1);
  secondDamaged.back() = 0;
  for (const Bytes& log :
       {FirstPage(0), FirstPage(20), FirstPage(0xFFFF), WithChecksum(otherRevision), secondDamaged}) {
    EXPECT_FALSE(extendedLba(log));
  }
}

}  // namespace
}  // namespace orvik::module::storage
