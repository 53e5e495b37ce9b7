#include "module/storage/bridge_list.h"

#include <array>

#include "module/storage/ata/ata_commands.h"
#include "module/storage/ata/ata_protocol.h"
#include "module/storage/nvme/nvme_protocol.h"
#include "module/storage/scsi/scsi_protocol.h"
#include "tests/module/storage/scripted_bridge.h"

namespace orvik::module::storage {
namespace {

TEST(BridgeListTest, TheBridgeThatWorkedIsTriedFirstNextTime) {
  constexpr auto kIdle = "E1 f00 n0000 l0000.0000.0000 d00 no data";
  AtaProtocol protocol;
  const std::array bridges = {std::make_shared<ScriptedAta>(), std::make_shared<ScriptedAta>(),
                              std::make_shared<ScriptedAta>()};
  for (const auto& bridge : bridges) EXPECT_TRUE(protocol.AddBridge(bridge));
  EXPECT_FALSE(protocol.AddBridge(bridges[1]));  // it is there
  EXPECT_FALSE(protocol.AddBridge(nullptr));
  for (const std::size_t i : {0U, 1U}) bridges.at(i)->Expect(kIdle, Fails(34));
  bridges[2]->Expect(kIdle, Answers());
  EXPECT_EQ(protocol.Idle(), status::kSuccess);

  // Now third, first, second: the others keep their order.
  for (const std::size_t i : {2U, 0U}) bridges.at(i)->Expect(kIdle, Fails(34));
  bridges[1]->Expect(kIdle, Fails(125));
  EXPECT_EQ(protocol.Idle(), status::kAccessDenied);
}

TEST(BridgeListTest, AnAtaBridgeGetsTheRegistersFromBeforeTheFailedOne) {
  const AtaCheckPowerMode original;
  AtaCheckPowerMode command;
  BridgeList<AtaSendRule> bridges;
  const std::array both = {std::make_shared<ScriptedAta>(), std::make_shared<ScriptedAta>()};
  for (const auto& bridge : both) bridges.Add(bridge);
  both[0]->Expect(Describe(original), [](AtaCmd& sent) {
    sent.features = sent.sectorCount = sent.lbaLow = sent.lbaMid = sent.lbaHigh = 0x1111;
    sent.device = sent.command = 0xA1;
    return status::kNoDataTransferred;
  });
  both[1]->Expect(Describe(original), [](AtaCmd& sent) { return sent.length = 9, status::kSuccess; });
  EXPECT_EQ(bridges.Send(command), status::kSuccess);
  EXPECT_EQ(command.length, 0U);  // whatever is reported as received, it never grows beyond the buffer
}

TEST(BridgeListTest, AProtocolWithoutABridgeFailsByItsKind) {
  AtaProtocol ata;
  ScsiProtocol scsi;
  NvmeProtocol nvme;
  std::uint8_t number = 0;
  EXPECT_EQ(ata.GetHealthStatus(number), 1U);
  EXPECT_EQ(scsi.GetHealthStatus(number), 78U);
  EXPECT_EQ(nvme.Read(0, 1, 5, &number, 1), 1U);
  for (Protocol* const protocol : std::array<Protocol*, 3>{&ata, &scsi, &nvme}) {
    EXPECT_FALSE(protocol->IsSupported());
    EXPECT_EQ(protocol->GetHandle(), nullptr);
  }
}

}  // namespace
}  // namespace orvik::module::storage
