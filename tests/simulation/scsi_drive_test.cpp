#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "simulation/drives/scsi/scsi_drive.h"

namespace orvik::simulation {
namespace {

using Bytes = std::vector<std::uint8_t>;

ScsiDrive MakeTestDrive() {
  return ScsiDrive({.vendor = "ORVIK",
                    .product = "SAS10K600",
                    .revision = "OV07",
                    .sectors = 0x1234567890,
                    .physicalSectorSize = 4096});
}

TEST(ScsiDrive, AnswersInquiryUpToTheAllocationLength) {
  ScsiDrive drive = MakeTestDrive();
  Bytes data(255, 0xEE);
  const auto completion = drive.Execute(Bytes{0x12, 0, 0, 0, 64, 0}, data);
  ASSERT_TRUE(completion);
  EXPECT_EQ(completion->status, 0);
  EXPECT_EQ(completion->transferred, 64U);
  EXPECT_EQ(Bytes(data.begin(), data.begin() + 5), (Bytes{0x00, 0x00, 0x06, 0x12, 91}));
  EXPECT_EQ(std::string(data.begin() + 8, data.begin() + 36), "ORVIK   SAS10K600       OV07");
  EXPECT_EQ(Bytes(data.begin() + 58, data.begin() + 64), (Bytes{0x00, 0xA0, 0x04, 0x60, 0x04, 0xC0}));
  EXPECT_EQ(data[64], 0xEE);
  EXPECT_EQ(drive.Execute(Bytes{0x12, 0, 0, 1, 0, 0}, data)->transferred, 96U);
}

TEST(ScsiDrive, ReportsItsCapacity) {
  ScsiDrive drive = MakeTestDrive();
  Bytes data(32);
  const auto completion = drive.Execute(Bytes{0x9E, 0x10, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 32, 0, 0}, data);
  ASSERT_TRUE(completion && completion->status == 0 && completion->transferred == 32);
  EXPECT_EQ(Bytes(data.begin(), data.begin() + 14), (Bytes{0, 0, 0, 0x12, 0x34, 0x56, 0x78, 0x8F, 0, 0, 2, 0, 0, 3}));
}

TEST(ScsiDrive, RefusesWhatItDoesNotOffer) {
  struct Row {
    const char* what;
    Bytes cdb;
    std::uint8_t asc;
    Bytes field;
  };
  const Row rows[] = {
      {"unknown operation", {0xC0, 0, 0, 0, 0, 0}, 0x20, {0, 0, 0}},
      {"vital product data", {0x12, 1, 0x80, 0, 64, 0}, 0x24, {0xC0, 0, 1}},
      {"page code alone", {0x12, 0, 0x80, 0, 64, 0}, 0x24, {0xC0, 0, 2}},
      {"other service action", {0x9E, 0x12, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 32, 0, 0}, 0x24, {0xC0, 0, 1}},
  };
  ScsiDrive drive = MakeTestDrive();
  for (const Row& row : rows) {
    SCOPED_TRACE(row.what);
    Bytes data(64);
    const auto completion = drive.Execute(row.cdb, data);
    ASSERT_TRUE(completion);
    EXPECT_EQ(completion->status, 0x02);
    EXPECT_EQ(completion->transferred, 0U);
    Bytes sense(18);
    sense[0] = 0x70;
    sense[2] = 0x05;
    sense[7] = 10;
    sense[12] = row.asc;
    std::ranges::copy(row.field, sense.begin() + 15);
    EXPECT_EQ(completion->sense, sense);
    EXPECT_EQ(data, Bytes(64));
  }
}

TEST(ScsiDrive, IsReadyUnlessSilent) {
  EXPECT_EQ(MakeTestDrive().Execute(Bytes(6), {})->status, 0);
  EXPECT_FALSE(ScsiDrive({.silent = true}).Execute(Bytes(6), {}));
}

}  // namespace
}  // namespace orvik::simulation
