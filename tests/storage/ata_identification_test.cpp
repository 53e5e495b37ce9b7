#include <array>
#include <tuple>

#include "module/storage/ata/ata_protocol.h"
#include "module/storage/ata/identify_data.h"
#include "tests/storage/scripted_bridge.h"

namespace orvik::module::storage {
namespace {

using Words = std::vector<std::pair<std::size_t, std::uint16_t>>;

constexpr auto kIdentify = "EC f00 n0001 l0000.0000.0000 d00 in 512";
constexpr auto kReadLabel = "2F f00 n0001 l00DF.0000.0000 d00 in 512";
constexpr auto kReadSmart = "B0 fD0 n0001 l0000.004F.00C2 d00 in 512";

/// Identify data with a text from a word on (two characters per word, the first in the high byte) and other words.
Bytes Identify(const Words& words, const std::vector<std::pair<std::size_t, std::string>>& texts = {}) {
  Bytes data(512);
  const utils::MutableByteView view(data);
  for (const auto& [word, text] : texts) {
    for (std::size_t i = 0; i < text.size(); ++i) data[2 * word + (i ^ 1)] = static_cast<std::uint8_t>(text[i]);
  }
  for (const auto& [word, value] : words) view.Put(utils::Le16{2 * word}, value);
  return data;
}

Bytes Checked(Bytes data) {
  data[510] = 0xA5;
  return WithChecksum(std::move(data));
}

class AtaIdentificationTest : public DriveTest<AtaProtocol, ScriptedAta> {
 protected:
  void ExpectIdentify(const Bytes& identify, Status labelRead = status::kIoctlFailed) {
    bridge->Expect(kIdentify, Answers(identify));
    bridge->Expect(kReadLabel, Fails(labelRead));
  }
};

TEST_F(AtaIdentificationTest, DescribesTheDrive) {
  const Bytes identify = Checked(
      Identify({{21, 77},
                {60, 0xFFFF},
                {61, 0x0FFF},
                {80, 0x01F0},
                {81, 0x0029},
                {82, 0x0003},
                {83, 0x0400},
                {85, 0x0003},
                {100, 0x88B0},
                {101, 0x74E0},
                {102, 1},
                {106, 0x6003},
                {117, 0},
                {118, 9},
                {128, 0x0004},
                {214, 0x0010},
                {215, 2},
                {216, 0x8000},
                {217, 7200}},
               {{10, "  SER IAL 123       "}, {23, "FW 1.0  "}, {27, "SAMSUNG drive 1TB                       "}}));
  bridge->Expect(kIdentify, Answers(identify));
  const Bytes label =
      Reply(512, {{0, Chars("CRV")}, {20, Chars("8S")}, {110, Chars(" LABEL of thirty characters \t ")}});
  for (int attempt = 0; attempt < 5; ++attempt) bridge->Expect(kReadLabel, Answers(label));
  bridge->Expect(kReadSmart, Answers(Reply(512, {{367, {0x35}}})));
  properties.interfaceHint = 2;

  EXPECT_EQ(protocol.GetProperties(&properties), status::kSuccess);
  EXPECT_EQ(properties.protocolName, "ATA");
  EXPECT_EQ(properties.serialNumber, "SER IAL 123");
  EXPECT_EQ(properties.firmwareRevision, "FW 1.0");
  EXPECT_EQ(properties.model, "SAMSUNG drive 1TB");
  EXPECT_EQ(properties.vendor, "Samsung");
  EXPECT_EQ(properties.labelText, " LABEL of thirty characters \t ");
  EXPECT_EQ(properties.supportedStandards.size(), 5U);
  EXPECT_EQ(properties.standardVersion, "ATA8-ACS version 4");
  EXPECT_EQ(properties.sectorCount, 0x174E088B0U);
  EXPECT_EQ(properties.logicalSectorSize, 512U);
  EXPECT_EQ(properties.physicalSectorSize, 4096U);
  EXPECT_EQ(properties.cacheSize, 0x28000U);
  EXPECT_EQ(properties.rotationRate, 7200);
  EXPECT_FALSE(properties.isSolidState);
  EXPECT_TRUE(properties.securitySupported && properties.securityLocked);
  EXPECT_TRUE(properties.smartSupported && properties.smartEnabled && properties.smartDataValid);
  EXPECT_TRUE(properties.offlineImmediateSupported && properties.offlineAbortSupported);
  EXPECT_TRUE(properties.selfTestSupported && properties.conveyanceSelfTestSupported);
  EXPECT_TRUE(properties.lba48Supported);
  EXPECT_EQ(properties.interfaceHint, 2U);

  // A second identification starts anew.
  ExpectIdentify(Identify({{21, 77}, {60, 5}, {100, 9}, {217, 1}, {128, 4}}));
  EXPECT_EQ(protocol.GetProperties(&properties), status::kSuccess);
  EXPECT_EQ(properties.supportedStandards, (std::vector<std::string>{"VERSION_NOT_REPORTED"}));
  EXPECT_EQ(properties.labelText, "");
  EXPECT_EQ(properties.sectorCount, 5U);
  EXPECT_EQ(properties.cacheSize, 77U);
  EXPECT_EQ(properties.vendor, "Generic Vendor");
  EXPECT_TRUE(properties.isSolidState);
  EXPECT_FALSE(properties.smartDataValid || properties.selfTestSupported || properties.securityLocked);
}

TEST_F(AtaIdentificationTest, ReadsSectorSizesAndRates) {
  using Case = std::tuple<Words, std::uint32_t, std::uint32_t, std::uint16_t>;
  for (const auto& [words, logical, physical, rate] :
       std::vector<Case>{{{{106, 0x4000}, {217, 1024}}, 512, 512, 0},
                         {{{106, 0x5000}, {117, 4096}, {217, 1025}}, 4096, 4096, 1025},  // as it stands, not in words
                         {{{106, 0x7002}, {117, 1024}, {217, 65534}}, 1024, 4096, 65534},
                         {{{106, 0x1000}, {117, 4096}, {217, 65535}}, 512, 512, 0},  // not marked valid
                         {{{106, 0xF003}, {117, 4096}}, 512, 512, 0},                // marked invalid
                         {{{106, 0x7001}, {118, 0x8000}}, 0x80000000, 0, 0},         // twice that is no 32-bit size
                         {{{106, 0x5000}}, 0, 0, 0}}) {
    Words all = words;
    all.emplace_back(60, 1);
    ExpectIdentify(Identify(all));
    EXPECT_EQ(protocol.GetProperties(&properties), status::kSuccess);
    EXPECT_EQ(properties.logicalSectorSize, logical);
    EXPECT_EQ(properties.physicalSectorSize, physical);
    EXPECT_EQ(properties.rotationRate, rate);
  }
}

TEST_F(AtaIdentificationTest, RefusesDamagedIdentifyData) {
  const Bytes good = Checked(Identify({{60, 1000}}));
  EXPECT_TRUE(IsValidIdentifyData(utils::ByteView(good)));
  Bytes damaged = good;
  ++damaged[200];
  for (const Bytes& bytes :
       {damaged, Bytes(512), Identify({{0, 0x8000}, {60, 1}}), Bytes(good.begin(), good.end() - 1)}) {
    EXPECT_FALSE(IsValidIdentifyData(utils::ByteView(bytes)));
  }
  bridge->Expect(kIdentify, Answers(damaged));
  properties.model = "kept";
  EXPECT_EQ(protocol.GetProperties(&properties), status::kInvalidData);
  bridge->Expect(kIdentify, Fails(status::kAccessDenied));
  EXPECT_EQ(protocol.GetProperties(&properties), status::kAccessDenied);
  EXPECT_EQ(protocol.GetProperties(nullptr), status::kBadArgument);
  EXPECT_EQ(properties.model, "kept");
}

TEST_F(AtaIdentificationTest, ProbesTheBridgeItself) {
  const Bytes good = Checked(Identify({{60, 1000}}));
  bridge->Expect(kIdentify, Answers(good));
  EXPECT_TRUE(ProbeBridge(*bridge));
  bridge->Expect(kIdentify, Fails(status::kIoctlFailed));
  EXPECT_FALSE(ProbeBridge(*bridge));
  bridge->Expect(kIdentify, Answers(Bytes(512)));
  EXPECT_FALSE(ProbeBridge(*bridge));
  bridge->Expect(kIdentify, Answers(Bytes(511, 0x01)));
  EXPECT_FALSE(ProbeBridge(*bridge));
}

TEST(IdentifyDataTest, TellsTheVendorFromTheModel) {
  for (const auto& [model, vendor] : std::vector<std::pair<std::string, std::string>>{{"SAMSUNG HD103SJ", "Samsung"},
                                                                                      {"  WDC WD10  ", "Wdc"},
                                                                                      {"ST3500 x", "St3500"},
                                                                                      {"ST3500320AS   ", "Seagate"},
                                                                                      {"HTS54", "Hitachi"},
                                                                                      {"WD5000", "Western Digital"},
                                                                                      {"st3500", "Generic Vendor"},
                                                                                      {" ST3500", "Generic Vendor"},
                                                                                      {"   ", "Generic Vendor"},
                                                                                      {"", "Generic Vendor"}}) {
    EXPECT_EQ(VendorFromModel(model), vendor) << model;
  }
}

TEST(IdentifyDataTest, CountsCapacityWithoutWrapping) {
  const auto capacity = [](const Words& words) { return CapacityInBytes(utils::ByteView(Identify(words))); };
  EXPECT_EQ(capacity({{60, 0xFFFF}, {61, 0x0FFF}, {103, 1}}), 0x0FFFFFFFU * std::uint64_t{512});
  EXPECT_EQ(capacity({{60, 1}, {83, 0x0400}, {100, 8}, {106, 0x5000}, {117, 4096}}), 32768U);
  EXPECT_EQ(capacity({{83, 0x0400}, {103, 0xFFFF}}), 0U);
}

}  // namespace
}  // namespace orvik::module::storage
