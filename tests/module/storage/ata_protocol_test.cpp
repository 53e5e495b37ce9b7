#include "module/storage/ata/ata_protocol.h"

#include <array>
#include <tuple>

#include "module/storage/ata/identify_data.h"
#include "module/storage/ata/self_test_log.h"
#include "tests/module/storage/scripted_bridge.h"

namespace orvik::module::storage {
namespace {

constexpr auto kIdentify = "EC f00 n0001 l0000.0000.0000 d00 in 512";
constexpr auto kReadLabel = "2F f00 n0001 l00DF.0000.0000 d00 in 512";
constexpr auto kReadData = "B0 fD0 n0001 l0000.004F.00C2 d00 in 512";

using Words = std::vector<std::pair<std::size_t, std::vector<std::uint16_t>>>;

/// Identify data with words from a number on.
Bytes Identify(const Words& words) {
  Bytes data(512);
  for (const auto& [first, values] : words) {
    std::size_t offset = 2 * first;
    for (const std::uint16_t value : values) {
      utils::MutableByteView(data).Put(utils::Le16{offset}, value);
      offset += 2;
    }
  }
  return data;
}

class AtaProtocolTest : public DriveTest<AtaProtocol, ScriptedAta> {
 protected:
  /// Makes the drive one with 28-bit or 48-bit addresses, of 512-byte sectors or ones of `sizeHigh` times 64 KiB.
  void IdentifyDrive(bool lba48, std::uint16_t sizeHigh = 0) {
    const std::uint16_t lba48Word = lba48 ? 0x0400 : 0;
    const std::uint16_t sizeWord = sizeHigh != 0 ? 0x5000 : 0;
    bridge->Expect(kIdentify,
                   Answers(Identify({{60, {0x0100}}, {83, {lba48Word}}, {106, {sizeWord}}, {118, {sizeHigh}}})));
    bridge->Expect(kReadLabel, Fails(status::kIoctlFailed));
    ASSERT_EQ(protocol.GetProperties(&properties), status::kSuccess);
  }

  Status Read(std::uint64_t lba, std::uint16_t count = 1) { return protocol.Read(lba, count, 5, data.data(), 0); }
  Status Write(std::uint64_t lba, std::uint16_t count = 1) { return protocol.Write(lba, count, 0, data.data()); }

