// Commands to the vendor's library, byte by byte: offsets are written out, so that an error in the layouts of the
// simulated controllers cannot cancel itself out.

#include <tuple>

#include "simulation/machine/machine.h"
#include "tests/simulation/csmi_packets.h"

namespace orvik::simulation {
namespace {

constexpr std::uint32_t kId = 0x01020304;

const SataDriveDescription kSata{.model = "WDC WD40ORVK-68N32N0", .sectors = 1000};
const SasDriveDescription kSas{.vendor = "ORVIK", .product = "SAS10K", .sectors = 10, .sectorSize = 4096};

// Device 8 is a SATA drive, 0x0102 a SAS drive, 9 and 10 such drives that do not answer, 32 an enclosure.
const StorelibControllerDescription kController{
    .controllerId = kId,
    .product = "Orvik RA",
    .serial = "S1",
    .interfaces = 0x0A,
    .raidLevels = 0x23,
    .battery = {.type = 2, .lowVoltage = true},
    .drives = {{8, kSata},
               {0x0102, kSas},
               {9, SataDriveDescription{.sectors = 1, .silent = true}},
               {10, SasDriveDescription{.sectors = 1, .silent = true}, kScsiDisk, 1},
               {32, SasDriveDescription{.vendor = "ENC"}, 0x0D}},
    .logicalDrives = {{5, 0x0102, 1, 3, StorelibDriveState::Optimal, true, 0x0102030405, {8, 0x0102}},
                      {.targetId = 6, .consistent = false, .check = {.seconds = 1000, .runningAt = 16384}},
                      {.targetId = 7, .check = {.startStatus = 27}}},
    .enclosures = {{0x0201, 0}, {3, 4}}};

struct Command {
  std::uint8_t type, command;
  std::size_t size;
  std::uint16_t device = 0;  // or sequence number
  std::uint8_t target = 0;
};

class StorelibTest : public testing::Test {
 protected:
  static Bytes Filled(std::size_t size, std::initializer_list<PacketField> fields) {
    Bytes bytes(size);
    for (const PacketField& field : fields) Put(bytes, field);
    return bytes;
  }
  std::uint32_t Send(const Command& command) {
    packet = Filled(40, {{0, 1, command.type},
                         {1, 1, command.command},
                         {4, 4, kId},
                         {8, 2, command.device},
                         {10, 1, command.target},
                         {28, 4, command.size}});
    data.resize(command.size);
    return machine.ProcessLibCommand(packet, data);
  }
  // Into a block that must be filled from end to end.
  void Ask(const Command& command) {
    data = Bytes(command.size, 0xEE);
    EXPECT_EQ(Send(command), 0U);
  }
  std::uint32_t Scsi(std::uint16_t device, const Bytes& cdb, std::uint32_t length) {
    data = Filled(64 + length, {{0, 2, device}, {4, 1, length == 0 ? 0U : 2U}, {11, 1, cdb.size()}, {60, 4, length}});
    std::ranges::copy(cdb, data.begin() + 12);
    return Send({6, 0, data.size(), device});
  }
  std::uint32_t Sata(std::uint8_t device, std::uint8_t command, std::uint32_t length,
                     const PacketField& change = {}) {
    data = Filled(60 + length, {{0, 2, length == 0 ? device : 0x0200U + device},
                                {4, 4, length == 0 ? 4U : 1U},
                                {8, 3, 0x8027U | std::uint32_t{command} << 16},
                                {12, 3, 0x332211},
                                {32, 4, 20},
                                {36, 4, length}});
    Put(data, change);
    return Send({6, 2, data.size(), device});
  }
  std::uint32_t Progress(std::uint8_t target) {
    Ask({3, 8, 36, 0, target});
    EXPECT_EQ(data[0] != 0, machine.Storelib().FindController(kId)->IsChecking(target));
    return data[0] == 0 ? 0xFFFFFFFF : static_cast<std::uint32_t>(Le(data, 4, 2));
  }
  bool Consistent(std::uint8_t target) { return Send({3, 0, 384, 0, target}) == 0 && data[40] == 1; }

