// The bytes of every command: a wrong one reads another sector, or starts what nobody asked for.

#include <array>

#include "module/storage/ata/ata_commands.h"
#include "module/storage/nvme/nvme_commands.h"
#include "module/storage/scsi/block_commands.h"
#include "module/storage/scsi/scsi_commands.h"
#include "tests/module/storage/scripted_bridge.h"

namespace orvik::module::storage {
namespace {

std::array<std::uint8_t, 32> data{};
std::uint8_t* const buffer = data.data();

TEST(DriveCommandsTest, FillRegistersCdbsAndDwords) {
  constexpr std::uint64_t kLba48 = 0x665544332211;
  constexpr std::uint64_t kLba = 0x1122334455667788;
  const std::vector<std::pair<std::string, std::string>> commands = {
      {Describe(IdentifyDevice(buffer)), "EC f00 n0001 l0000.0000.0000 d00 in 512"},
      {Describe(ReadSectors(0xFABCDEF, 255, 512, buffer, 5)), "20 f00 n00FF l00EF.00CD.00AB d4F in 130560"},
      {Describe(ReadSectorsExt(kLba48, 0x1234, 4096, buffer, 5)), "24 f00 n1234 l4411.5522.6633 d40 in 19087360"},
      {Describe(WriteSectors(0x1020304, 2, 512, buffer)), "30 f00 n0002 l0004.0003.0002 d41 out 1024"},
      {Describe(WriteSectorsExt(kLba48, 256, 512, buffer)), "34 f00 n0100 l4411.5522.6633 d40 out 131072"},
      {Describe(WriteUncorrectableExt(kLba48, 3, true)), "45 f55 n0003 l4411.5522.6633 d40 no data"},
      {Describe(WriteUncorrectableExt(kLba48, 3, false)), "45 fAA n0003 l4411.5522.6633 d40 no data"},
      {Describe(ReadLogExt(0x07, 2, buffer, 0x0102)), "2F f00 n0002 l0007.0102.0000 d00 in 1024"},
      {Describe(SmartReadData(buffer)), "B0 fD0 n0001 l0000.004F.00C2 d00 in 512"},
      {Describe(SmartReadLog(0x06, 2, buffer)), "B0 fD5 n0002 l0006.004F.00C2 d00 in 1024"},
      {Describe(SmartReturnStatus()), "B0 fDA n0000 l0000.004F.00C2 d00 no data"},
      {Describe(SmartEnable(1)), "B0 fD8 n0000 l0000.004F.00C2 d00 no data"},
      {Describe(SmartEnable(0)), "B0 fD9 n0000 l0000.004F.00C2 d00 no data"},
      {Describe(SmartExecuteOffline(0x81, 9)), "B0 fD4 n0009 l0081.004F.00C2 d00 no data"},
      {Describe(AtaCheckPowerMode()), "E5 f00 n0000 l0000.0000.0000 d00 no data"},
      {Describe(AtaIdleImmediate()), "E1 f00 n0000 l0000.0000.0000 d00 no data"},
      {Describe(Inquiry(buffer, 0x124, false, 0x80)), "12 00 00 01 24 00 in 292"},
      {Describe(Inquiry(buffer, 64, true, 0xB1)), "12 01 B1 00 40 00 in 64"},
      {Describe(ReadCapacity10(buffer)), "25 00 00 00 00 00 00 00 00 00 in 8"},
      {Describe(ReadCapacity16(buffer)), "9E 10 00 00 00 00 00 00 00 00 00 00 00 20 00 00 in 32"},
      {Describe(Read10(buffer, kLba, 0x0201, 512)), "28 18 55 66 77 88 00 02 01 00 in 262656"},
      {Describe(Read12(buffer, kLba, 0x0201, 512)), "A8 18 55 66 77 88 00 00 02 01 00 00 in 262656"},
      {Describe(Read16(buffer, kLba, 0x0201, 512)), "88 18 11 22 33 44 55 66 77 88 00 00 02 01 00 00 in 262656"},
      {Describe(Write10(buffer, kLba, 0x0201, 512)), "2A 08 55 66 77 88 00 02 01 00 out 262656"},
      {Describe(Write12(buffer, kLba, 0x0201, 512)), "AA 08 55 66 77 88 00 00 02 01 00 00 out 262656"},
      {Describe(Write16(buffer, kLba, 0x0201, 512)), "8A 08 11 22 33 44 55 66 77 88 00 00 02 01 00 00 out 262656"},
      {Describe(RequestSense(buffer, 252)), "03 00 00 00 FC 00 00 00 00 00 in 252"},
      {Describe(LogSenseIECPage(buffer, 0x0102)), "4D 00 6F 00 00 00 00 01 02 00 in 258"},
      {Describe(LogSenseSelfTestPage(buffer, 252)), "4D 00 50 00 00 00 00 00 FC 00 in 252"},
      {Describe(LogSenseTemperaturePage(buffer, 252)), "4D 00 4D 00 00 00 00 00 FC 00 in 252"},
      {Describe(ModeSense6IECPage(buffer, 16)), "1A 08 1C 00 10 00 in 16"},
      {Describe(ModeSense10IECPage(buffer, 20)), "5A 08 1C 00 00 00 00 00 14 00 in 20"},
      {Describe(ModeSelect6IecPage(buffer)), "15 10 00 00 10 00 out 16"},
      {Describe(ModeSelect10IecPage(buffer)), "55 10 00 00 00 00 00 00 14 00 out 20"},
      {Describe(SendDiagnostic(0)), "1D 04 00 00 00 00 no data"},
      {Describe(SendDiagnostic(4)), "1D 80 00 00 00 00 no data"},
      {Describe(NvmeGetLog(buffer, 512, nvme_log::kSmart)), "admin 02 nFFFFFFFF 007F0002 00000000 00000000 p0 512"},
      {Describe(NvmeGetLog(buffer, 0x40004, nvme_log::kVendorLabel)),
       "admin 02 nFFFFFFFF 000000DF 00000001 00000000 p0 262148"},
      {Describe(NvmeIdentifyDevice(buffer, IdentifyTarget::kController, 0)),
       "admin 06 n00000000 00000001 00000000 00000000 p0 4096"},
      {Describe(NvmeRead(buffer, 0x1122334455667788, 8, 1, false)),
       "io 02 n00000001 55667788 11223344 00000007 p0 0"},
      {Describe(NvmeRead(buffer, 0, 0xFFFF, 1, true)), "io 02 n00000001 00000000 00000000 4000FFFE p0 0"},
  };
  for (const auto& [command, expected] : commands) EXPECT_EQ(command, expected);
  EXPECT_EQ(ReadSectors(0, 1, 512, buffer, 5).timeout, 5U);
  EXPECT_EQ(Write10(buffer, 0, 1, 512).timeout, 180U);
}

}  // namespace
}  // namespace orvik::module::storage
