#include <gtest/gtest.h>

#include <numeric>
#include <string>
#include <vector>

#include "simulation/drives/ata/ata_drive.h"

namespace orvik::simulation {
namespace {

std::vector<std::uint8_t> Identify(const SataDriveDescription& description) {
  std::vector<std::uint8_t> data(512);
  AtaDrive drive(description);
  const auto completion = drive.Execute({.count = 1, .command = 0xEC}, data);
  EXPECT_TRUE(completion && completion->status == 0x50 && completion->transferred == 512);
  return data;
}

unsigned Word(const std::vector<std::uint8_t>& data, std::size_t number) {
  return data.at(2 * number) | static_cast<unsigned>(data.at(2 * number + 1)) << 8;
}

// As a host reads the texts: the bytes of each word the other way round.
std::string SwappedText(const std::vector<std::uint8_t>& data, std::size_t first, std::size_t last) {
  std::string text;
  for (std::size_t word = first; word <= last; ++word) {
    text += static_cast<char>(Word(data, word) >> 8);
    text += static_cast<char>(Word(data, word) & 0xFF);
  }
  return text;
}

TEST(AtaDrive, IdentifiesItself) {
  const auto data = Identify({.model = "WDC WD40ORVK-68N32N0",
                              .serial = "OV-WX21A0000001",
                              .firmware = "82.00A82",
                              .sectors = 7814037168,
                              .rotationRate = 5400});
  EXPECT_EQ(SwappedText(data, 10, 19), "OV-WX21A0000001     ");
  EXPECT_EQ(SwappedText(data, 23, 26), "82.00A82");
  EXPECT_EQ(SwappedText(data, 27, 46), "WDC WD40ORVK-68N32N0                    ");
  EXPECT_EQ(Word(data, 0) & 0x8000, 0U);
  EXPECT_EQ(Word(data, 60) | Word(data, 61) << 16, 0x0FFFFFFFU);
  EXPECT_EQ(Word(data, 100) | Word(data, 101) << 16, 7814037168 & 0xFFFFFFFF);
  EXPECT_EQ(Word(data, 102), 1U);
  EXPECT_EQ(Word(data, 82) & 3U, 3U);
  EXPECT_EQ(Word(data, 83) & 0xC400U, 0x4400U);
  EXPECT_EQ(Word(data, 85) & 3U, 1U);
  EXPECT_EQ(Word(data, 217), 5400U);
  EXPECT_EQ(data[510], 0xA5);
  EXPECT_EQ(std::accumulate(data.begin(), data.end(), 0U) % 256, 0U);
}

TEST(AtaDrive, ReportsItsSectorSizes) {
  struct Row {
    std::uint32_t logical, physical;
    unsigned word106, words117;
  };
  const Row rows[] = {{512, 512, 0x4000, 0}, {512, 4096, 0x6003, 0}, {4096, 4096, 0x5000, 2048}};
  for (const Row& row : rows) {
    SCOPED_TRACE(testing::Message() << row.logical << "/" << row.physical);
    const auto data = Identify({.sectors = 9, .sectorSize = row.logical, .physicalSectorSize = row.physical});
    EXPECT_EQ(Word(data, 106), row.word106);
    EXPECT_EQ(Word(data, 117) | Word(data, 118) << 16, row.words117);
    EXPECT_EQ(Word(data, 60), 9U);
  }
}

TEST(AtaDrive, GivesIdentifyDataAsDescribed) {
  const std::vector<std::uint8_t> raw(512, 0x5A);
  EXPECT_EQ(Identify({.identify = raw}), raw);
}

TEST(AtaDrive, AbortsACommandThatItDoesNotKnow) {
  AtaDrive drive({.sectors = 1});
  const auto completion = drive.Execute({.count = 7, .lba = 0x123456789ABC, .device = 0x40, .command = 0xFE}, {});
  ASSERT_TRUE(completion);
  EXPECT_EQ(completion->status, 0x51);
  EXPECT_EQ(completion->error, 0x04);
  EXPECT_EQ(completion->lba, 0x123456789ABCU);
  EXPECT_EQ(completion->transferred, 0U);
}

}  // namespace
}  // namespace orvik::simulation
