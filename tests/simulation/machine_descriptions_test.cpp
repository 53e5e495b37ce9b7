#include <gtest/gtest.h>

#include <QFile>
#include <QJsonDocument>
#include <QJsonObject>
#include <filesystem>
#include <fstream>
#include <regex>
#include <set>
#include <string>

#include "simulation/identifiers.h"
#include "simulation/machine/load_machine.h"

namespace orvik::simulation {
namespace {

// Machine descriptions written down by a test, each loaded through a file of the test's own.
class MachineDescriptions : public testing::Test {
 protected:
  ~MachineDescriptions() override { std::filesystem::remove(path_); }

  std::variant<std::shared_ptr<Machine>, std::string> Load(const std::string& text) {
    std::ofstream(path_, std::ios::binary) << text;
    return LoadMachine(path_);
  }

  // The error without the file name; empty on success.
  std::string Error(const std::string& text) {
    const auto loaded = Load(text);
    const auto* error = std::get_if<std::string>(&loaded);
    return error != nullptr && error->starts_with(path_ + ": ") ? error->substr(path_.size() + 2) : "";
  }

  static std::string Document(const std::string& rest) { return R"({"format": 1, "name": "m", )" + rest + "}"; }
  static std::string Adapter(const std::string& rest) {
    return Document(R"("adapters": [{"instanceId": "a"}, {"instanceId": "b", )" + rest + "}]");
  }
  static std::string Drive(const std::string& rest) {
    return Csmi(R"("drives": [{"serial": "s", "sectors": 1, "?": 0, )" + rest + "}]");
  }
  static std::string Storelib(const std::string& rest) {
    return Document(R"("storelib": {"controllers": [{"controllerId": 1, "product": "p", )" + rest + "}]}");
  }
  static std::string StorelibDrives(const std::string& rest) {
    return Storelib(R"("drives": [{"deviceId": 8, "count": 3, "drive": {"kind": "SATA", "model": "m", "serial": "S08",
                                  "sectors": 1}}, )" +
                    rest);
  }
  static std::string Csmi(const std::string& rest) { return Adapter(R"("csmi": {)" + rest + "}"); }

  // Tests may run side by side.
  const std::string name_ = testing::UnitTest::GetInstance()->current_test_info()->name();
  const std::string path_ = (std::filesystem::temp_directory_path() / (name_ + ".json")).string();
};

