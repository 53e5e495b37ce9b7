#include "module/raid/csmi/csmi_bridges.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "module/raid/family/pass_through.h"
#include "tests/module/raid/machines.h"

namespace orvik::module::raid {
namespace {

using namespace orvik::simulation;
using namespace orvik::testing;
using storage::Direction;
using Bytes = std::vector<std::uint8_t>;

constexpr std::uint8_t kUntouched = 0xEE;
constexpr std::uint8_t kFromTheDrive = 0x5A;
constexpr std::size_t kLength = 4;

struct Case {
  Direction direction;
  FaultEffects effects;
  std::uint32_t code;
  std::uint8_t expected;
};

/// Replies that hold data at `offset`: only that of a data-in command which was sent reaches the caller's buffer.
std::vector<Case> Replies(std::size_t offset) {
  const FaultEffects data{.patches = {{offset, Bytes(kLength, kFromTheDrive)}}};
  return {{Direction::kIn, data, 0, kFromTheDrive},
          {Direction::kOut, data, 0, kUntouched},
          {Direction::kNone, data, 0, kUntouched},
          {Direction::kIn, {.error = 1117}, 34, kUntouched}};
}

/// Sends a command without an operation code through the bridge to the drive on the first phy of the controller.
template <typename Bridge, typename Command>
void ExpectDataOfDataInOnly(const DriveDescription& drive, const char* packet, std::size_t dataOffset) {
  for (const Case& row : Replies(dataOffset)) {
    auto controller = Controller(0, {});
    controller.csmi->drives = {drive};
    const auto machine = Install({.adapters = {controller}});
    const auto adapters = EnumerateCsmiAdapters();
    PhyInformationPacket phys;
    ASSERT_TRUE(ExchangeCsmiPacket(adapters.at(0).handle.Get(), phys).Ok());
    Bridge bridge(adapters[0].handle.Get(), phys.PhysWithDrives().at(0));

    machine->Faults().Add({.operation = packet, .effects = row.effects});
    Bytes buffer(kLength, kUntouched);
    Command command;
    command.direction = row.direction;
    command.buffer = buffer.data();
    command.length = buffer.size();
    EXPECT_EQ(bridge.Send(command).Code(), row.code);
    EXPECT_EQ(buffer, Bytes(kLength, row.expected)) << static_cast<int>(row.direction);
    EXPECT_EQ(command.length, kLength);
  }
}

TEST(CsmiBridgesTest, ChangeTheBufferOfDataInCommandsOnly) {
  ExpectDataOfDataInOnly<CsmiSspBridge, storage::ScsiCmd>(SasDriveDescription{.serial = "S1", .sectors = 1000},
                                                          "CC_CSMI_SAS_SSP_PASSTHRU", csmi::ssp::kData);
  ExpectDataOfDataInOnly<CsmiStpBridge, storage::AtaCmd>(SataDrive("A1"), "CC_CSMI_SAS_STP_PASSTHRU",
                                                         csmi::stp::kData);
}

TEST(CsmiBridgesTest, LimitSenseDataToTheCommand) {
  struct SenseCase {
    std::uint8_t dataPresent;
    std::uint16_t reported;
    std::uint64_t length;
    std::ptrdiff_t copied;
  };
  constexpr std::uint64_t kEarlier = 7;
  for (const SenseCase& row :
       {SenseCase{2, 18, 18, 18}, SenseCase{2, 1, 1, 1}, SenseCase{2, 40, 32, 32}, SenseCase{2, 0xFFFF, 32, 32},
        SenseCase{2, 0x0100, 32, 32}, SenseCase{2, 0, kEarlier, 0}, SenseCase{1, 18, kEarlier, 0}}) {
    Bytes reply(csmi::ssp::kSizeWithoutData);
    std::fill_n(reply.begin() + 108, 256, std::uint8_t{0xAA});
    const utils::MutableByteView writer(reply);
    writer.Put(csmi::ssp::kSspStatus, 9);
    writer.Put(csmi::ssp::kDataPresent, row.dataPresent);
    writer.Put(csmi::ssp::kScsiStatus, 2);
    writer.Put(csmi::ssp::kResponseLength, row.reported);
    storage::ScsiCmd command;
    command.senseLength = kEarlier;
    TakeScsiStatus(utils::ByteView(reply), command);
    EXPECT_EQ(command.senseLength, row.length) << row.reported;
    EXPECT_EQ(std::ranges::count(command.sense, 0xAA), row.copied) << row.reported;
    EXPECT_EQ(command.status, 2);
  }
}

TEST(CsmiBridgesTest, ReturnTheRegistersOfTheStatusFis) {
  storage::AtaCmd command;
  command.features = 0xAB00;
  const Bytes fis = {0x34, 0, 0x51, 0x04, 1, 2, 3, 0xE0, 4, 5, 6, 0, 7, 8, 0, 0, 0, 0, 0, 0};
  TakeAllRegisters(utils::ByteView(fis), command);
  EXPECT_EQ(command.command, 0x51);
  EXPECT_EQ(command.features, 0xAB04);
  EXPECT_EQ(command.sectorCount, 0x0807);
  EXPECT_EQ(command.lbaLow, 0x0401);
  EXPECT_EQ(command.lbaMid, 0x0502);
  EXPECT_EQ(command.lbaHigh, 0x0603);
  EXPECT_EQ(command.device, 0xE0);
}

}  // namespace
}  // namespace orvik::module::raid
