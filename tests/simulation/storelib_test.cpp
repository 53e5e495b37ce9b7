// Commands to the vendor's library, byte by byte: offsets are written out, so that an error in the layouts of the
// simulated controllers cannot cancel itself out.

#include <tuple>

#include "simulation/machine/machine.h"
#include "tests/simulation/csmi_packets.h"

namespace orvik::simulation {
namespace {

constexpr std::uint32_t kId = 0x01020304;

// Device 8 is a SATA drive, 0x0102 a SAS drive, 9 and 10 such drives that do not answer, 32 an enclosure.
StorelibControllerDescription Controller() {
  return {
      .controllerId = kId,
      .product = "Orvik RA",
      .serial = "S1",
      .interfaces = 0x0A,
      .raidLevels = 0x23,
      .battery = {.type = 2, .lowVoltage = true},
      .drives = {{.deviceId = 8, .drive = SataDriveDescription{.model = "WDC WD40ORVK-68N32N0", .sectors = 1000}},
                 {.deviceId = 0x0102,
                  .drive =
                      SasDriveDescription{.vendor = "ORVIK", .product = "SAS10K", .sectors = 10, .sectorSize = 4096}},
                 {.deviceId = 9, .drive = SataDriveDescription{.sectors = 1, .silent = true}},
                 {.deviceId = 10, .drive = SasDriveDescription{.sectors = 1, .silent = true}, .interfaceByte = 1},
                 {.deviceId = 32, .drive = SasDriveDescription{.vendor = "ENC"}, .scsiDeviceType = 0x0D}},
      .logicalDrives = {{.targetId = 5,
                         .sequenceNumber = 0x0102,
                         .primaryLevel = 1,
                         .secondaryLevel = 3,
                         .blocks = 0x0102030405,
                         .members = {8, 0x0102}},
                        {.targetId = 6, .consistent = false, .check = {.seconds = 1000, .runningAt = 16384}},
                        {.targetId = 7, .check = {.startStatus = 27}}},
      .enclosures = {{.enclosureId = 0x0201}, {.enclosureId = 3, .faultByte = 4}}};
}

struct Command {
  std::uint8_t type, command;
  std::size_t size;
  std::uint16_t device = 0;  // or sequence number
  std::uint8_t target = 0;
};

class StorelibTest : public testing::Test {
 protected:
  std::uint32_t Send(const Command& command) {
    packet = Bytes(40);
    packet[0] = command.type;
    packet[1] = command.command;
    Put(packet, {4, 4, kId});
    Put(packet, {8, 2, command.device});
    packet[10] = command.target;
    Put(packet, {28, 4, command.size});
    data.resize(command.size);
    return machine.ProcessLibCommand(packet, data);
  }
  // Into a block that must be filled from end to end.
  void Ask(const Command& command) {
    data = Bytes(command.size, 0xEE);
    EXPECT_EQ(Send(command), 0U);
  }
  std::uint32_t Scsi(std::uint16_t device, const Bytes& cdb, std::uint32_t length) {
    data = Bytes(64 + length);
    Put(data, {0, 2, device});
    data[4] = length == 0 ? 0 : 2;
    data[11] = static_cast<std::uint8_t>(cdb.size());
    std::ranges::copy(cdb, data.begin() + 12);
    Put(data, {60, 4, length});
    return Send({6, 0, data.size(), device});
  }
  std::uint32_t Sata(std::uint8_t device, std::uint8_t command, std::uint32_t length,
                     const PacketField& change = {}) {
    data = Bytes(60 + length);
    data[0] = device;
    data[1] = length == 0 ? 0 : 2;
    data[4] = length == 0 ? 4 : 1;
    std::ranges::copy(Bytes{0x27, 0x80, command, 0, 0x11, 0x22, 0x33}, data.begin() + 8);
    Put(data, {32, 4, 20});
    Put(data, {36, 4, length});
    Put(data, change);
    return Send({6, 2, data.size(), device});
  }
  std::uint32_t Progress(std::uint8_t target) {
    Ask({3, 8, 36, 0, target});
    EXPECT_EQ(data[0] != 0, machine.Storelib().FindController(kId)->IsChecking(target));
    return data[0] == 0 ? 0xFFFFFFFF : static_cast<std::uint32_t>(Le(data, 4, 2));
  }
  bool Consistent(std::uint8_t target) {
    Ask({3, 0, 384, 0, target});
    return data[40] == 1;
  }

