// Requests to drives that the system itself sees, byte by byte.

#include <gtest/gtest.h>

#include "simulation/physical/physical_drive.h"
#include "tests/simulation/packets.h"

namespace orvik::simulation {
namespace {

TEST(PhysicalDriveRequests, AreCheckedAgainstTheirBuffers) {
  const auto clock = std::make_shared<Clock>(1);
  PhysicalDrive sata({.drive = SataDriveDescription{.sectors = 9, .failing = true}}, clock);
  PhysicalDrive sas({.drive = SasDriveDescription{.sectors = 9}}, clock);
  PhysicalDrive closed({.drive = SasDriveDescription{.sectors = 9}, .accessDenied = true}, clock);
  constexpr std::uint32_t kAta = 0x4D02C, kScsi = 0x4D004, kPredict = 0x2D1100;
  // IDENTIFY DEVICE and INQUIRY, each with one field of another value.
  using Fields = std::vector<std::pair<std::size_t, std::uint8_t>>;
  const Fields identify = {{0, 48}, {2, 3}, {9, 2}, {24, 48}, {41, 1}, {46, 0xEC}};
  const Fields inquiry = {{0, 56},  {6, 6},   {7, 32},  {8, 1},     {12, 36},
                          {16, 30}, {24, 88}, {32, 56}, {36, 0x12}, {40, 36}};
  struct Row {
    PhysicalDrive& drive;
    std::uint32_t code;
    std::size_t size, changed, value, width, error, returned;
  };
  const Row rows[] = {
      {sata, kAta, 560, 0, 48, 2, 0, 560},    {sata, kAta, 559, 0, 48, 2, 87, 0},
      {sata, kAta, 40, 0, 48, 2, 87, 0},      {sata, kAta, 560, 0, 40, 2, 87, 0},
      {sata, kAta, 560, 2, 7, 2, 87, 0},      {sata, kAta, 560, 24, 47, 8, 87, 0},
      {sata, kAta, 560, 24, ~4ULL, 8, 87, 0}, {sata, kAta, 560, 46, 0xFE, 1, 0, 48},
      {sata, kAta, 560, 2, 5, 2, 0, 48},      {sas, kScsi, 124, 0, 56, 2, 0, 124},
      {sas, kScsi, 124, 0, 44, 2, 1306, 0},   {sas, kScsi, 124, 6, 17, 1, 87, 0},
      {sas, kScsi, 124, 32, 58, 4, 87, 0},    {sas, kScsi, 124, 12, 37, 4, 87, 0},
      {sas, kScsi, 124, 24, ~4ULL, 8, 87, 0}, {sas, kScsi, 124, 36, 0xEE, 1, 0, 74},
      {sas, kScsi, 124, 8, 0, 1, 0, 56},      {sas, kAta, 560, 0, 48, 2, 1, 0},
      {closed, kScsi, 124, 0, 56, 2, 5, 0},   {closed, kPredict, 516, 0, 0, 1, 0, 516},
  };
  for (const Row& row : rows) {
    SCOPED_TRACE(testing::Message() << row.code << " " << row.changed << " " << row.value);
    Bytes buffer(600);
    for (const auto& [offset, value] : row.code == kAta ? identify : inquiry) buffer.at(offset) = value;
    PutLe(buffer, row.changed, row.width, row.value);
    const IoResult result = row.drive.Control(row.code, std::span(buffer).first(row.size), row.size, row.size);
    EXPECT_EQ(std::pair(std::size_t{result.error}, result.returned), std::pair(row.error, row.returned));
  }
}

}  // namespace
}  // namespace orvik::simulation
