// Commands to drives, byte by byte.

#include <gtest/gtest.h>

#include <algorithm>
#include <numeric>

#include "simulation/physical/physical_drive.h"
#include "tests/simulation/csmi_packets.h"

namespace orvik::simulation {
namespace {

constexpr std::uint64_t kMinute = 60000;
constexpr std::uint64_t kSmartKey = 0xC24F00;

TEST(AtaDriveCommands, LeaveTheRegistersOfTheirOutcome) {
  AtaDrive drive({.sectors = 0x10000005, .unreadableSectors = {7}});
  AtaDrive small({.sectors = 0x0ABCDEF0, .lba48 = false});
  struct Row {
    const char* what;
    AtaDrive& drive;
    AtaTaskFile command;
    std::vector<std::uint64_t> outcome;  // status, error, LBA, device, bytes moved
  };
  const Row rows[] = {
      {"last sectors", drive, {0, 4, 0x10000001, 0x40, 0x24}, {0x50, 0, 0x10000001, 0x40, 2048}},
      {"one sector too far", drive, {0, 5, 0x10000001, 0x40, 0x24}, {0x51, 0x10, 0x10000005, 0x40, 0}},
      {"address in the device register", small, {0, 1, 0xBCDEEF, 0x4A, 0x20}, {0x50, 0, 0xBCDEEF, 0x4A, 512}},
      {"one sector too far, 28 bits", small, {0, 1, 0xBCDEF0, 0x4A, 0x20}, {0x51, 0x10, 0xBCDEF0, 0x4A, 0}},
      {"48 bits that are not there", small, {0, 1, 0, 0x40, 0x24}, {0x51, 0x04, 0, 0x40, 0}},
      {"unreadable sector", drive, {0, 4, 5, 0x40, 0x20}, {0x51, 0x40, 7, 0x40, 1024}},
      {"write", drive, {0, 1, 7, 0x40, 0x34}, {0x50, 0, 7, 0x40, 512}},
      {"rewritten sector", drive, {0, 4, 5, 0x40, 0x20}, {0x50, 0, 5, 0x40, 2048}},
      {"marked with a log entry", drive, {0x55, 2, 6, 0x40, 0x45}, {0x50, 0, 6, 0x40, 0}},
      {"marked sector", drive, {0, 1, 7, 0x40, 0x24}, {0x51, 0x40, 7, 0x40, 0}},
      {"captive self-test", drive, {0xD4, 0, kSmartKey | 0x81, 0, 0xB0}, {0x51, 0x04, kSmartKey | 0x81, 0, 0}},
      {"disable SMART", drive, {0xD9, 0, kSmartKey, 0, 0xB0}, {0x50, 0, kSmartKey, 0, 0}},
      {"disabled SMART", drive, {0xDA, 0, kSmartKey, 0, 0xB0}, {0x51, 0x04, kSmartKey, 0, 0}},
  };
  for (const Row& row : rows) {
    SCOPED_TRACE(row.what);
    Bytes data(2048);
    const auto completion = row.drive.Execute(row.command, data);
    ASSERT_TRUE(completion);
    EXPECT_EQ((std::vector<std::uint64_t>{completion->status, completion->error, completion->lba, completion->device,
                                          completion->transferred}),
              row.outcome);
  }
  AtaDrive failing({.sectors = 1, .failing = true});
  EXPECT_EQ(failing.Execute({.features = 0xDA, .lba = kSmartKey, .command = 0xB0}, {})->lba, 0x2CF400U);
  failing.Execute({.command = 0xE0}, {});
  EXPECT_EQ(failing.Execute({.count = 9, .command = 0xE5}, {})->count, 0);
}

Bytes AtaPage(AtaDrive& drive, const AtaTaskFile& command, bool summed = true) {
  Bytes data(512);
  EXPECT_EQ(drive.Execute(command, data)->status, 0x50);
  EXPECT_TRUE(!summed || std::accumulate(data.begin(), data.end(), 0U) % 256 == 0);
  return data;
}

TEST(AtaDriveCommands, RunSelfTestsAndLogThem) {
  const auto clock = std::make_shared<Clock>(0.001);
  AtaDrive drive({.sectors = 1ULL << 40,
                  .rotationRate = kSolidState,
                  .temperatureCelsius = 61,
                  .lifeRemainingPercent = 42,
                  .label = "LABEL",
                  .selfTest = {.failingLba = 0x8123456789, .log = std::vector<PastSelfTest>(20)}},
                 clock);
  const AtaTaskFile readData{0xD0, 1, kSmartKey, 0, 0xB0};
  const auto offline = [&](unsigned test) { drive.Execute({0xD4, 0, kSmartKey | test, 0, 0xB0}, {}); };
  EXPECT_EQ(AtaPage(drive, readData)[367] & 0x35, 0x35);
  offline(2);
  clock->Advance(31 * kMinute);
  EXPECT_EQ(AtaPage(drive, readData)[363], 0xF4);
  offline(0x7F);
  EXPECT_EQ(AtaPage(drive, readData)[363], 0x14);
  offline(1);
  clock->Advance(2 * kMinute + 1);
  const Bytes smart = AtaPage(drive, readData);
  EXPECT_EQ(smart[363], 0x70);
  EXPECT_EQ(Le(smart, 26, 1) << 8 | Le(smart, 26 + 5, 1), 194U << 8 | 61);
  EXPECT_EQ(Le(smart, 50, 1) << 8 | Le(smart, 50 + 3, 1), 233U << 8 | 42);
  const Bytes log = AtaPage(drive, {0xD5, 1, kSmartKey | 6, 0, 0xB0});
  EXPECT_EQ(log[508], 1);  // the 22nd entry took the place of the first
  EXPECT_EQ(Bytes(log.begin() + 2, log.begin() + 11), (Bytes{1, 0x70, 0xE8, 3, 0, 0xFF, 0xFF, 0xFF, 0xFF}));
  EXPECT_EQ(AtaPage(drive, {0, 1, 0x007, 0x40, 0x2F})[2], 22);
  const Bytes second = AtaPage(drive, {0, 1, 0x107, 0x40, 0x2F});
  EXPECT_EQ(Bytes(second.begin() + 56, second.begin() + 67),
            (Bytes{1, 0x70, 0xE8, 3, 0, 0x89, 0x67, 0x45, 0x23, 0x81, 0}));
  const Bytes directory = AtaPage(drive, {0, 1, 0, 0x40, 0x2F}, false);
  EXPECT_EQ(Le(directory, 14, 2), 2U);
  EXPECT_EQ(Le(directory, 0x1BE, 2), 1U);
  EXPECT_EQ(Le(AtaPage(drive, {0xD5, 1, kSmartKey, 0, 0xB0}, false), 12, 2), 1U);
  const Bytes label = AtaPage(drive, {0, 1, 0xDF, 0x40, 0x2F}, false);
  EXPECT_EQ(Text(label, 0, 3) + Text(label, 20, 2) + Text(label, 110, 6), "CRV8SLABEL ");
}

TEST(ScsiDriveCommands, GiveDataOrSense) {
  ScsiDrive drive({.sectors = 1ULL << 33, .failing = true, .unreadableSectors = {9}, .unsupportedOpcodes = {0xA8}});
  const Bytes block(512, 0x5C);
  const Bytes quiet = {0, 0, 0, 0, 0x1C, 0x0A, 0x08, 0, 0, 0, 0, 0, 0, 0, 0, 0};
  // Sense key, code and qualifier of a command that fails; bytes at an offset of what comes in.
  struct Row {
    const char* what;
    Bytes cdb, out, sense;
    std::size_t offset;
    Bytes in;
  };
  const Row rows[] = {
      {"too large for 10 bytes", {0x25, 0, 0, 0, 0, 0, 0, 0, 0, 0}, {}, {}, 0, {255, 255, 255, 255, 0, 0, 2, 0}},
      {"unreadable", {0x28, 0x18, 0, 0, 0, 8, 0, 0, 2, 0}, {}, {3, 0x11, 0}, 0, {}},
      {"write 10", {0x2A, 8, 0, 0, 0, 9, 0, 0, 1, 0}, block, {}, 0, {}},
      {"read 16", {0x88, 0x18, 0, 0, 0, 0, 0, 0, 0, 9, 0, 0, 0, 1, 0, 0}, {}, {}, 0, {0x5C, 0x5C}},
      {"refused operation", {0xA8, 0x18, 0, 0, 0, 9, 0, 0, 0, 1, 0, 0}, {}, {5, 0x20, 0}, 0, {}},
      {"past the end", {0x88, 0, 0, 0, 0, 1, 255, 255, 255, 255, 0, 0, 0, 2, 0, 0}, {}, {5, 0x21, 0}, 0, {}},
      {"sense", {0x03, 0, 0, 0, 252, 0, 0, 0, 0, 0}, {}, {}, 12, {0x5D}},
      {"wrong page", {0x15, 0x10, 0, 0, 16, 0}, Bytes(16), {5, 0x26, 0}, 0, {}},
      {"exceptions off", {0x15, 0x10, 0, 0, 16, 0}, quiet, {}, 0, {}},
      {"saved page", {0x5A, 8, 0xDC, 0, 0, 0, 0, 0, 20, 0}, {}, {}, 8, {0x9C, 10, 0, 6}},
      {"nothing to abort", {0x1D, 0x80, 0, 0, 0, 0}, {}, {5, 0x24, 0}, 0, {}},
      {"background test", {0x1D, 0x20, 0, 0, 0, 0}, {}, {}, 0, {}},
      {"running test", {0x4D, 0, 0x50, 0, 0, 0, 0, 0, 252, 0}, {}, {}, 0, {0x10, 0, 1, 0x90, 0, 1, 3, 16, 0x2F}},
      {"progress", {0x03, 0, 0, 0, 252, 0}, {}, {}, 12, {4, 9, 0, 0x80}},
      {"abort", {0x1D, 0x80, 0, 0, 0, 0}, {}, {}, 0, {}},
      {"aborted test", {0x4D, 0, 0x50, 0, 0, 0, 0, 0, 252, 0}, {}, {}, 8, {0x21}},
  };
  for (const Row& row : rows) {
    SCOPED_TRACE(row.what);
    Bytes data = row.out.empty() ? Bytes(512) : row.out;
    const auto completion = drive.Execute(row.cdb, data);
    ASSERT_TRUE(completion);
    const Bytes& sense = completion->sense;
    EXPECT_EQ(sense.empty() ? Bytes() : (Bytes{sense.at(2), sense.at(12), sense.at(13)}), row.sense);
    EXPECT_EQ(completion->status, row.sense.empty() ? 0 : 2);
    const auto at = data.begin() + static_cast<std::ptrdiff_t>(row.offset);
    EXPECT_TRUE(std::ranges::equal(row.in, std::span(at, row.in.size())));
  }
}

TEST(NvmeDriveCommands, TravelInARequestOfTheController) {
  CsmiController controller(
      {.drives = {SataDriveDescription{.sectors = 1},
                  NvmeDriveDescription{.serial = "A", .sectors = 8, .sectorSize = 4096},
                  NvmeDriveDescription{.serial = "B", .sectors = 5, .pathId = 9, .label = "L"}}});
  struct Row {
    std::uint8_t path, io, opcode;
    std::uint32_t nsid, dword10, error;
    std::size_t offset;
    std::uint64_t word;  // at the offset of what comes in
  };
  const Row rows[] = {
      {0, 0, 6, 0, 1, 0, 4, 0x2041},
      {9, 0, 6, 0, 1, 0, 4, 0x2042},
      {1, 0, 6, 0, 1, 55, 0, 0},
      {0, 0, 6, 1, 0, 0, 0, 8},
      {0, 0, 6, 0, 2, 0, 0, 1},
      {0, 0, 6, ~0U, 0, 1117, 0, 0},
      {0, 0, 2, ~0U, 0x7F0002, 0, 1, 0x134},
      {0, 1, 2, 1, 8, 1117, 0, 0},
      {9, 0, 2, ~0U, 0x7F00DF, 0, 110, 0x204C},
      {0, 0, 2, ~0U, 0x7F00DF, 1117, 0, 0},
      {0, 1, 2, 1, 7, 0, 0, 0},
  };
  for (const Row& row : rows) {
    Bytes packet = Packet("IntelNvm", 0xF0002808, 168 + 4096);
    packet[28] = 1;
    packet[29] = row.path;
    packet[32] = row.opcode;
    PutLe(packet, 36, 4, row.nsid);
    PutLe(packet, 72, 4, row.dword10);
    packet[96] = row.io;
    PutLe(packet, 116, 8, 168 | 4096ULL << 32);
    EXPECT_EQ(controller.Nvme().Answer(packet), row.error) << row.dword10;
    EXPECT_EQ(Le(packet, 168 + row.offset, 2), row.word);
  }
}

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
