#include "module/storage/nvme/nvme_protocol.h"

#include <algorithm>
#include <map>

#include "module/storage/nvme/path_scan.h"
#include "tests/module/storage/scripted_bridge.h"

namespace orvik::module::storage {
namespace {

/// IDENTIFY of a namespace, of the controller (1) or of the active namespaces (2).
std::string IdentifyOf(std::uint32_t namespaceId, unsigned target, unsigned path = 7) {
  return "admin 06 n" + Hex(namespaceId, 8) + " " + Hex(target, 8) + " 00000000 00000000 p" + std::to_string(path) +
         " 4096";
}

constexpr auto kLabelLog = "admin 02 nFFFFFFFF 007F00DF 00000000 00000000 p7 512";

Bytes Namespace(std::uint8_t size, std::uint8_t capacity, std::uint8_t format, std::uint8_t exponent) {
  return Reply(4096, {{0, {size}}, {8, {capacity}}, {26, {format}}, {128U + 4U * (format & 15U) + 2U, {exponent}}});
}

class NvmeProtocolTest : public DriveTest<NvmeProtocol, ScriptedNvme> {
 protected:
  NvmeProtocolTest() { protocol.SetPathId(7); }
};

TEST_F(NvmeProtocolTest, IdentifiesAllNamespacesOrTheFirstActiveOne) {
  const Bytes controller = Reply(4096, {{4, Chars("  SER\x01IAL            ")}, {24, Bytes(48, 'M')}, {256, {0x08}}});
  Expect({{IdentifyOf(0, 1), Answers(controller)},
          {IdentifyOf(0xFFFFFFFF, 0), Answers(Namespace(100, 50, 0x12, 12))},
          {kLabelLog, Answers(Reply(512, {{110, Bytes(31, 'L')}}))}});
  EXPECT_EQ(protocol.GetProperties(&properties), status::kSuccess);
  EXPECT_EQ(properties.serialNumber + " " + properties.labelText, "SER?IAL " + std::string(30, 'L'));
  EXPECT_EQ(properties.model + " " + properties.firmwareRevision, std::string(40, 'M') + " " + std::string(8, 'M'));
  EXPECT_EQ(properties.sectorCount, 100U);
  EXPECT_EQ(properties.logicalSectorSize, 4096U);

  Expect({{IdentifyOf(0, 1), Answers(controller)},
          {IdentifyOf(0xFFFFFFFF, 0), Answers(Namespace(100, 0, 0, 9))},  // no capacity: not usable
          {IdentifyOf(0, 2), Answers(Reply(4096, {{8, {5}}, {12, {6}}}))},
          {IdentifyOf(5, 0), Answers(Namespace(3, 3, 0x0F, 32))},  // no block of 4 GiB
          {kLabelLog, Fails(status::kFailure)}});
  EXPECT_EQ(protocol.GetProperties(&properties), status::kSuccess);
  EXPECT_EQ(properties.sectorCount, 3U);
  EXPECT_EQ(properties.logicalSectorSize, 0U);

  Expect({{IdentifyOf(0, 1), Answers(Reply(4096, {{256, {0xF7}}}))}, {IdentifyOf(0, 2), Fails(status::kFailure)}});
  EXPECT_EQ(protocol.GetProperties(&properties), status::kDeviceError);
}

TEST_F(NvmeProtocolTest, ReadsBlocksOnItsPath) {
  Bytes data(32);
  bridge->Expect("io 02 n00000001 00000009 00000001 00000001 p7 32", Fails(34));
  EXPECT_EQ(protocol.Read(0x100000009, 2, 4, data.data(), 32), status::kIoctlFailed);
  EXPECT_EQ(protocol.Read(0, 0, 4, data.data(), 32), status::kBadArgument);
}

TEST_F(NvmeProtocolTest, ReadsTheHealthLog) {
  constexpr auto kLog = "admin 02 nFFFFFFFF 007F0002 00000000 00000000 p7 512";
  const auto log = Answers(Reply(512, {{1, {0x31, 1}}, {5, {3}}}));
  EXPECT_EQ(Ask(&Protocol::GetTemperature, {{kLog, log}}), Result(0, 32));
  EXPECT_EQ(Ask(&Protocol::GetLifeRemaining, {{kLog, log}}), Result(0, 97));
  EXPECT_EQ(Ask(&Protocol::GetLifeRemaining, {{kLog, Answers(Bytes(512, 120))}}), Result(0, 0));
  EXPECT_EQ(Ask(&Protocol::GetTemperature, {{kLog, Fails(1)}}), Result(88, 99));
}

TEST(PathScanTest, GivesEachDriveItsOwnPath) {
  std::map<unsigned, std::string> drives = {{3, "ALPHA"}, {9, "alpha"}, {255, std::string(4092, 'x')}};
  std::vector<std::string> claimed;
  for (const unsigned expected : {3U, 9U, 255U, 256U}) {
    ScriptedNvme bridge;
    for (unsigned tried = 0; tried <= std::min(expected, 255U); ++tried) {
      const Bytes data = Reply(4096, {{4, Chars(drives[tried])}});
      bridge.Expect(IdentifyOf(0, 1, tried),
                    [=](NvmeCmd& command) { return Answers(data)(command) + (data[4] == 0 ? 1U : 0U); });
    }
    NvmePath path;
    EXPECT_EQ(FindNvmePath(bridge, claimed, path), expected < 256);
    EXPECT_EQ(path.pathId, expected % 256);
    EXPECT_EQ(path.serial, drives[expected]);
    claimed.push_back(path.serial);
  }
}

}  // namespace
}  // namespace orvik::module::storage