  Machine machine{{.speed = 0.001, .storelib = {.controllers = {kController}}}};
  Bytes packet;
  Bytes data;
};

TEST_F(StorelibTest, FillsTheBlocksOfItsCommands) {
  struct Row {
    Command command;
    std::vector<PacketField> fields;
    std::size_t offset = 0;
    std::string text{};
  };
  const Row rows[] = {
      {{0, 3, 260}, {{0, 2, 1}, {4, 4, kId}, {8, 8, 0}}},
      {{1, 0, 2480}, {{104, 1, 0x0A}, {1424, 4, 0x003153}, {1500, 4, 0x23}, {1504, 4, 0x80}}, 1344, "Orvik RA"},
      {{1, 4, 6152}, {{4, 4, 5}, {8, 2, 8}, {14, 1, 0}, {32, 2, 0x0102}, {104, 2, 32}, {110, 1, 0x0D}, {128, 8, 0}}},
      {{1, 5, 4616}, {{0, 4, 2}, {8, 2, 0x0201}, {17, 1, 0}, {152, 2, 3}, {161, 1, 4}, {4608, 8, 0}}},
      {{1, 13, 4104}, {{0, 4, 3}, {8, 1, 5}, {10, 2, 0x0102}, {24, 1, 6}, {26, 2, 1}, {4096, 8, 0}}},
      {{1, 20, 2070}, {{0, 8, 0}, {2064, 2, 2}, {2066, 2, 2}}},
      {{2, 0, 512, 8}, {{232, 8, 1000}, {401, 1, 3}}, 12, "ATA     WDC WD40ORVK-68N"},
      {{2, 0, 512, 0x0102}, {{232, 8, 80}, {401, 1, 2}}, 12, "ORVIK   SAS10K          "},
      {{2, 0, 512, 10}, {{401, 1, 1}}},
      {{3, 0, 384, 0x0102, 5}, {{2, 2, 0x0102}, {32, 3, 0x030001}, {38, 3, 0x010003}, {256, 8, 0x0102030405}}},
      {{3, 11, 516, 0, 5}, {{0, 4, 2}, {4, 4, 0x01020008}}},
  };
  for (const auto& [command, fields, offset, text] : rows) {
    SCOPED_TRACE(testing::Message() << int{command.type} << " " << int{command.command} << " " << command.device);
    Ask(command);
    for (const PacketField& field : fields) ExpectFields(data, {field});
    EXPECT_EQ(Text(data, offset, text.size()), text);
    // Neither a stranger's packet nor one with something in its reserved bytes may touch the block.
    for (const PacketField& change : {PacketField{4, 4, 1}, PacketField{27, 1, 1}, PacketField{2, 1, 1}}) {
      if (change.offset == 4 && command.type == 0) continue;
      data = Bytes(command.size, 0xEE);
      Bytes changed = packet;
      Put(changed, change);
      EXPECT_NE(machine.ProcessLibCommand(changed, data), 0U);
      EXPECT_EQ(data, Bytes(command.size, 0xEE));
    }
  }
  // Blocks that are too small; a drive, a target, a sequence number and a command that are not there.
  for (const Command& command : {Command{0, 0, 259},     {0, 3, 259},        {1, 0, 2479},      {1, 4, 127},
                                 {1, 5, 4615},           {1, 13, 4103},      {1, 20, 2069},     {2, 0, 511, 8},
                                 {3, 0, 383, 0x0102, 5}, {3, 11, 515, 0, 5}, {3, 8, 35, 0, 5},  {2, 0, 512, 11},
                                 {6, 0, 64, 11},         {6, 2, 60, 11},     {3, 0, 384, 1, 4}, {3, 11, 516, 1, 4},
                                 {3, 8, 36, 1, 4},       {3, 6, 0, 1, 4},    {3, 7, 0, 1, 4},   {3, 7, 0, 1, 5},
                                 {3, 6, 0, 2, 6},        {0, 1, 260},        {4, 0, 6152}}) {
    EXPECT_NE(Send(command), 0U) << int{command.type} << " " << int{command.command} << " " << command.size;
  }
}

TEST_F(StorelibTest, ChecksConsistencyInMachineTime) {
  EXPECT_EQ(Progress(5), 0xFFFFFFFF);
  EXPECT_EQ(Progress(6), 16383U);
  EXPECT_EQ(Send({3, 7, 0, 1, 7}), 27U);
  EXPECT_NE(Send({3, 6, 0, 0x0102, 5}), 0U);
  EXPECT_EQ(Send({3, 7, 0, 0x0102, 5}), 0U);
  EXPECT_NE(Send({3, 7, 0, 0x0102, 5}), 0U);
  EXPECT_NE(Send({3, 7, 0, 1, 6}), 0U);
  machine.Clock().Advance(60000);
  EXPECT_NEAR(Progress(5), 32768, 10);
  EXPECT_NEAR(Progress(6), 16384 + 3932, 10);
  EXPECT_EQ(Send({3, 6, 0, 0x0102, 5}), 0U);
  EXPECT_EQ(Progress(5), 0xFFFFFFFF);
  // A check that was cancelled has found nothing; one that ran to its end has.
  EXPECT_TRUE(Consistent(5));
  machine.Clock().Advance(689000);
  EXPECT_FALSE(Consistent(6));
  machine.Clock().Advance(2000);
  EXPECT_TRUE(Consistent(6));
  EXPECT_EQ(Progress(6), 0xFFFFFFFF);
  EXPECT_EQ(Send({3, 7, 0, 1, 6}), 0U);
  EXPECT_EQ(Progress(6), 0U);
}

TEST_F(StorelibTest, PassesScsiCommandsThrough) {
  const Bytes inquiry = {0x12, 0, 0, 0, 255, 0};
  const Bytes capacity = {0x25, 0, 0, 0, 0, 0, 0, 0, 0, 0};
  for (const auto& [device, type, texts] :
       {std::tuple{0x0102, 0, "ORVIK   SAS10K          "}, std::tuple{8, 0, "ATA     WDC WD40ORVK-68N"},
        std::tuple{32, 0x0D, "ENC                     "}}) {
    EXPECT_EQ(Scsi(static_cast<std::uint16_t>(device), inquiry, 255), 0U);
    ExpectFields(data, {{10, 1, 0}, {60, 4, 96}, {64, 1, static_cast<std::uint64_t>(type)}});
    EXPECT_EQ(Text(data, 64 + 8, 24), texts);
  }
  EXPECT_EQ(Scsi(8, capacity, 8), 0U);
  ExpectFields(data, {{64, 4, 0xE7030000}, {68, 4, 0x00020000}});
  // An operation code that the drive does not know, and one that the controller does not translate.
  for (const auto& [device, operation] : {std::pair{0x0102, 0xC0}, std::pair{8, 0x4D}}) {
    EXPECT_NE(Scsi(static_cast<std::uint16_t>(device), {static_cast<std::uint8_t>(operation), 0, 0, 0, 0, 0}, 4), 0U);
    ExpectFields(data, {{10, 1, 0x02}, {28, 1, 0x70}, {30, 1, 0x05}, {40, 1, 0x20}, {60, 4, 0}});
  }
  for (const std::uint16_t device : {std::uint16_t{9}, std::uint16_t{10}}) EXPECT_NE(Scsi(device, inquiry, 36), 0U);
  // A frame whose data would lie behind its end.
  Put(data, {60, 4, 37});
  EXPECT_NE(Send({6, 0, data.size(), 8}), 0U);
}

TEST_F(StorelibTest, PassesAtaCommandsThrough) {
  EXPECT_EQ(Sata(8, 0xEC, 512), 0U);
  ExpectFields(data, {{28, 1, 0}, {36, 4, 512}, {40, 4, 0x00504034}});
  EXPECT_EQ(Text(data, 60 + 54, 8), "DW CDW04");
  // Refused by the drive: the registers tell why.
  EXPECT_EQ(Sata(8, 0x42, 0), 0U);
  EXPECT_NE(data[28], 0);
  ExpectFields(data, {{36, 4, 0}, {42, 1, 0x51}, {43, 1, 0x04}, {44, 3, 0x332211}});
  for (const std::uint8_t device : Bytes{2, 9, 10, 32}) EXPECT_NE(Sata(device, 0xEC, 512), 0U);
  // Another device id, way, flags, FIS, length of the FIS; data behind the end of the frame.
  for (const PacketField& change : {PacketField{0, 1, 9}, PacketField{1, 1, 0}, PacketField{4, 4, 2},
                                    PacketField{8, 1, 0x34}, PacketField{32, 4, 0}, PacketField{36, 4, 513}}) {
    EXPECT_NE(Sata(8, 0xEC, 512, change), 0U) << change.offset;
  }
}

TEST_F(StorelibTest, IsOpenToFaults) {
  const auto with = [&](const FaultEffects& effects) {
    machine.Faults().Clear();
    machine.Faults().Add({.operation = "STORELIB_LOGICAL_DRIVE_LIST", .effects = effects});
    data = Bytes(4104, 0xEE);
    return Send({1, 13, 4104});
  };
  const std::uint64_t before = machine.Clock().Milliseconds();
  EXPECT_EQ(with({.delayMilliseconds = 5000, .error = 31}), 31U);
  EXPECT_GE(machine.Clock().Milliseconds(), before + 5000);
  EXPECT_EQ(with({.returnCode = 5}), 5U);
  EXPECT_EQ(data, Bytes(4104, 0xEE));
  EXPECT_EQ(with({.patches = {{0, {0xFF, 0xFF}}}, .truncateTo = 4}), 0U);
  ExpectFields(data, {{0, 4, 0xFFFF}, {4, 4, 0xEEEEEEEE}});
  for (const char* name : {"*", "ProcessLibCommand", "STORELIB_LOGICAL_DRIVE_LIST"}) {
    EXPECT_EQ(machine.Faults().CallsMade(name), 3U) << name;
  }
}

}  // namespace
}  // namespace orvik::simulation
