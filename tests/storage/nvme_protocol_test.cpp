#include "module/storage/nvme/nvme_protocol.h"

#include <array>
#include <map>
#include <tuple>

#include "module/storage/nvme/path_scan.h"
#include "tests/storage/scripted_bridge.h"

namespace orvik::module::storage {
namespace {

constexpr auto kController = "admin 06 n00000000 00000001 00000000 00000000 p7 4096";
constexpr auto kAllNamespacesData = "admin 06 nFFFFFFFF 00000000 00000000 00000000 p7 4096";
constexpr auto kActiveList = "admin 06 n00000000 00000002 00000000 00000000 p7 4096";
constexpr auto kNamespace5 = "admin 06 n00000005 00000000 00000000 00000000 p7 4096";
constexpr auto kSmartLog = "admin 02 nFFFFFFFF 007F0002 00000000 00000000 p7 512";
constexpr auto kLabelLog = "admin 02 nFFFFFFFF 007F00DF 00000000 00000000 p7 512";

Bytes Controller(bool managesNamespaces) {
  return Reply(4096, {{4, Chars("  SER\x01IAL            ")},
                      {24, Chars("MODEL name                              ")},
                      {64, Chars("FW1\0ABCD")},
                      {256, {static_cast<std::uint8_t>(managesNamespaces ? 0xFF : 0xF7)}}});
}

Bytes Namespace(std::uint8_t size, std::uint8_t capacity, std::uint8_t format, std::uint8_t exponent) {
  return Reply(4096, {{0, {size}}, {8, {capacity}}, {26, {format}}, {128U + 4U * (format & 15U) + 2U, {exponent}}});
}

class NvmeProtocolTest : public DriveTest<NvmeProtocol, ScriptedNvme> {
 protected:
  NvmeProtocolTest() { protocol.SetPathId(7); }
};

TEST_F(NvmeProtocolTest, IdentifiesADriveThatManagesNamespaces) {
  bridge->Expect(kController, Answers(Controller(true)));
  bridge->Expect(kAllNamespacesData, Answers(Namespace(100, 50, 0x12, 12)));
  bridge->Expect(kLabelLog, Answers(Reply(512, {{110, Bytes(30, 'L')}, {140, {'X'}}})));
  EXPECT_EQ(protocol.GetProperties(&properties), status::kSuccess);
  EXPECT_EQ(properties.protocolName, "NVMe");
  EXPECT_EQ(properties.serialNumber, "SER?IAL");
  EXPECT_EQ(properties.model, "MODEL name");
  EXPECT_EQ(properties.firmwareRevision, "FW1");
  EXPECT_EQ(properties.labelText, std::string(30, 'L'));
  EXPECT_EQ(properties.sectorCount, 100U);
  EXPECT_EQ(properties.logicalSectorSize, 4096U);
  EXPECT_TRUE(properties.isSolidState && properties.smartSupported && properties.smartEnabled);
}

TEST_F(NvmeProtocolTest, IdentifiesTheFirstActiveNamespace) {
  bridge->Expect(kController, Answers(Controller(true)));
  bridge->Expect(kAllNamespacesData, Answers(Namespace(100, 0, 0, 9)));  // no capacity: not usable
  bridge->Expect(kActiveList, Answers(Reply(4096, {{8, {5}}, {12, {6}}})));
  bridge->Expect(kNamespace5, Answers(Namespace(3, 3, 0x0F, 32)));  // no block of 4 GiB
  bridge->Expect(kLabelLog, Fails(status::kFailure));
  EXPECT_EQ(protocol.GetProperties(&properties), status::kSuccess);
  EXPECT_EQ(properties.sectorCount, 3U);
  EXPECT_EQ(properties.logicalSectorSize, 0U);
  EXPECT_EQ(properties.labelText, "");
}

TEST_F(NvmeProtocolTest, TellsWhatItFoundBeforeAFailure) {
  EXPECT_EQ(protocol.GetProperties(nullptr), status::kFailure);
  bridge->Expect(kController, Fails(status::kFailure));
  EXPECT_EQ(protocol.GetProperties(&properties), status::kDeviceError);
  EXPECT_EQ(properties.protocolName, "");

  bridge->Expect(kController, Answers(Controller(false)));
  bridge->Expect(kActiveList, Fails(status::kFailure));
  EXPECT_EQ(protocol.GetProperties(&properties), status::kDeviceError);
  EXPECT_EQ(properties.model, "MODEL name");

  bridge->Expect(kController, Answers(Controller(false)));
  bridge->Expect(kActiveList, Answers(Bytes(4096)));
  bridge->Expect("admin 06 n00000000 00000000 00000000 00000000 p7 4096", Answers(Bytes(4096)));
  EXPECT_EQ(protocol.GetProperties(&properties), status::kDeviceError);
}

TEST_F(NvmeProtocolTest, ReadsBlocksAsLongAsTheCallerSays) {
  std::array<std::uint8_t, 32> data{};
  bridge->Expect("io 02 n00000001 00000009 00000001 00000001 p7 32", [](NvmeCmd& command) {
    EXPECT_EQ(command.timeout, 4U);
    return status::kIoctlFailed;
  });
  EXPECT_EQ(protocol.Read(0x100000009, 2, 4, data.data(), 32), status::kIoctlFailed);
  EXPECT_EQ(protocol.Read(0, 0, 4, data.data(), 32), status::kBadArgument);
  EXPECT_EQ(protocol.Read(0, 1, 4, nullptr, 32), status::kBadArgument);
  EXPECT_EQ(protocol.Write(0, 1, 0, data.data()), status::kNotAvailable);
}

TEST_F(NvmeProtocolTest, ReadsTheHealthLog) {
  using Case = std::tuple<std::uint8_t, std::uint8_t, std::uint8_t, std::uint32_t>;
  for (const auto& [temperature, used, degrees, remaining] :
       std::vector<Case>{{0x31, 3, 32, 97}, {0x11, 120, 0, 0}, {0x10, 100, 255, 0}, {0x10, 255, 255, 0}}) {
    const Bytes log = Reply(512, {{1, {temperature, 1}}, {5, {used}}});
    bridge->Expect(kSmartLog, Answers(log));
    bridge->Expect(kSmartLog, Answers(log));
    std::uint8_t celsius = 99;
    std::uint32_t percent = 99;
    EXPECT_EQ(protocol.GetTemperature(celsius), status::kSuccess);
    EXPECT_EQ(protocol.GetLifeRemaining(percent), status::kSuccess);
    EXPECT_EQ(celsius, degrees);
    EXPECT_EQ(percent, remaining);
  }
  bridge->Expect(kSmartLog, Fails(status::kFailure));
  std::uint8_t celsius = 99;
  EXPECT_EQ(protocol.GetTemperature(celsius), status::kDeviceError);
  EXPECT_EQ(celsius, 99);
}

/// A controller's port: what answers at which path.
class PathBridge final : public NvmeBridge {
 public:
  explicit PathBridge(std::map<std::uint8_t, Bytes> drives) : NvmeBridge(nullptr), drives_(std::move(drives)) {}

