#include "module/storage/scsi/scsi_protocol.h"

#include <array>
#include <tuple>

#include "module/storage/scsi/sense_data.h"
#include "tests/module/storage/scripted_bridge.h"

namespace orvik::module::storage {
namespace {

constexpr auto kInquiry = "12 00 00 00 40 00 in 64";
constexpr auto kSerial = "12 01 80 00 40 00 in 64";
constexpr auto kRotation = "12 01 B1 00 40 00 in 64";
constexpr auto kCapacity16 = "9E 10 00 00 00 00 00 00 00 00 00 00 00 20 00 00 in 32";
constexpr auto kExceptions = "4D 00 6F 00 00 00 00 00 FC 00 in 252";
constexpr auto kModeSense6 = "1A 08 1C 00 10 00 in 16";
constexpr auto kModeSense10 = "5A 08 1C 00 00 00 00 00 14 00 in 20";
constexpr auto kRequestSense = "03 00 00 00 FC 00 00 00 00 00 in 252";
constexpr auto kRead16 = "88 18 00 00 00 00 00 00 00 09 00 00 00 01 00 00 in 512";
constexpr auto kRead12 = "A8 18 00 00 00 09 00 00 00 01 00 00 in 512";
constexpr auto kRead10 = "28 18 00 00 00 09 00 00 01 00 in 512";
constexpr auto kWrite16 = "8A 08 00 00 00 00 00 00 00 09 00 00 00 01 00 00 out 512";
constexpr auto kWrite12 = "AA 08 00 00 00 09 00 00 00 01 00 00 out 512";
constexpr auto kWrite10 = "2A 08 00 00 00 09 00 00 01 00 out 512";

class ScsiProtocolTest : public DriveTest<ScsiProtocol, ScriptedScsi> {
 protected:
  Status Identify(std::uint32_t hint = 2) {
    properties.interfaceHint = hint;
    return protocol.GetProperties(&properties);
  }
  void ExpectIdentification(const Bytes& capacity) {
    Expect({{kInquiry, refuses}, {kSerial, refuses}, {kCapacity16, Answers(capacity)}, {kRotation, refuses}});
  }
  /// Gives the drive its capacity: the last LBA and the sector size.
  void SetCapacity(const Bytes& capacity) {
    ExpectIdentification(capacity);
    EXPECT_EQ(Identify(), status::kSuccess);
  }
  Status Read(std::uint64_t lba = 9) { return protocol.Read(lba, 1, 5, data.data(), 512); }
  Status Write(std::uint64_t lba = 9) { return protocol.Write(lba, 1, 0, data.data()); }

