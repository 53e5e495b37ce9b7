#include <array>
#include <tuple>

#include "module/storage/scsi/scsi_protocol.h"
#include "tests/storage/scripted_bridge.h"

namespace orvik::module::storage {
namespace {

constexpr auto kInquiry = "12 00 00 00 40 00 in 64";
constexpr auto kSerial = "12 01 80 00 40 00 in 64";
constexpr auto kRotation = "12 01 B1 00 40 00 in 64";
constexpr auto kCapacity16 = "9E 10 00 00 00 00 00 00 00 00 00 00 00 20 00 00 in 32";
constexpr auto kCapacity10 = "25 00 00 00 00 00 00 00 00 00 in 8";
constexpr auto kModeSense6 = "1A 08 1C 00 10 00 in 16";
constexpr auto kModeSense10 = "5A 08 1C 00 00 00 00 00 14 00 in 20";

Bytes StandardInquiry(std::size_t size) {
  Bytes reply = Reply(96, {{0, {0, 1, 6, 2}},
                           {8, Chars("MAKER   ")},
                           {16, Chars("PRODUCT\0rest    ")},
                           {32, Chars("R1  ")},
                           {58, {0x0C, 0x11, 0xEE, 0xEE, 0x04, 0x60, 0x04, 0xC0}}});
  reply.resize(size);
  return reply;
}

Bytes Capacity16(std::uint8_t exponent = 3) {
  return Reply(32, {{3, {1, 0, 0, 0, 0xFF}}, {10, {2, 0}}, {13, {static_cast<std::uint8_t>(0xF0 | exponent)}}});
}

class ScsiIdentificationTest : public DriveTest<ScsiProtocol, ScriptedScsi> {
 protected:
  ScsiIdentificationTest() { properties.interfaceHint = 2; }