TEST_F(MachineDescriptions, AreRefusedWithPlaceExpectationAndFinding) {
  const std::pair<std::string, std::string> rows[] = {
      {"\n", "document: expected an object, found an empty file"},
      {std::string(1048577, ' '), "document: expected at most 1048576 bytes, found more"},
      {R"({"name": "a", "na\u006de": "b"})", R"(document: expected each key once, found the key "name" again)"},
      {Csmi(
           R"("revision": ["{", "\"", []], "drives": [1, {"a": {"b": [2]}}, {"kind": 1, "c": {"kind": 2}, "kind": 3}])"),
       R"(adapters[1].csmi.drives[2]: expected each key once, found the key "kind" again)"},
      {Document(R"("physicalDrives": [)" + QByteArray("0,").repeated(256).toStdString() + "0]"),
       "physicalDrives: expected a list of at most 256 elements, found 257 elements"},
      {StorelibDrives(R"({"deviceId": 20, "count": 254,
                          "drive": {"kind": "SATA", "model": "m", "serial": "S001", "sectors": 1}}])"),
       "storelib.controllers[0].drives: expected at most 256 drives, repetitions included, found more"},
      {"[]", "document: expected an object, found a list"},
      {"{\"format\": 1,\n \"name\" 3}", "2:10: expected JSON, found \"missing name separator\""},
      {R"({"name": "m"})", "format: expected the number 1, found nothing"},
      {Adapter(R"("present": "yes")"), R"(adapters[1].present: expected true or false, found the text "yes")"},
      {Csmi(R"("flags": ["SATA RAID", "RAID"])"),
       R"(adapters[1].csmi.flags[1]: expected one of "SAS HBA", "SAS RAID", "SATA HBA", "SATA RAID", )"
       R"(found the text "RAID")"},
      {Csmi(R"("drives": [{"kind": "SAS", "vendor": "123456789"}])"),
       R"(adapters[1].csmi.drives[0].vendor: expected a text of at most 8 bytes, found the text "123456789")"},
      {Csmi(R"("drives": [{"kind": "SATA", "model": "m", "serial": "s", "sectors": 1.5}])"),
       "adapters[1].csmi.drives[0].sectors: expected a whole number from 1 to 281474976710655, found the number 1.5"},
      {Csmi(R"("drives": [{"kind": "SATA", "model": "m", "serial": "s", "sectors": 1}], "phys": [{"drive": 1}])"),
       "adapters[1].csmi.phys[0].drive: expected a whole number from 0 to 0, found the number 1"},
      {Document(R"("registry": [{"key": "a", "name": "b", "text": "c", "\n": 1}])"),
       R"(registry[0]: expected one of the keys "key", "name", "text", found the key " ")"},
      {Document(R"("faults": [{"operation": "*"}])"), R"(faults[0]: expected an effect such as "error", found none)"},
      {Document(R"("faults": [{"operation": "DeviceIoControl", "patch": [{"offset": 1, "bytes": "ABC"}]}])"),
       R"(faults[0].patch[0].bytes: expected a text of pairs of hexadecimal digits, found the text "ABC")"},
      {Document(R"("storelib": {"controllers": [{"controllerId": 1, "product": "p"}, {"controllerId": 1}]})"),
       "storelib.controllers[1].controllerId: expected a unique controller id, found the controller id 1 again"},
      {StorelibDrives(R"({"deviceId": 10, "drive": {"kind": "SATA", "model": "m", "serial": "", "sectors": 1}}])"),
       "storelib.controllers[0].drives[1].deviceId: expected a unique device id, found the device id 10 again"},
      {StorelibDrives(R"({"deviceId": 1, "count": 2,
                          "drive": {"kind": "SATA", "model": "m", "serial": "S9", "sectors": 1}}])"),
       "storelib.controllers[0].drives[1].drive: expected a serial number that can be counted up, found an object"},
      {StorelibDrives(R"({"deviceId": 11, "deviceType": "enclosure",
                          "drive": {"kind": "SAS", "vendor": "v", "product": "p", "serial": "s", "sectors": 1}}],
          "logicalDrives": [{"targetId": 0, "count": 2, "level": "RAID 1", "blocks": 1, "members": [8, 9]}])"),
       "storelib.controllers[0].logicalDrives[0].members: expected device ids of disks of this controller, "
       "found the device id 11"},
  };
  for (const auto& [text, error] : rows) EXPECT_EQ(Error(text), error) << text;
  std::filesystem::remove(path_);
  // The system's own words follow.
  EXPECT_TRUE(
      std::get<std::string>(LoadMachine(path_)).starts_with(path_ + ": document: expected a readable file, found"));
}