  std::array<std::uint8_t, 2048> data{};
};

TEST_F(AtaProtocolTest, SendsNothingThatTheRegistersCannotSay) {
  using Case = std::tuple<bool, std::uint16_t, std::uint64_t, std::uint16_t>;
  for (const auto& [lba48, sizeHigh, lba, count] :
       {Case{false, 0, 0, 0}, Case{false, 0, 0, 256}, Case{false, 0, 0x0FFFFFFF, 2},
        Case{true, 0, ~std::uint64_t{0}, 1}, Case{true, 0x8000, 0, 2}}) {
    IdentifyDrive(lba48, sizeHigh);
    EXPECT_EQ(Read(lba, count), status::kBadArgument);
    EXPECT_EQ(Write(lba, count), status::kBadArgument);
  }
  EXPECT_EQ(protocol.WriteUncorrectable(std::uint64_t{1} << 48), status::kBadArgument);
  EXPECT_EQ(protocol.Read(0, 1, 5, nullptr, 512), status::kBadArgument);
  EXPECT_EQ(AtaProtocol().Read(0, 1, 5, data.data(), 512), status::kBadArgument);  // sector size unknown
}

TEST_F(AtaProtocolTest, SaysWhyATransferFailed) {
  IdentifyDrive(false);
  using Case = std::pair<Answer, Status>;
  for (const auto& [answer, result] :
       {Case{EndsWithError(0x40, 89), 75}, Case{EndsWithError(0xC0), 75}, Case{EndsWithError(0x84, 89), 74},
        Case{EndsWithError(0x04), 88}, Case{EndsWithError(0x40, 34), 34}, Case{Fails(89), 0}}) {
    bridge->Expect("20 f00 n0001 l00EF.00CD.00AB d4F in 512", answer);
    EXPECT_EQ(Read(0xFABCDEF), result);
  }
  IdentifyDrive(true);
  bridge->Expect("34 f00 n0001 l5500.0000.0000 d40 out 512", EndsWithError(0x40));
  EXPECT_EQ(Write(0x55000000), status::kDeviceError);
}

TEST_F(AtaProtocolTest, ReadsSmartData) {
  const auto smart = Answers(Reply(512, {{2, {194, 0, 0, 100, 0, 41}},
                                         {14, {233, 0, 0, 0}},
                                         {26, {233, 0, 0, 254}},
                                         {38, {233, 0, 0, 87}},
                                         {350, {194, 0, 0, 100, 0, 35}},
                                         {363, {0x73}}}));
  EXPECT_EQ(Ask(&Protocol::GetTemperature, {{kReadData, smart}}), Result(0, 35));    // the last entry
  EXPECT_EQ(Ask(&Protocol::GetLifeRemaining, {{kReadData, smart}}), Result(0, 87));  // the first one in range
  EXPECT_EQ(Ask(&Protocol::GetSelfTestProgress, {{kReadData, smart}}), Result(0, 70));
  EXPECT_EQ(Ask(&Protocol::GetSelfTestResult, {{kReadData, smart}}), Result(0, 7));
  EXPECT_EQ(Ask(&Protocol::GetSelfTestProgress, {{kReadData, Answers(Bytes(512, 0xFF))}}), Result(0, 0));
  EXPECT_EQ(Ask(&Protocol::GetTemperature, {{kReadData, Answers(Bytes(512))}}), Result(0, 99));
  EXPECT_EQ(Ask(&Protocol::GetTemperature, {{kReadData, EndsWithError(4)}}), Result(88, 99));
  EXPECT_EQ(Ask(&Protocol::GetSelfTestResult, {{kReadData, Fails(125)}}), Result(125, 99));
  EXPECT_EQ(Ask(&Protocol::GetLifeRemaining, {{kReadData, EndsWithError(4)}}), Result(0, 99));
}

TEST_F(AtaProtocolTest, TakesItsSelfTestsFromSmartDataOnly) {
  using Flags = std::array<bool, 5>;  // valid data, off-line activity, its abort, self-test, conveyance self-test
  using Case = std::pair<Answer, Flags>;
  const auto offers = [](std::uint8_t capability) { return Answers(Reply(512, {{367, {capability}}})); };
  for (const auto& [smart, expected] :
       {Case{offers(0x01), {true, true}}, Case{offers(0x04), {true, false, true}},
        Case{offers(0x10), {true, false, false, true}}, Case{offers(0x20), {true, false, false, false, true}},
        Case{offers(0xCA), {true}}, Case{Fails(status::kIoctlFailed), {}}}) {
    Expect(
        {{kIdentify, Answers(Identify({{82, {1}}}))}, {kReadLabel, Fails(status::kIoctlFailed)}, {kReadData, smart}});
    ProtocolProperties drive;
    EXPECT_EQ(protocol.GetProperties(&drive), status::kSuccess);
    EXPECT_EQ((Flags{drive.smartDataValid, drive.offlineImmediateSupported, drive.offlineAbortSupported,
                     drive.selfTestSupported, drive.conveyanceSelfTestSupported}),
              expected);
  }
}

TEST_F(AtaProtocolTest, StartsAndAbortsSelfTests) {
  for (const auto& [error, result] : {std::pair(0x14, 108U), {0x10, 109U}, {1, 88U}}) {
    bridge->Expect("B0 fD4 n0003 l0081.004F.00C2 d00 no data", EndsWithError(static_cast<std::uint8_t>(error)));
    EXPECT_EQ(protocol.StartSelfTest(0x81, 3), result);
  }
  bridge->Expect("B0 fD4 n0000 l007F.004F.00C2 d00 no data", EndsWithError(4));
  EXPECT_EQ(protocol.AbortSelfTest(), status::kDeviceError);
}

TEST_F(AtaProtocolTest, JudgesByTheReturnedRegisters) {
  const auto ends = [](std::uint16_t count, std::uint16_t mid, std::uint16_t high, std::uint8_t ataStatus) {
    return [=](AtaCmd& command) {
      command.sectorCount = count;
      command.lbaMid = mid;
      command.lbaHigh = high;
      command.command = ataStatus;
      return status::kSuccess;
    };
  };
  const auto health = [&](std::uint16_t mid, std::uint16_t high, std::uint8_t ataStatus) {
    return Ask(&Protocol::GetHealthStatus,
               {{"B0 fDA n0000 l0000.004F.00C2 d00 no data", ends(0, mid, high, ataStatus)}});
  };
  EXPECT_EQ(health(0x004F, 0x00C2, 0x50), Result(0, 1));
  EXPECT_EQ(health(0x01F4, 0x022C, 0x50), Result(0, 0));
  // Without a verdict of the drive the operating system is asked, on a handle that is none here.
  EXPECT_EQ(health(0x004F, 0x002C, 0x50), Result(34, 99));
  EXPECT_EQ(health(0x00F4, 0x002C, 0x51), Result(34, 99));

  for (const auto& [count, mode] : {std::pair(0x01, 0U), {0x83, 1U}, {0x84, 3U}, {0x40, 3U}, {0x01FF, 2U}}) {
    const auto answer = ends(static_cast<std::uint16_t>(count), 0, 0, 0x50);
    EXPECT_EQ(Ask(&Protocol::GetPowerMode, {{"E5 f00 n0000 l0000.0000.0000 d00 no data", answer}}), Result(0, mode));
  }
}

TEST_F(AtaProtocolTest, TakesTheLabelOfAPageWithoutAChecksum) {
  bridge->Expect(kIdentify, Answers(Identify({{60, {1}}})));
  const Bytes label = Reply(512, {{0, Chars("CRV")}, {20, Chars("8S")}, {110, Bytes(31, 'L')}});
  for (int attempt = 0; attempt < 5; ++attempt) bridge->Expect(kReadLabel, Answers(label));
  EXPECT_EQ(protocol.GetProperties(&properties), status::kSuccess);
  EXPECT_EQ(properties.labelText, std::string(30, 'L'));
}

TEST(IdentifyDataTest, ReadsTheDrivesFeatures) {
  const Bytes identify = Identify({{80, {0x0180, 0x0029, 0x0003, 0x0400, 0, 0x0003}},
                                   {100, {0x88B0, 0x74E0, 1}},
                                   {128, {0x0004}},
                                   {214, {0x0010, 2, 0x8000}}});
  ProtocolProperties drive;
  DescribeIdentifyData(utils::ByteView(identify), drive);
  EXPECT_EQ(drive.standardVersion, "ATA8-ACS version 4");
  EXPECT_EQ(drive.sectorCount, 0x174E088B0U);
  EXPECT_EQ(drive.cacheSize, 0x28000U);
  EXPECT_TRUE(drive.securitySupported && drive.securityLocked && drive.smartSupported && drive.smartEnabled);
}

TEST(IdentifyDataTest, ReadsSectorSizesAndRates) {
  using Case = std::tuple<Words, std::uint32_t, std::uint32_t, std::uint16_t>;
  for (const auto& [words, logical, physical, rate] :
       std::vector<Case>{{{{106, {0x5002}}, {117, {4096}}, {217, {1025}}}, 4096, 4096, 1025},  // not in words
                         {{{106, {0x7002}}, {117, {1024}}, {217, {65534}}}, 1024, 4096, 65534},
                         {{{106, {0x1000}}, {117, {4096}}, {217, {65535}}}, 512, 512, 0},  // not marked valid
                         {{{106, {0xF003}}, {117, {4096}}, {217, {1024}}}, 512, 512, 0},   // marked invalid
                         {{{106, {0x7001}}, {118, {0x8000}}}, 0x80000000, 0, 0}}) {        // twice that is too large
    ProtocolProperties drive;
    DescribeIdentifyData(utils::ByteView(Identify(words)), drive);
    EXPECT_EQ(drive.logicalSectorSize, logical);
    EXPECT_EQ(drive.physicalSectorSize, physical);
    EXPECT_EQ(drive.rotationRate, rate);
  }
}

TEST_F(AtaProtocolTest, RefusesDamagedIdentifyData) {
  const Bytes good = WithChecksum(Identify({{60, {1000}}, {255, {0x00A5}}}));
  Bytes damaged = good;
  ++damaged[200];
  for (const auto& answer : {Answer(Answers(damaged)), Answer(Answers(Bytes(512))),
                             Answer(Answers(Identify({{0, {0x8000}}}))), Answer(Fails(35))}) {
    bridge->Expect(kIdentify, answer);
    EXPECT_EQ(protocol.GetProperties(&properties), status::kInvalidData);
    bridge->Expect(kIdentify, answer);
    EXPECT_FALSE(ProbeBridge(*bridge));
  }
  bridge->Expect(kIdentify, Answers(good));
  EXPECT_TRUE(ProbeBridge(*bridge));
}

TEST(IdentifyDataTest, TellsTheVendorFromTheModel) {
  EXPECT_EQ(VendorFromModel("  WDC WD10  "), "Wdc");
  EXPECT_EQ(VendorFromModel("ST3500320AS   "), "Seagate");
  EXPECT_EQ(VendorFromModel("WD5000"), "Western Digital");
  EXPECT_EQ(VendorFromModel("   "), "Generic Vendor");
}

TEST(IdentifyDataTest, CountsCapacityWithoutWrapping) {
  const auto capacity = [](const Words& words) { return CapacityInBytes(utils::ByteView(Identify(words))); };
  EXPECT_EQ(capacity({{60, {0xFFFF, 0x0FFF}}, {103, {1}}}), 0x0FFFFFFFU * std::uint64_t{512});
  EXPECT_EQ(capacity({{60, {1}}, {83, {0x0400}}, {100, {8}}, {106, {0x5000}}, {117, {4096}}}), 32768U);
  EXPECT_EQ(capacity({{83, {0x0400}}, {103, {0xFFFF}}}), 0U);
}

constexpr auto kSmartDirectory = "B0 fD5 n0001 l0000.004F.00C2 d00 in 512";
constexpr auto kDirectory = "2F f00 n0001 l0000.0000.0000 d00 in 512";
constexpr auto kShortLog = "B0 fD5 n0001 l0006.004F.00C2 d00 in 512";
constexpr auto kPage0 = "2F f00 n0001 l0007.0000.0000 d00 in 512";
constexpr auto kPage1 = "2F f00 n0001 l0007.0001.0000 d00 in 512";

Bytes FirstPage(std::uint8_t index, std::uint8_t revision = 1) {
  return WithChecksum(Reply(512, {{0, {revision, 0, index}}, {4 + 5, {5}}}));
}

Bytes ShortLog(std::uint8_t index, std::uint8_t revision = 1) {
  return WithChecksum(Reply(512, {{0, {revision}}, {508, {index}}, {2 + 24 * 20 + 5, {0x11, 0x22, 0x33, 0x44}}}));
}

TEST_F(AtaProtocolTest, FindsTheLatestDescriptorOfTheExtendedLog) {
  const Bytes second = WithChecksum(Reply(512, {{4 + 26 + 5, {0x66, 0x55, 0x44, 0x33, 0x22, 0x11}}}));
  // A log's size in pages stands in the word of its address. Descriptor 21 is the second one of the second page.
  EXPECT_EQ(Ask(&Protocol::GetSelfTestFailingLba, {{kSmartDirectory, Answers(Reply(512, {{12, {1}}, {14, {77}}}))},
                                                   {kDirectory, Answers(Reply(512, {{12, {77}}, {14, {2}}}))},
                                                   {kPage0, Answers(FirstPage(21))},
                                                   {kPage1, Answers(second)}}),
            Result(0, 0x112233445566));

  // The directory is known from now on; a page that stays bad or is cut short spoils the log.
  const auto bad = Answers(Reply(512, {{0, {1}}, {511, {second.back()}}}));
  const auto cutShort = Answers(Bytes(second.begin(), second.end() - 1));
  Expect({{kPage0, Answers(FirstPage(1))}, {kPage1, bad}, {kPage1, cutShort}, {kPage1, bad}, {kPage1, bad}});
  EXPECT_EQ(Ask(&Protocol::GetSelfTestFailingLba, {{kPage1, bad}}), Result(1, 99));
}

TEST_F(AtaProtocolTest, FallsBackToAShortLogOfOnePage) {
  const auto failingLba = [this](const Script& script) { return Ask(&Protocol::GetSelfTestFailingLba, script); };
  const auto onePage = Answers(Reply(512, {{12, {1}}}));
  EXPECT_EQ(
      failingLba({{kSmartDirectory, onePage}, {kDirectory, EndsWithError(4)}, {kShortLog, Answers(ShortLog(21))}}),
      Result(0, 0x44332211));
  EXPECT_EQ(failingLba({{kShortLog, Fails(34)}}), Result(1, 99));
  for (const auto& directory : {Answer(Fails(34)), Answer(Answers(Reply(512, {{12, {2}}})))}) {
    AtaProtocol drive;
    drive.AddBridge(bridge);
    Expect({{kSmartDirectory, directory}, {kDirectory, Fails(34)}});
    std::uint64_t lba = 9;
    EXPECT_EQ(drive.GetSelfTestFailingLba(lba), status::kFailure);
    EXPECT_EQ(drive.GetSelfTestFailingLba(lba), status::kFailure);  // not asked again
  }
}

TEST(SelfTestLogTest, RefusesDamagedLogs) {
  const auto shortLba = [](const Bytes& log) { return FailingLbaOfSelfTestLog(utils::ByteView(log)).has_value(); };
  EXPECT_TRUE(shortLba(ShortLog(1)) && shortLba(ShortLog(21)));
  Bytes unbalanced = ShortLog(1);
  ++unbalanced[300];
  for (const Bytes& log : {ShortLog(0), ShortLog(22), ShortLog(255), ShortLog(1, 2), unbalanced, Bytes()}) {
    EXPECT_FALSE(shortLba(log));
  }

  const auto longLba = [](const Bytes& log) { return FailingLbaOfExtendedSelfTestLog(utils::ByteView(log)); };
  EXPECT_EQ(longLba(FirstPage(1)), 5U);
  Bytes secondDamaged = FirstPage(20);
  secondDamaged.resize(1024, 1);
  secondDamaged.back() = 0;
  for (const Bytes& log : {FirstPage(0), FirstPage(20), FirstPage(1, 2), secondDamaged, Bytes()}) {
    EXPECT_FALSE(longLba(log));
  }
}

}  // namespace
}  // namespace orvik::module::storage