  void ExpectAll(const Bytes& inquiry, const Bytes& serial, const Bytes& capacity, const Bytes& rotation) {
    bridge->Expect(kInquiry, Answers(inquiry));
    bridge->Expect(kSerial, Answers(serial));
    bridge->Expect(kCapacity16, Answers(capacity));
    bridge->Expect(kRotation, Answers(rotation));
  }
};

TEST_F(ScsiIdentificationTest, DescribesTheDrive) {
  ExpectAll(StandardInquiry(64), Reply(12, {{1, {0x80, 0, 8}}, {4, Chars("SER\0IAL ")}}), Capacity16(),
            Reply(64, {{1, {0xB1, 0, 60, 0x27, 0x10}}}));
  EXPECT_EQ(protocol.GetProperties(&properties), status::kSuccess);
  EXPECT_EQ(properties.protocolName, "SCSI");
  EXPECT_EQ(properties.vendor, "MAKER   ");
  EXPECT_EQ(properties.model, "PRODUCT");
  EXPECT_EQ(properties.firmwareRevision, "R1  ");
  EXPECT_EQ(properties.serialNumber, "SER");
  EXPECT_EQ(properties.standardVersion, "SCSI Primary Commands 4 - SPC-4");
  // Of the four descriptors one is unknown and one lies behind the 64 bytes that were asked for.
  EXPECT_EQ(properties.supportedStandards, (std::vector<std::string>{"SAS-1.1 ANSI INCITS 417-2006", "SPC-4"}));
  EXPECT_TRUE(properties.inquiryFlag);
  EXPECT_EQ(properties.sectorCount, 0x100000100U);
  EXPECT_EQ(properties.logicalSectorSize, 512U);
  EXPECT_EQ(properties.physicalSectorSize, 4096U);
  EXPECT_EQ(properties.rotationRate, 10000);
  EXPECT_EQ(properties.interfaceHint, 2U);
  EXPECT_FALSE(properties.smartSupported);

  ExpectAll(StandardInquiry(59), {}, Capacity16(), Reply(6, {{1, {0xB1, 0, 2, 0, 1}}}));
  EXPECT_EQ(protocol.GetProperties(&properties), status::kSuccess);
  EXPECT_TRUE(properties.supportedStandards.empty());
  EXPECT_TRUE(properties.isSolidState);
  EXPECT_EQ(properties.rotationRate, 0);
}

TEST_F(ScsiIdentificationTest, IgnoresRepliesThatAreTooShort) {
  ExpectAll(StandardInquiry(35), Reply(3, {{1, {0x80, 0}}}), Capacity16(), Reply(5, {{1, {0xB1, 0, 1, 0x27}}}));
  EXPECT_EQ(protocol.GetProperties(&properties), status::kSuccess);
  EXPECT_EQ(properties.vendor + properties.model + properties.serialNumber + properties.standardVersion, "");
  EXPECT_EQ(properties.rotationRate, 0);
}

TEST_F(ScsiIdentificationTest, AsksAgainForALongSerialNumber) {
  const Bytes page = Reply(104, {{1, {0x80, 0, 100}}, {4, Bytes(100, 'S')}});
  for (const auto& [answered, expected] :
       std::vector<std::pair<std::size_t, std::string>>{{104, std::string(100, 'S')}, {103, ""}}) {
    ScsiProtocol fresh;
    fresh.AddBridge(bridge);
    bridge->Expect(kInquiry, Fails(status::kIoctlFailed));
    bridge->Expect(kSerial, Answers(page));
    bridge->Expect("12 01 80 00 68 00 in 104", Answers(Bytes(page.begin(), page.begin() + std::ptrdiff_t(answered))));
    bridge->Expect(kCapacity16, Answers(Capacity16()));
    bridge->Expect(kRotation, Fails(status::kIoctlFailed));
    EXPECT_EQ(fresh.GetProperties(&properties), status::kSuccess);
    EXPECT_EQ(properties.serialNumber, expected);
  }
}

TEST_F(ScsiIdentificationTest, FallsBackToTheShortCapacity) {
  using Case = std::tuple<std::function<Status(ScsiCmd&)>, std::function<Status(ScsiCmd&)>, Status, std::uint64_t>;
  const Bytes capacity10 = {0xFF, 0xFF, 0xFF, 0xFE, 0, 0, 2, 0};
  const Bytes tooLarge = {0xFF, 0xFF, 0xFF, 0xFF, 0, 0, 2, 0};
  const auto refused = EndsWithStatus(kCheckCondition, FixedSense(5, 0x20));
  for (const auto& [answer16, answer10, result, sectors] :
       std::vector<Case>{{refused, Answers(capacity10), 0, 0xFFFFFFFF},
                         {Answers(Bytes(11)), Answers(capacity10), 0, 0xFFFFFFFF},
                         {Answers(Bytes(32, 0xFF)), Answers(capacity10), 0, 0xFFFFFFFF},
                         {Fails(34), Answers(tooLarge), 1, 0},
                         {Fails(34), Answers(Bytes(7)), 35, 0},
                         {Fails(34), Fails(125), 125, 0},
                         {EndsWithStatus(8), EndsWithStatus(8), 33, 0}}) {
    ScsiProtocol fresh;
    fresh.AddBridge(bridge);
    bridge->Expect(kInquiry, Answers(StandardInquiry(64)));
    bridge->Expect(kSerial, refused);
    bridge->Expect(kCapacity16, answer16);
    bridge->Expect(kCapacity10, answer10);
    if (result == status::kSuccess) bridge->Expect(kRotation, refused);
    EXPECT_EQ(fresh.GetProperties(&properties), result);
    EXPECT_EQ(properties.sectorCount, sectors);
    EXPECT_EQ(properties.vendor, "MAKER   ");  // found out all the same
    EXPECT_EQ(properties.physicalSectorSize, 0U);
  }
  EXPECT_EQ(protocol.GetProperties(nullptr), status::kFailure);
}

TEST_F(ScsiIdentificationTest, ProbesFailurePrediction) {
  using Case = std::tuple<std::function<Status(ScsiCmd&)>, std::function<Status(ScsiCmd&)>, bool, bool>;
  const auto shortPage = [](std::uint8_t flags, std::uint8_t method) {
    return Answers(Reply(16, {{4, {0x1C, 10, flags, method}}}));
  };
  for (const auto& [answer6, answer10, supported, enabled] :
       std::vector<Case>{{shortPage(0x10, 6), {}, true, true},
                         {shortPage(0x08, 6), {}, true, false},
                         {shortPage(0, 7), {}, true, false},
                         {Answers(Bytes(15)), Answers(Reply(20, {{8, {0x1C, 10, 0, 4}}})), true, true},
                         {EndsWithStatus(2), Answers(Reply(20, {{8, {0x1C, 10, 8, 4}}})), true, false},
                         {Fails(34), Answers(Bytes(19)), false, false}}) {
    properties.interfaceHint = 4;
    ExpectAll(StandardInquiry(64), {}, Capacity16(), {});
    bridge->Expect(kModeSense6, answer6);
    if (answer10) bridge->Expect(kModeSense10, answer10);
    EXPECT_EQ(protocol.GetProperties(&properties), status::kSuccess);
    EXPECT_EQ(properties.smartSupported, supported);
    EXPECT_EQ(properties.smartEnabled, enabled);
  }
}

}  // namespace
}  // namespace orvik::module::storage