TEST_F(MachineDescriptions, CarryEveryKeyIntoTheMachine) {
  const auto loaded = Load(R"({
    "format": 1, "name": "all", "speed": 60,
    "adapters": [{
      "instanceId": "PCI\\X", "class": "{00112233-4455-6677-8899-aabbccddeeff}", "description": "D", "present": false,
      "driver": {"key": "k", "provider": "p", "version": "v"},
      "interfaces": [{"path": "\\\\?\\x", "class": "{00112233-4455-6677-8899-aabbccddeeff}"}],
      "csmi": {"flags": ["SATA HBA", "SATA RAID"], "status": "powered off", "offlineReason": "bus failure",
               "serial": "s", "boardId": "28228086", "revision": [1, 2, 3, 4], "sasAddress": "5001A5E000000001",
               "drives": [{"kind": "SAS", "vendor": "V", "product": "P", "revision": "R", "serial": "S", "sectors": 7,
                           "sectorSize": 4096, "physicalSectorSize": 8192, "rotationRate": 15000,
                           "sasAddress": "0000000000000042", "silent": true},
                          {"kind": "NVMe", "model": "M", "serial": "S", "sectors": 1, "temperatureCelsius": 78}],
               "phys": [{"drive": 0, "identifier": 5, "port": 6, "deviceType": "edge expander", "protocol": 3}],
               "raidSets": [{"type": 12, "status": "transforming", "information": 9, "capacityMiB": 4294967295,
                             "stripeKiB": 16, "members": [{"drive": 1, "status": "degraded"},
                                                          {"model": "m", "serial": "s"}]}],
               "maxDrivesPerSet": 0}}],
    "desktop": {"highContrast": true, "colors": [{"index": 30, "color": "0a0B0c"}], "screenReader": true, "narrator": true,
                "dpi": 192, "dpiLibrary": false, "programData": "p", "userName": "u"},
    "registry": [{"key": "a", "name": "b", "text": "c"}],
    "faults": [{"operation": "DeviceIoControl", "call": 1, "returnCode": 1, "garble": 2, "truncate": 3,
                "patch": [{"offset": 1, "bytes": "0AFF"}]}]})");
  ASSERT_TRUE(std::holds_alternative<std::shared_ptr<Machine>>(loaded)) << std::get<std::string>(loaded);
  Machine& machine = *std::get<std::shared_ptr<Machine>>(loaded);
  const AdapterDescription& adapter = machine.Adapters().at(0)->Description();
  const Guid guid{0x00112233, 0x4455, 0x6677, {0x88, 0x99, 0xAA, 0xBB, 0xCC, 0xDD, 0xEE, 0xFF}};
  EXPECT_EQ(adapter.setupClass, guid);
  EXPECT_EQ(adapter.driver.version, "v");
  const CsmiControllerDescription& csmi = *adapter.csmi;
  EXPECT_EQ(csmi.flags, kCsmiSataHba | kCsmiSataRaid);
  EXPECT_EQ(csmi.status, CsmiStatus::PoweredOff);
  EXPECT_EQ(csmi.boardId, 0x28228086U);
  EXPECT_EQ(csmi.revision, (std::array<std::uint16_t, 4>{1, 2, 3, 4}));
  const auto& sas = std::get<SasDriveDescription>(csmi.drives.at(0));
  EXPECT_EQ(sas.sasAddress, 0x42U);
  EXPECT_EQ(sas.physicalSectorSize, 8192U);
  EXPECT_EQ(std::get<NvmeDriveDescription>(csmi.drives.at(1)).temperatureCelsius, 78);
  EXPECT_EQ(csmi.phys.at(0).port, 6);
  EXPECT_EQ(csmi.raidSets.at(0).capacityMiB, 0xFFFFFFFFU);
  EXPECT_EQ(csmi.raidSets.at(0).members.at(0).status, CsmiDriveStatus::Degraded);
  EXPECT_EQ(machine.Registry().Find("A", "B"), "c");
  EXPECT_EQ(machine.Desktop().State(),
            (DesktopDescription{true, {{30, 0x0A0B0C}}, true, true, 192, false, "p", "u"}));
  const FaultEffects effects = machine.Faults().OnCall({"DeviceIoControl"});
  EXPECT_EQ(effects.truncateTo, 3U);
  EXPECT_EQ(effects.patches.at(0).bytes, (std::vector<std::uint8_t>{0x0A, 0xFF}));
}

// Repetitions included.
TEST_F(MachineDescriptions, CarryStorelibControllersIntoTheMachine) {
  const std::string text = StorelibDrives(R"(
      {"deviceId": 4, "interfaceByte": 1, "drive": {"kind": "SATA", "model": "m", "serial": "", "sectors": 1}}],
      "serial": "s", "interfaces": ["SPI", "SAS 6G"], "raidLevels": ["RAID 1", "RAID 60"], "batterySupported": false,
      "battery": {"type": 3, "packMissing": true, "temperatureHigh": true},
      "logicalDrives": [{"targetId": 254, "count": 2, "level": "RAID 10", "state": 9, "sequenceNumber": 2, "blocks": 7,
                         "consistent": false, "members": [8],
                         "check": {"seconds": 10, "runningAt": 5, "endsConsistent": false, "startStatus": 24}}],
      "enclosures": [{"enclosureId": 5, "faultByte": 6}])");
  Complaint complaint("");
  const auto parsed = ParseMachine(text, complaint);
  ASSERT_TRUE(parsed) << complaint.Text();
  const StorelibControllerDescription& read = parsed->storelib.controllers.at(0);
  EXPECT_EQ(std::tie(read.serial, read.interfaces, read.raidLevels, read.batterySupported, read.battery.type),
            std::tuple("s", 0x11, 0x82, false, 3));
  EXPECT_EQ(std::tie(read.battery.packMissing, read.battery.lowVoltage, read.battery.temperatureHigh),
            std::tuple(true, false, true));
  EXPECT_EQ(read.drives.at(2).deviceId, 10);
  EXPECT_EQ(std::get<SataDriveDescription>(read.drives.at(2).drive).serial, "S10");
  EXPECT_EQ(read.drives.at(3).interfaceByte, 1);
  const StorelibLogicalDriveDescription& drive = read.logicalDrives.at(1);
  EXPECT_EQ(std::tie(drive.targetId, drive.primaryLevel, drive.secondaryLevel, drive.sequenceNumber, drive.blocks),
            std::tuple(255, 1, 3, 2, 7U));
  EXPECT_EQ(std::tuple(static_cast<int>(drive.state), drive.consistent, drive.members.at(0)),
            std::tuple(9, false, 9));
  EXPECT_EQ(std::tie(drive.check.seconds, drive.check.runningAt, drive.check.endsConsistent, drive.check.startStatus),
            std::tuple(10U, 5, false, 24U));
  EXPECT_EQ(read.enclosures.at(0).faultByte, 6);
}