  Machine machine{{.speed = 0.001, .storelib = {.controllers = {Controller()}}}};
  Bytes packet;
  Bytes data;
};

TEST_F(StorelibTest, FillsTheBlocksOfItsCommands) {
  using Fields = std::initializer_list<PacketField>;
  const std::pair<Command, Fields> rows[] = {
      {{0, 3, 260}, {{0, 2, 1}, {4, 4, kId}, {8, 8, 0}}},
      {{1, 0, 2480}, {{104, 1, 0x0A}, {1352, 1, 0}, {1424, 4, 0x003153}, {1500, 4, 0x23}, {1504, 4, 0x80}}},
      {{1, 4, 6152}, {{4, 4, 5}, {8, 2, 8}, {14, 1, 0}, {32, 2, 0x0102}, {104, 2, 32}, {110, 1, 0x0D}, {128, 8, 0}}},
      {{1, 5, 4616}, {{0, 4, 2}, {8, 2, 0x0201}, {17, 1, 0}, {152, 2, 3}, {161, 1, 4}, {4608, 8, 0}}},
      {{1, 13, 4104}, {{0, 4, 3}, {8, 1, 5}, {10, 2, 0x0102}, {24, 1, 6}, {26, 2, 1}, {4096, 8, 0}}},
      {{1, 20, 2070}, {{0, 8, 0}, {2064, 2, 2}, {2066, 2, 2}}},
      {{2, 0, 512, 8}, {{232, 8, 1000}, {401, 1, 3}}},
      {{2, 0, 512, 9}, {{232, 8, 1}, {401, 1, 3}}},
      {{2, 0, 512, 10}, {{401, 1, 1}}},
      {{2, 0, 512, 0x0102}, {{232, 8, 80}, {401, 1, 2}}},
      {{3, 0, 384, 0x0102, 5},
       {{2, 2, 0x0102}, {32, 1, 1}, {34, 1, 3}, {38, 1, 3}, {40, 1, 1}, {256, 8, 0x0102030405}}},
      {{3, 11, 516, 0, 5}, {{0, 4, 2}, {4, 4, 0x01020008}}},
  };
  for (const auto& [command, fields] : rows) {
    SCOPED_TRACE(testing::Message() << int{command.type} << " " << int{command.command} << " " << command.device);
    Ask(command);
    ExpectFields(data, fields);
    // One byte less, and neither a packet with something in its reserved bytes nor a stranger's may touch the block.
    const Bytes untouched(command.size - 1, 0xEE);
    data = untouched;
    const bool fits = command.command == 4 && command.type == 1;
    EXPECT_EQ(Send({command.type, command.command, command.size - 1, command.device, command.target}) == 0, fits);
    EXPECT_EQ(data == untouched, !fits);
    if (command.type == 0) continue;
    for (const PacketField& change : {PacketField{4, 4, 1}, PacketField{27, 1, 1}, PacketField{2, 1, 1}}) {
      data = Bytes(command.size, 0xEE);
      Bytes changed = packet;
      Put(changed, change);
      EXPECT_NE(machine.ProcessLibCommand(changed, data), 0U);
      EXPECT_EQ(data, Bytes(command.size, 0xEE));
    }
  }
  Ask({1, 0, 2480});
  EXPECT_EQ(Text(data, 1344, 9), std::string("Orvik RA\0", 9));
  Ask({2, 0, 512, 8});
  EXPECT_EQ(Text(data, 12, 24), "ATA     WDC WD40ORVK-68N");
  Ask({2, 0, 512, 0x0102});
  EXPECT_EQ(Text(data, 12, 24), "ORVIK   SAS10K          ");
  // Room for four of five drives; then a drive, a target, a sequence number and a command that are not there.
  for (const Command& command : {Command{1, 4, 8 + 24 * 4},
                                 {2, 0, 512, 11},
                                 {6, 0, 64, 11},
                                 {6, 2, 60, 11},
                                 {3, 0, 384, 1, 4},
                                 {3, 11, 516, 1, 4},
                                 {3, 8, 36, 1, 4},
                                 {3, 6, 0, 1, 4},
                                 {3, 7, 0, 1, 4},
                                 {3, 7, 0, 1, 5},
                                 {3, 6, 0, 2, 6},
                                 {0, 1, 260},
                                 {4, 0, 6152}}) {
    EXPECT_NE(Send(command), 0U) << int{command.type} << " " << int{command.command};
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
    ExpectFields(packet, {{28, 4, 96}});
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
  EXPECT_EQ(Scsi(8, inquiry, 36), 0U);
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
  EXPECT_EQ(with({.error = 31}), 31U);
  EXPECT_EQ(with({.returnCode = 5}), 5U);
  EXPECT_EQ(data, Bytes(4104, 0xEE));
  EXPECT_EQ(with({.patches = {{0, {0xFF, 0xFF}}}, .truncateTo = 4}), 0U);
  ExpectFields(data, {{0, 4, 0xFFFF}, {4, 4, 0xEEEEEEEE}});
  EXPECT_EQ(with({.garbleSeed = 1}), 0U);
  EXPECT_NE(Le(data, 0, 4), 3U);
  const std::uint64_t before = machine.Clock().Milliseconds();
  EXPECT_EQ(with({.delayMilliseconds = 5000}), 0U);
  EXPECT_GE(machine.Clock().Milliseconds(), before + 5000);
  for (const char* name : {"*", "ProcessLibCommand", "STORELIB_LOGICAL_DRIVE_LIST"}) {
    EXPECT_EQ(machine.Faults().CallsMade(name), 5U) << name;
  }
}

}  // namespace
}  // namespace orvik::simulation
