#include "module/storage/bridge_list.h"

#include <array>
#include <initializer_list>

#include "module/storage/ata/ata_commands.h"
#include "module/storage/ata/ata_protocol.h"
#include "module/storage/nvme/nvme_protocol.h"
#include "module/storage/scsi/scsi_protocol.h"
#include "tests/storage/scripted_bridge.h"

namespace orvik::module::storage {
namespace {

constexpr auto kCheckPower = "E5 f00 n0000 l0000.0000.0000 d00 no data";
constexpr auto kIdle = "E1 f00 n0000 l0000.0000.0000 d00 no data";

TEST(BridgeListTest, TheBridgeThatWorkedIsTriedFirstNextTime) {
  AtaProtocol protocol;
  const std::array bridges = {std::make_shared<ScriptedAta>(), std::make_shared<ScriptedAta>(),
                              std::make_shared<ScriptedAta>()};
  for (const auto& bridge : bridges) EXPECT_TRUE(protocol.AddBridge(bridge));
  bridges[0]->Expect(kIdle, Fails(34));
  bridges[1]->Expect(kIdle, Fails(125));
  bridges[2]->Expect(kIdle, Answers());
  EXPECT_EQ(protocol.Idle(), status::kSuccess);

  // Now third, first, second: the others keep their order.
  bridges[2]->Expect(kIdle, Fails(34));
  bridges[0]->Expect(kIdle, Fails(34));
  bridges[1]->Expect(kIdle, Fails(125));
  EXPECT_EQ(protocol.Idle(), status::kAccessDenied);
}

TEST(BridgeListTest, HoldsABridgeOnce) {
  AtaProtocol protocol;
  const auto bridge = std::make_shared<ScriptedAta>();
  EXPECT_TRUE(protocol.AddBridge(bridge));
  EXPECT_FALSE(protocol.AddBridge(bridge));
  EXPECT_FALSE(protocol.AddBridge(nullptr));
  bridge->Expect(kIdle, Fails(34));
  EXPECT_EQ(protocol.Idle(), status::kIoctlFailed);
}

TEST(BridgeListTest, AnAtaBridgeGetsTheRegistersFromBeforeTheFailedOne) {
  AtaProtocol protocol;
  const auto failing = std::make_shared<ScriptedAta>();
  const auto working = std::make_shared<ScriptedAta>();
  protocol.AddBridge(failing);
  protocol.AddBridge(working);
  failing->Expect(kCheckPower, [](AtaCmd& command) {
    command.sectorCount = 0x80;
    command.features = 0x04;
    command.lbaLow = command.lbaMid = command.lbaHigh = 0x1111;
    command.device = 0xA0;
    command.command = 0x51;
    command.length = 7;
    return status::kNoDataTransferred;
  });
  working->Expect(kCheckPower, [](AtaCmd& command) {
    command.sectorCount = 0xFF;
    return status::kSuccess;
  });
  std::uint32_t mode = 9;
  EXPECT_EQ(protocol.GetPowerMode(mode), status::kSuccess);
  EXPECT_EQ(mode, 2U);
}

TEST(BridgeListTest, ALengthNeverGrowsBeyondTheBuffer) {
  BridgeList<ScsiSendRule> bridges;
  const auto bridge = std::make_shared<ScriptedScsi>();
  bridges.Add(bridge);
  std::array<std::uint8_t, 36> data{};
  Inquiry command(data.data(), 36, false, 0);
  bridge->Expect("12 00 00 00 24 00 in 36", [](ScsiCmd& sent) {
    sent.length = 0xFFFFFFFF;
    return status::kSuccess;
  });
  EXPECT_EQ(bridges.Send(command), status::kSuccess);
  EXPECT_EQ(command.length, 36U);
}

TEST(BridgeListTest, AProtocolWithoutABridgeFailsByItsKind) {
  AtaProtocol ata;
  ScsiProtocol scsi;
  NvmeProtocol nvme;
  ProtocolProperties properties;
  std::uint8_t number = 0;
  EXPECT_EQ(ata.GetProperties(&properties), 1U);
  EXPECT_EQ(ata.Idle(), 1U);
  EXPECT_EQ(ata.GetHealthStatus(number), 1U);
  EXPECT_EQ(scsi.GetProperties(&properties), 78U);
  EXPECT_EQ(scsi.StartSelfTest(1, 0), 78U);
  EXPECT_EQ(scsi.GetHealthStatus(number), 78U);
  std::array<std::uint8_t, 512> data{};
  EXPECT_EQ(nvme.Read(0, 1, 5, data.data(), 512), 1U);
  for (Protocol* const protocol : std::initializer_list<Protocol*>{&ata, &scsi, &nvme}) {
    EXPECT_FALSE(protocol->IsSupported());
    EXPECT_EQ(protocol->GetHandle(), nullptr);
  }
}

}  // namespace
}  // namespace orvik::module::storage