  Status Send(NvmeCmd& command) override {
    ++sends;
    const auto drive = drives_.find(command.pathId);
    if (drive == drives_.end()) return status::kFailure;
    DeliverData(command, utils::ByteView(drive->second));
    return status::kSuccess;
  }

  int sends = 0;

 private:
  std::map<std::uint8_t, Bytes> drives_;
};

TEST(PathScanTest, GivesEachDriveItsOwnPath) {
  PathBridge bridge({{3, Reply(4096, {{4, Chars("ALPHA")}})},
                     {9, Reply(4096, {{4, Chars("alpha")}})},
                     {255, Bytes(4096, 'x')}});  // never a zero byte
  std::vector<std::string> claimed;
  for (const auto& [pathId, serial] :
       std::vector<std::pair<std::uint8_t, std::string>>{{3, "ALPHA"}, {9, "alpha"}, {255, std::string(4092, 'x')}}) {
    NvmePath path;
    EXPECT_TRUE(FindNvmePath(bridge, claimed, path));
    EXPECT_EQ(path.pathId, pathId);
    EXPECT_EQ(path.serial, serial);
    claimed.push_back(path.serial);
  }
  bridge.sends = 0;
  NvmePath path{.pathId = 42, .serial = "kept"};
  EXPECT_FALSE(FindNvmePath(bridge, claimed, path));
  EXPECT_EQ(bridge.sends, 256);
  EXPECT_EQ(path.pathId, 42);
}

}  // namespace
}  // namespace orvik::module::storage
