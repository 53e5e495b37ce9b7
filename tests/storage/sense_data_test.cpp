#include "module/storage/scsi/sense_data.h"

#include <gtest/gtest.h>

#include <optional>

#include "tests/storage/scripted_bridge.h"

namespace orvik::module::storage {
namespace {

struct SenseCase {
  const char* what;
  Bytes sense;
  Status decoded;
  std::vector<int> keyCodeQualifier;
  std::optional<std::array<std::uint8_t, 3>> keySpecific;
};

constexpr std::array<std::uint8_t, 3> kSpecific = {0x80, 0x12, 0x34};

TEST(SenseDataTest, TakesBothFormatsApart) {
  const Bytes descriptor = {0x02, 0x06, 0, 0, 0x80, 0x12, 0x34, 0};
  const Bytes information = {0x00, 0x0A, 0x80, 0, 1, 2, 3, 4, 5, 6, 7, 8};
  Bytes inSecondPlace = information;
  inSecondPlace.insert(inSecondPlace.end(), descriptor.begin(), descriptor.end());

  const std::vector<SenseCase> cases = {
      {"fixed",
       Reply(32, {{0, {0x70, 0, 0xF3}}, {12, {0x11, 0x04}}, {15, {0x80, 0x12, 0x34}}}),
       0,
       {3, 0x11, 4},
       kSpecific},
      {"fixed, deferred, marked valid",
       Reply(32, {{0, {0xF1, 0, 0x02}}, {12, {0x04, 0x09}}}),
       0,
       {2, 4, 9},
       std::array<std::uint8_t, 3>{}},
      {"fixed, cut before the key specific bytes",
       Reply(14, {{0, {0x70, 0, 0x02}}, {12, {0x04, 0x09}}}),
       0,
       {2, 4, 9},
       std::nullopt},
      {"descriptor", Reply(32, {{0, {0x72, 0xF5, 0x24, 1}}, {7, {8}}, {8, descriptor}}), 0, {5, 0x24, 1}, kSpecific},
      {"descriptor, the second one",
       Reply(32, {{0, {0x73, 3, 0x11, 0}}, {7, {20}}, {8, inSecondPlace}}),
       0,
       {3, 0x11, 0},
       kSpecific},
      {"no descriptor", Reply(32, {{0, {0x72, 6, 0x29, 0}}}), 0, {6, 0x29, 0}, std::nullopt},
      {"descriptor behind the additional length",
       Reply(32, {{0, {0x72, 5, 0x24, 0}}, {7, {4}}, {8, descriptor}}),
       0,
       {5, 0x24, 0},
       std::nullopt},
      {"descriptor longer than the sense data",
       Reply(32, {{0, {0x72, 5, 0x24, 0}}, {7, {255}}, {8, {2, 250}}}),
       0,
       {5, 0x24, 0},
       std::nullopt},
      {"descriptor too short for its bytes",
       Reply(32, {{0, {0x72, 5, 0x24, 0}}, {7, {4}}, {8, {2, 2, 9, 9}}}),
       0,
       {5, 0x24, 0},
       std::nullopt},
      {"descriptors that never end", Reply(32, {{0, {0x72, 5, 0x24, 0}}, {7, {255}}}), 0, {5, 0x24, 0}, std::nullopt},
      {"an unknown format", Reply(32, {{0, {0x6F, 5, 0x24}}}), 79, {0, 0, 0}, std::nullopt},
      {"zeros", Bytes(32), 79, {0, 0, 0}, std::nullopt},
      {"nothing", {}, 79, {0, 0, 0}, std::nullopt},
  };
  for (const auto& entry : cases) {
    SCOPED_TRACE(entry.what);
    SenseData sense;
    EXPECT_EQ(sense.Decode(utils::ByteView(entry.sense)), entry.decoded);
    EXPECT_EQ((std::vector<int>{sense.senseKey, sense.additionalSenseCode, sense.additionalSenseCodeQualifier}),
              entry.keyCodeQualifier);
    const auto specific = sense.descriptors.find(kSenseKeySpecific);
    ASSERT_EQ(specific != sense.descriptors.end(), entry.keySpecific.has_value());
    if (entry.keySpecific) {
      EXPECT_EQ(specific->second, *entry.keySpecific);
    }
  }
}

TEST(SenseDataTest, ForgetsWhatItDecodedBefore) {
  SenseData sense;
  sense.Decode(utils::ByteView(Reply(32, {{0, {0x70, 0, 3}}, {12, {0x11}}, {15, {1, 2, 3}}})));
  EXPECT_EQ(sense.Decode(utils::ByteView(Bytes{0x72, 5, 0x24})), status::kSuccess);
  EXPECT_TRUE(sense.descriptors.empty());
}

}  // namespace
}  // namespace orvik::module::storage