// An interface path names the same device as the instance id, and no two are equal.
TEST_F(MachineDescriptions, ComeAsSamples) {
  for (const auto& entry : std::filesystem::directory_iterator(ORVIK_MACHINES_DIR)) {
    const std::string file = entry.path().string();
    if (!file.ends_with(".json") || file.ends_with(".schema.json")) continue;
    const auto loaded = LoadMachine(file);
    ASSERT_TRUE(std::holds_alternative<std::shared_ptr<Machine>>(loaded)) << std::get<std::string>(loaded);
    std::set<std::string> paths;
    for (const auto& adapter : std::get<std::shared_ptr<Machine>>(loaded)->Adapters()) {
      std::string device = FoldCase(adapter->Description().instanceId);
      std::ranges::replace(device, '\\', '#');
      const std::string& sample = adapter->Description().interfaces.at(0).path;
      EXPECT_TRUE(sample.starts_with(R"(\\?\)" + device + "#")) << file << ": " << sample;
      EXPECT_TRUE(paths.insert(sample).second) << file << ": " << sample;
    }
  }
}

// The keys that the schema offers for a part of the document ("" is the document itself), and one that it does not.
std::set<std::string> SchemaKeys(const QJsonObject& schema, const char* part) {
  const QJsonObject object = *part == '\0' ? schema : schema["$defs"].toObject()[part].toObject();
  std::set<std::string> keys = {"?"};
  for (const QString& key : object["properties"].toObject().keys()) keys.insert(key.toStdString());
  return keys;
}

// The keys between quotation marks; the last is the one that was found.
std::set<std::string> KeysOf(const std::string& error) {
  static const std::regex quoted("\"([^\"]*)\"");
  return {std::sregex_token_iterator(error.begin(), error.end(), quoted, 1), std::sregex_token_iterator()};
}

// Editors check a document by the schema, the machine by its reader: both must know the same keys.
TEST_F(MachineDescriptions, HaveTheKeysOfTheirSchema) {
  QFile file(ORVIK_MACHINES_DIR "/machine.schema.json");
  ASSERT_TRUE(file.open(QIODevice::ReadOnly));
  const QJsonObject schema = QJsonDocument::fromJson(file.readAll()).object();
  const std::pair<const char*, std::string> rows[] = {
      {"", Document(R"("?": 0)")},
      {"adapter", Adapter(R"("?": 0)")},
      {"csmiController", Csmi(R"("?": 0)")},
      {"sataDrive", Drive(R"("kind": "SATA", "model": "m")")},
      {"sasDrive", Drive(R"("kind": "SAS", "vendor": "v", "product": "p")")},
      {"nvmeDrive", Drive(R"("kind": "NVMe", "model": "m")")},
      {"phy", Csmi(R"("phys": [{"?": 0}])")},
      {"raidSet", Csmi(R"("raidSets": [{"type": 0, "capacityMiB": 0, "members": [], "?": 0}])")},
      {"storelib", Document(R"("storelib": {"?": 0})")},
      {"storelibController", Storelib(R"("?": 0)")},
      {"storelibBattery", Storelib(R"("battery": {"?": 0})")},
      {"storelibDrive", StorelibDrives(R"({"deviceId": 1, "?": 0,
                           "drive": {"kind": "SATA", "model": "m", "serial": "", "sectors": 1}}])")},
      {"storelibLogicalDrive",
       Storelib(R"("logicalDrives": [{"targetId": 0, "level": "RAID 1", "blocks": 1, "members": [], "?": 0}])")},
      {"storelibCheck", Storelib(R"("logicalDrives": [{"targetId": 0, "level": "RAID 1", "blocks": 1, "members": [],
                                                       "check": {"?": 0}}])")},
      {"storelibEnclosure", Storelib(R"("enclosures": [{"enclosureId": 0, "?": 0}])")},
      {"desktop", Document(R"("desktop": {"?": 0})")},
      {"registryValue", Document(R"("registry": [{"key": "", "name": "", "text": "", "?": 0}])")},
      {"fault", Document(R"("faults": [{"operation": "DeviceIoControl", "?": 0}])")},
  };
  for (const auto& [part, text] : rows) EXPECT_EQ(SchemaKeys(schema, part), KeysOf(Error(text))) << part;
}

}  // namespace
}  // namespace orvik::simulation