  const Answer refuses = EndsWithStatus(kCheckCondition, FixedSense(5, 0x20));
  std::array<std::uint8_t, 512> data{};
};

TEST_F(ScsiProtocolTest, SenseDataDecidesWhetherACommandWasTaken) {
  using Case = std::pair<Bytes, Status>;
  for (const auto& [sense, result] : {Case{FixedSense(5, 0x24), 78}, Case{FixedSense(7, 0x27), 78},
                                      Case{{0x72, 5, 0x24}, 78}, Case{{0x7F}, 79}, Case{FixedSense(3, 0x11), 0}}) {
    bridge->Expect("1D 20 00 00 00 00 no data", EndsWithStatus(kCheckCondition, sense));
    EXPECT_EQ(protocol.StartSelfTest(1, 0), result);
  }
  EXPECT_EQ(protocol.LastSelfTestStatus(), kCheckCondition);
  EXPECT_EQ(protocol.StartSelfTest(8, 0), status::kBadArgument);
  bridge->Expect("1D 80 00 00 00 00 no data", EndsWithStatus(kCheckCondition, FixedSense(6, 0x29)));
  EXPECT_EQ(protocol.AbortSelfTest(), status::kFailure);
}

TEST_F(ScsiProtocolTest, ReadsLogPagesAsFarAsTheyCame) {
  const auto temperature = [this](const Answer& answer) {
    return Ask(&Protocol::GetTemperature, {{"4D 00 4D 00 00 00 00 00 FC 00 in 252", answer}});
  };
  EXPECT_EQ(temperature(Answers(Reply(10, {{9, {38}}}))), Result(0, 38));
  EXPECT_EQ(temperature(Answers(Reply(10, {{9, {0xFF}}}))), Result(1, 99));
  EXPECT_EQ(temperature(Answers(Bytes(9, 1))), Result(1, 99));

  constexpr auto kSelfTests = "4D 00 50 00 00 00 00 00 FC 00 in 252";
  const Bytes failed = Reply(20, {{8, {0x27}}, {12, {1, 2, 3, 4, 5, 6, 7, 8}}});
  const Bytes passed = Reply(20, {{12, Bytes(8, 0xFF)}});
  EXPECT_EQ(Ask(&Protocol::GetSelfTestResult, {{kSelfTests, Answers(failed)}}), Result(0, 7));
  EXPECT_EQ(Ask(&Protocol::GetSelfTestResult, {{kSelfTests, Answers(Bytes(8, 1))}}), Result(1, 99));
  EXPECT_EQ(Ask(&Protocol::GetSelfTestFailingLba, {{kSelfTests, Answers(failed)}}), Result(0, 0x0102030405060708));
  EXPECT_EQ(Ask(&Protocol::GetSelfTestFailingLba, {{kSelfTests, Answers(passed)}}), Result(1, ~std::uint64_t{0}));
  EXPECT_EQ(Ask(&Protocol::GetSelfTestFailingLba, {{kSelfTests, Answers(Bytes(19, 1))}}), Result(1, 99));
}

TEST_F(ScsiProtocolTest, TellsHowFarASelfTestIs) {
  const auto progress = [this](std::uint8_t response, std::uint8_t key, const Bytes& specific) {
    const Bytes sense = Reply(18, {{0, {response, 0, key}}, {15, specific}});
    return Ask(&Protocol::GetSelfTestProgress, {{kRequestSense, Answers(sense)}});
  };
  EXPECT_EQ(progress(0x70, 0, {0x80, 0x40, 0}), Result(0, 25));
  EXPECT_EQ(progress(0x70, 2, {0x80, 0x80, 0}), Result(0, 50));
  EXPECT_EQ(progress(0x70, 3, {0x80, 0x80, 0}), Result(1, 99));
  EXPECT_EQ(progress(0x72, 2, {}), Result(1, 99));
}

Bytes Exceptions(std::uint16_t length, std::uint8_t code, std::uint8_t parameter = 0, std::size_t size = 252) {
  return Reply(size, {{0, {0x2F, 0, static_cast<std::uint8_t>(length >> 8), static_cast<std::uint8_t>(length)}},
                      {5, {parameter, 0, 4, code}}});
}

TEST_F(ScsiProtocolTest, JudgesHealthByPageThenSenseThenOperatingSystem) {
  const auto health = [this](const Script& script) { return Ask(&Protocol::GetHealthStatus, script); };
  const auto failing = Answers(Exceptions(8, 0x5D));
  const auto good = Answers(Exceptions(8, 0));
  const auto sense = [](std::uint8_t code) { return Answers(Reply(252, {{0, {0x70}}, {12, {code}}})); };
  EXPECT_EQ(health({{kExceptions, failing}}), Result(0, 0));
  for (const auto& page : {good, Answers(Exceptions(8, 0x5D, 1)), Answers(Exceptions(6, 0x5D)), Answers(Bytes(8))}) {
    EXPECT_EQ(health({{kExceptions, page}, {kRequestSense, sense(0)}}), Result(0, 1));
    EXPECT_EQ(health({{kExceptions, page}, {kRequestSense, sense(0x5D)}}), Result(0, 0));
  }
  for (const auto& bad : {Answer(Fails(125)), Answer(EndsWithStatus(8)), Answer(Answers(FixedSense(0, 0))),
                          Answer(Answers(Bytes(252)))}) {
    EXPECT_EQ(health({{kExceptions, good}, {kRequestSense, bad}}), Result(34, 99));
  }

  // A page longer than the first reply is asked for again.
  EXPECT_EQ(health({{kExceptions, Answers(Exceptions(248, 0x5D))}}), Result(0, 0));
  bridge->Expect(kExceptions, Answers(Exceptions(300, 0)));
  EXPECT_EQ(health({{"4D 00 6F 00 00 00 00 01 30 00 in 304", failing}}), Result(0, 0));
  bridge->Expect(kExceptions, Answers(Exceptions(0xFFFF, 0)));
  const auto longest = Answers(Exceptions(8, 0x5D, 0, 65535));
  EXPECT_EQ(health({{"4D 00 6F 00 00 00 00 FF FF 00 in 65535", longest}}), Result(0, 0));
}

const Bytes kCapacity = Reply(32, {{3, {1, 0, 0, 0, 0xFF}}, {10, {2, 0}}, {13, {0xF3}}});

/// A mode page, as the drive has it or as it must come back.
Bytes Page(std::size_t size, std::uint8_t code, std::uint8_t flags, std::uint8_t method) {
  return Reply(size, {{size - 12, {code, 10, flags, method, 1, 2, 3, 4}}});
}

auto Takes(const Bytes& expected) {
  return [expected](ScsiCmd& command) {
    const auto data = DataOf(command);
    return Bytes(data.begin(), data.end()) == expected ? status::kSuccess : status::kFailure;
  };
}

TEST_F(ScsiProtocolTest, DisablingFailurePredictionRestoresWhatWasThereFirst) {
  Expect({{kModeSense6, Answers(Page(16, 0x9C, 0x18, 0x01))},
          {"15 11 00 00 10 00 out 16", Takes(Page(16, 0x9C, 0x10, 0x07))}});
  EXPECT_EQ(protocol.SetSmartEnabled(1), status::kSuccess);
  Expect({{kModeSense6, Answers(Page(16, 0x1C, 0x10, 0x06))},
          {"15 10 00 00 10 00 out 16", Takes(Page(16, 0x1C, 0x18, 0x01))}});
  EXPECT_EQ(protocol.SetSmartEnabled(0), status::kSuccess);
}

TEST_F(ScsiProtocolTest, SwitchesFailurePredictionByTheLongCommandsWhenTheShortOnesFail) {
  Expect({{kModeSense6, Answers(Bytes(15))},
          {kModeSense10, Answers(Page(20, 0x1C, 0x08, 0))},
          {"55 10 00 00 00 00 00 00 14 00 out 20", Takes(Page(20, 0x1C, 0x00, 0x06))}});
  EXPECT_EQ(protocol.SetSmartEnabled(1), status::kSuccess);
  Expect({{kModeSense6, Answers(Page(16, 0x1C, 0, 6))},
          {"15 10 00 00 10 00 out 16", EndsWithStatus(8)},
          {kModeSense10, Fails(125)}});
  EXPECT_EQ(protocol.SetSmartEnabled(0), status::kAccessDenied);
}

TEST_F(ScsiProtocolTest, ProbesFailurePrediction) {
  using Case = std::tuple<Answer, Answer, bool, bool>;
  for (const auto& [answer6, answer10, supported, enabled] :
       {Case{Answers(Page(16, 0x1C, 0x10, 6)), {}, true, true}, Case{Answers(Page(16, 0x1C, 0, 7)), {}, true, false},
        Case{Answers(Bytes(15)), Answers(Page(20, 0x1C, 8, 4)), true, false},
        Case{refuses, Answers(Bytes(19)), false, false}}) {
    ExpectIdentification(kCapacity);
    bridge->Expect(kModeSense6, answer6);
    if (answer10) bridge->Expect(kModeSense10, answer10);
    EXPECT_EQ(Identify(4), status::kSuccess);
    EXPECT_EQ(properties.smartSupported, supported);
    EXPECT_EQ(properties.smartEnabled, enabled);
  }
}

/// Sense key, additional sense code and qualifier, then the key specific bytes or "none".
std::string Describe(const SenseData& sense) {
  std::string text;
  for (const auto byte : {sense.senseKey, sense.additionalSenseCode, sense.additionalSenseCodeQualifier})
    text += Hex(byte, 2) + " ";
  const auto specific = sense.descriptors.find(kSenseKeySpecific);
  if (specific == sense.descriptors.end()) return text + "none";
  for (const std::uint8_t byte : specific->second) text += Hex(byte, 2);
  return text;
}

TEST(SenseDataTest, TakesBothFormatsApart) {
  const auto fixed = [](std::size_t size, std::uint8_t response, const Bytes& specific) {
    return Reply(size, {{0, {response, 0, 0xF3}}, {12, {0x11, 0x04}}, {15, specific}});
  };
  const auto descriptors = [](std::uint8_t response, std::uint8_t length, const Bytes& list) {
    return Reply(32, {{0, {response, 0xF5, 0x24, 1}}, {7, {length}}, {8, list}});
  };
  const Bytes specific = {0x80, 0x12, 0x34};
  const Bytes descriptor = {0x02, 0x06, 0, 0, 0x80, 0x12, 0x34, 0};
  const Bytes inSecondPlace = Reply(20, {{1, {0x0A, 0x80, 0, 1, 2, 3, 4, 5, 6, 7, 8}}, {12, descriptor}});

  using Case = std::tuple<const char*, Bytes, Status, std::string>;
  const std::vector<Case> cases = {
      {"fixed", fixed(32, 0x70, specific), 0, "03 11 04 801234"},
      {"fixed, deferred, marked valid", fixed(32, 0xF1, {}), 0, "03 11 04 000000"},
      {"fixed, cut before the key specific bytes", fixed(17, 0x70, {}), 0, "03 11 04 none"},
      {"descriptor", descriptors(0x72, 8, descriptor), 0, "05 24 01 801234"},
      {"descriptor, the second one", descriptors(0x73, 20, inSecondPlace), 0, "05 24 01 801234"},
      {"descriptor behind the additional length", descriptors(0x72, 4, descriptor), 0, "05 24 01 none"},
      {"descriptor longer than the sense data", descriptors(0x72, 255, {2, 250}), 0, "05 24 01 none"},
      {"descriptor too short for its bytes", descriptors(0x72, 4, {2, 2, 9, 9}), 0, "05 24 01 none"},
      {"descriptors that never end", descriptors(0x72, 255, {}), 0, "05 24 01 none"},
      {"an unknown format", descriptors(0x6F, 8, descriptor), 79, "00 00 00 none"},
      {"nothing", {}, 79, "00 00 00 none"}};
  SenseData sense;  // one for all: what it decoded before is forgotten
  for (const auto& [what, bytes, decoded, expected] : cases) {
    EXPECT_EQ(sense.Decode(utils::ByteView(bytes)), decoded) << what;
    EXPECT_EQ(Describe(sense), expected) << what;
  }
}

TEST_F(ScsiProtocolTest, TakesIdentificationAsFarAsItCame) {
  const Bytes inquiry = Reply(64, {{0, {0, 1, 6, 2}},
                                   {8, Chars("MAKER   PRODUCT")},
                                   {32, Chars("R1  ")},
                                   {58, {0x0C, 0x11, 0xEE, 0xEE, 0x04, 0x60}}});
  const Bytes serial = Reply(104, {{1, {0x80, 0, 100}}, {4, Bytes(100, 'S')}});
  constexpr auto kLongSerial = "12 01 80 00 68 00 in 104";
  const auto cut = [](const Bytes& reply, std::ptrdiff_t size) {
    return Answers(Bytes(reply.begin(), reply.begin() + size));
  };
  Expect({{kInquiry, cut(inquiry, 35)}, {kSerial, cut(serial, 64)}, {kLongSerial, cut(serial, 103)}});
  Expect({{kCapacity16, Answers(kCapacity)}, {kRotation, Answers({0, 0xB1, 0, 60, 0x27})}});
  EXPECT_EQ(Identify(), status::kSuccess);
  EXPECT_EQ(properties.model + properties.firmwareRevision + properties.serialNumber, "");
  EXPECT_EQ(properties.rotationRate, 0);
  Expect({{kInquiry, cut(inquiry, 63)}, {kSerial, cut(serial, 64)}, {kLongSerial, Answers(serial)}});
  Expect({{kCapacity16, Answers(kCapacity)}, {kRotation, Answers({0, 0xB1, 0, 60, 0x27, 0x10})}});
  EXPECT_EQ(Identify(), status::kSuccess);
  EXPECT_EQ(properties.vendor + properties.model + properties.firmwareRevision, "MAKER   PRODUCTR1  ");
  EXPECT_EQ(properties.serialNumber, std::string(100, 'S'));
  // One of the version descriptors is unknown, another one was cut off.
  EXPECT_EQ(properties.supportedStandards, (std::vector<std::string>{"SAS-1.1 ANSI INCITS 417-2006"}));
  EXPECT_EQ(properties.rotationRate, 10000);
  EXPECT_EQ(properties.sectorCount, 0x100000100U);
  EXPECT_EQ(properties.physicalSectorSize, 4096U);
}

TEST_F(ScsiProtocolTest, FallsBackToTheShortCapacity) {
  using Case = std::tuple<Answer, Answer, Status, std::uint64_t>;
  const auto capacity10 = Answers({0xFF, 0xFF, 0xFF, 0xFE, 0, 0, 2, 0});
  for (const auto& [answer16, answer10, result, sectors] :
       {Case{Fails(34), Answers({0xFF, 0xFF, 0xFF, 0xFF, 0, 0, 2, 0}), 1, 0},
        Case{Fails(34), Answers(Bytes(7)), 35, 0}, Case{Fails(34), Fails(125), 125, 0},
        Case{EndsWithStatus(8), EndsWithStatus(8), 33, 0}, Case{refuses, capacity10, 0, 0xFFFFFFFF},
        Case{Answers(Bytes(11)), capacity10, 0, 0xFFFFFFFF},
        Case{Answers(Bytes(32, 0xFF)), capacity10, 0, 0xFFFFFFFF}}) {
    Expect({{kInquiry, refuses}, {kSerial, refuses}, {kCapacity16, answer16}});
    bridge->Expect("25 00 00 00 00 00 00 00 00 00 in 8", answer10);
    if (result == status::kSuccess) bridge->Expect(kRotation, refuses);
    EXPECT_EQ(Identify(), result);
    EXPECT_EQ(properties.sectorCount, sectors);
  }
}

TEST_F(ScsiProtocolTest, RemembersTheCdbThatTheDriveUnderstands) {
  for (const Bytes& size : {Bytes{0, 0, 1, 0xFF}, Bytes{0xFF, 0xFF, 0xFF, 0xFF}}) {  // no packet carries such sectors
    SetCapacity(Reply(32, {{8, size}}));
    EXPECT_EQ(Read(), status::kBadArgument);
    EXPECT_EQ(Write(), status::kBadArgument);
  }
  SetCapacity({0, 0, 0, 0, 0x7F, 0xFF, 0xFF, 0xFF, 0, 0, 2, 0});
  Expect({{kRead16, refuses}, {kRead12, Answers(Bytes(512))}});
  EXPECT_EQ(Read(), status::kSuccess);
  Expect({{kRead12, Fails(34)}, {kRead10, Answers(Bytes(512))}});
  EXPECT_EQ(Read(), status::kSuccess);
  bridge->Expect(kRead10, refuses);
  EXPECT_EQ(Read(), status::kCommandRefused);

  for (int i = 0; i < 2; ++i) {  // writes start with the longest CDB every time
    Expect({{kWrite16, refuses}, {kWrite12, Fails(34)}, {kWrite10, Fails(125)}});
    EXPECT_EQ(Write(), status::kAccessDenied);
  }
}

TEST_F(ScsiProtocolTest, NeverAddressesAnotherSectorByAShorterCdb) {
  SetCapacity(kCapacity);
  Expect({{kRead16, refuses}, {kWrite16, refuses}});
  EXPECT_EQ(Read(), status::kDriveTooLarge);
  EXPECT_EQ(Write(), status::kDriveTooLarge);

  // A drive that a short CDB covers, and an address that it doesn't.
  SetCapacity({0, 0, 0, 0, 0xFF, 0xFF, 0xFF, 0xFF, 0, 0, 2, 0});
  constexpr std::uint64_t kBeyondShortCdbs = 0x100000009;
  bridge->Expect("88 18 00 00 00 01 00 00 00 09 00 00 00 01 00 00 in 512", refuses);
  EXPECT_EQ(Read(kBeyondShortCdbs), status::kDriveTooLarge);
  bridge->Expect("8A 08 00 00 00 01 00 00 00 09 00 00 00 01 00 00 out 512", refuses);
  EXPECT_EQ(Write(kBeyondShortCdbs), status::kDriveTooLarge);
  Expect({{kRead16, refuses}, {kRead12, Answers(Bytes(512))}});
  EXPECT_EQ(Read(), status::kSuccess);
  EXPECT_EQ(Read(kBeyondShortCdbs), status::kDriveTooLarge);
}

TEST_F(ScsiProtocolTest, SaysWhyAReadFailed) {
  using Case = std::tuple<Bytes, std::uint8_t, Status>;
  SetCapacity({0, 0, 0, 0, 0, 0, 0, 99, 0, 0, 2, 0});
  for (const auto& [sense, scsiStatus, result] :
       {Case{FixedSense(3, 0x0C), 2, 75}, Case{FixedSense(4, 0x44), 2, 75}, Case{FixedSense(14, 0x1D), 2, 75},
        Case{FixedSense(1, 0x11), 2, 75}, Case{FixedSense(11, 0x47, 5), 2, 74}, Case{FixedSense(4, 0x47, 0), 2, 74},
        Case{FixedSense(11, 0x47, 6), 2, 33}, Case{FixedSense(2, 0x04, 1), 2, 33}, Case{FixedSense(1, 0x17), 2, 0},
        Case{FixedSense(0, 0), 0, 0}, Case{{}, 8, 33}}) {
    bridge->Expect(kRead16, EndsWithStatus(scsiStatus, sense));
    EXPECT_EQ(Read(), result);
  }
  bridge->Expect(kWrite16, EndsWithStatus(kCheckCondition, FixedSense(3, 0x0C)));
  EXPECT_EQ(Write(), status::kScsiStatusNotGood);
}

}  // namespace
}  // namespace orvik::module::storage
