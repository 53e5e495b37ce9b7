#include <gtest/gtest.h>

#include <QFile>
#include <QJsonDocument>
#include <QJsonObject>
#include <filesystem>
#include <fstream>
#include <set>
#include <string>

#include "simulation/json/load_machine.h"

namespace orvik::simulation {
namespace {

// Machine descriptions written down by a test, each loaded through a file of the test's own.
class MachineDescriptions : public testing::Test {
 protected:
  ~MachineDescriptions() override { std::filesystem::remove(path); }

  std::variant<std::shared_ptr<Machine>, std::string> Load(const std::string& text) {
    std::ofstream(path) << text;
    return LoadMachine(path);
  }

  // The error without the file name; empty on success.
  std::string Error(const std::string& text) {
    const auto loaded = Load(text);
    const auto* error = std::get_if<std::string>(&loaded);
    if (error == nullptr) return "";
    EXPECT_EQ(error->substr(0, path.size() + 2), path + ": ");
    return error->substr(path.size() + 2);
  }

  static std::string Document(const std::string& rest) { return R"({"format": 1, "name": "m", )" + rest + "}"; }
  static std::string Adapter(const std::string& rest) {
    return Document(R"("adapters": [{"instanceId": "a"}, {"instanceId": "b", )" + rest + "}]");
  }
  static std::string Csmi(const std::string& rest) { return Adapter(R"("csmi": {)" + rest + "}"); }

  std::string path =
      (std::filesystem::temp_directory_path() /
       (std::string("machine-") + testing::UnitTest::GetInstance()->current_test_info()->name() + ".json"))
          .string();
};

TEST_F(MachineDescriptions, AreRefusedWithPlaceExpectationAndFinding) {
  const std::string sata = R"("drives": [{"kind": "SATA", "model": "m", "serial": "s", "sectors": 1}])";
  const std::pair<std::string, std::string> rows[] = {
      {"[]", "document: expected an object, found a list"},
      {"{\"format\": 1,\n \"name\" 3}", "2:10: expected JSON, found \"missing name separator\""},
      {R"({"name": "m"})", "format: expected the number 1, found nothing"},
      {R"({"format": 2, "name": "m"})", "format: expected a whole number from 1 to 1, found the number 2"},
      {R"({"format": 1, "name": false})", "name: expected a text, found false"},
      {Document(R"("speed": 0)"), "speed: expected a number from 0.001 to 1e+06, found the number 0"},
      {Document(R"("adapters": {})"), "adapters: expected a list, found an object"},
      {Document(R"("adapters": [null])"), "adapters[0]: expected an object, found null"},
      {Document(R"("adaptors": [])"),
       R"(document: expected one of the keys "format", "name", "speed", "adapters", "registry", "faults", )"
       R"(found the key "adaptors")"},
      {Document(R"("registry": [{"key": "k", "name": "n"}])"), "registry[0].text: expected a text, found nothing"},
      {Adapter(R"("present": "yes")"), R"(adapters[1].present: expected true or false, found the text "yes")"},
      {Adapter(R"("class": "{4d36e97b}")"),
       R"(adapters[1].class: expected a GUID such as "{4d36e97b-e325-11ce-bfc1-08002be10318}", )"
       R"(found the text "{4d36e97b}")"},
      {Adapter(R"("interfaces": [{}])"), "adapters[1].interfaces[0].path: expected a text, found nothing"},
      {Csmi(R"("flags": ["SATA RAID", "RAID"])"),
       R"(adapters[1].csmi.flags[1]: expected one of "SAS HBA", "SAS RAID", "SATA HBA", "SATA RAID", )"
       R"(found the text "RAID")"},
      {Csmi(R"("revision": [1, 2, 3])"), "adapters[1].csmi.revision: expected a list of 4 numbers, found a list"},
      {Csmi(R"("sasAddress": "5001A5E00000000G")"),
       R"(adapters[1].csmi.sasAddress: expected a text of 16 hexadecimal digits, found the text "5001A5E00000000G")"},
      {Csmi(R"("drives": [{"kind": "IDE"}])"),
       R"(adapters[1].csmi.drives[0].kind: expected one of "SATA", "SAS", "NVMe", found the text "IDE")"},
      {Csmi(R"("drives": [{"kind": "SATA", "model": "m", "serial": "123456789012345678901"}])"),
       "adapters[1].csmi.drives[0].serial: expected a text of at most 20 bytes, "
       "found the text \"123456789012345678901\""},
      {Csmi(R"("drives": [{"kind": "SATA", "model": "m", "serial": "s", "sectors": 1.5}])"),
       "adapters[1].csmi.drives[0].sectors: expected a whole number from 1 to 281474976710655, found the number 1.5"},
      {Csmi(R"("drives": [{"kind": "NVMe", "model": "m", "serial": "s", "sectors": 1, "rotationRate": 1}])"),
       R"(adapters[1].csmi.drives[0]: expected one of the keys "kind", "model", "serial", "firmware", "sectors", )"
       R"("sectorSize", "temperatureCelsius", "silent", found the key "rotationRate")"},
      {Csmi(sata + R"(, "phys": [{"drive": 1}])"),
       "adapters[1].csmi.phys[0].drive: expected a whole number from 0 to 0, found the number 1"},
      {Csmi(R"("raidSets": [{"type": "RAID 1", "capacityMiB": 1, "members": [{"drive": 0}]}])"),
       "adapters[1].csmi.raidSets[0].members[0].drive: expected no drive number, as the controller has no drives, "
       "found the number 0"},
      {Csmi(R"("raidSets": [{"type": 256}])"),
       "adapters[1].csmi.raidSets[0].type: expected a whole number from 0 to 255, found the number 256"},
      {Csmi(sata + R"(, "raidSets": [{"type": 9, "capacityMiB": 1, "members": [{"drive": 0, "model": "x"}]}])"),
       R"(adapters[1].csmi.raidSets[0].members[0]: expected one of the keys "drive", "status", found the key "model")"},
      {Document(R"("faults": [{"operation": "ReadFile", "error": 5}])"),
       R"(faults[0].operation: expected "*", a Windows function or a packet that can be made to fail, )"
       R"(found the text "ReadFile")"},
      {Document(R"("faults": [{"operation": "CreateFileW", "truncate": 5}])"),
       R"(faults[0]: expected one of the keys "operation", "call", "error", found the key "truncate")"},
      {Document(R"("faults": [{"operation": "*"}])"), R"(faults[0]: expected an effect such as "error", found none)"},
      {Document(R"("faults": [{"operation": "DeviceIoControl", "patch": [{"offset": 1, "bytes": "ABC"}]}])"),
       R"(faults[0].patch[0].bytes: expected a text of pairs of hexadecimal digits, found the text "ABC")"},
      {Document(R"("speed": "two\nlines")"),
       R"(speed: expected a number from 0.001 to 1e+06, found the text "two lines")"},
  };
  for (const auto& [text, error] : rows) EXPECT_EQ(Error(text), error) << text;
}

TEST_F(MachineDescriptions, ThatCannotBeReadAreRefused) {
  const auto loaded = LoadMachine("/nowhere/machine.json");
  ASSERT_TRUE(std::holds_alternative<std::string>(loaded));
  EXPECT_EQ(std::get<std::string>(loaded),
            "/nowhere/machine.json: document: expected a readable file, found \"No such file or directory\"");
}

TEST_F(MachineDescriptions, CarryEveryKeyIntoTheMachine) {
  const auto loaded = Load(R"({
    "format": 1, "name": "all", "speed": 60,
    "adapters": [{
      "instanceId": "PCI\\X", "class": "{00112233-4455-6677-8899-aabbccddeeff}", "description": "D", "present": false,
      "driver": {"key": "k", "provider": "p", "version": "v"},
      "interfaces": [{"path": "\\\\?\\x", "class": "{00112233-4455-6677-8899-aabbccddeeff}"}],
      "csmi": {"flags": 10, "status": "powered off", "offlineReason": "bus failure", "serial": "s",
               "boardId": "28228086", "revision": [1, 2, 3, 4], "sasAddress": "5001A5E000000001",
               "drives": [{"kind": "SAS", "vendor": "V", "product": "P", "revision": "R", "serial": "S", "sectors": 7,
                           "sectorSize": 4096, "physicalSectorSize": 8192, "rotationRate": 15000,
                           "sasAddress": "0000000000000042", "silent": true},
                          {"kind": "NVMe", "model": "M", "serial": "S", "sectors": 1, "temperatureCelsius": 78}],
               "phys": [{"drive": 0, "identifier": 5, "port": 6, "deviceType": "edge expander", "protocol": 3}],
               "raidSets": [{"type": 12, "status": "transforming", "information": 9, "capacityMiB": 4294967295,
                             "stripeKiB": 16, "members": [{"drive": 1, "status": "degraded"},
                                                          {"model": "m", "serial": "s"}]}],
               "maxDrivesPerSet": 0}}],
    "registry": [{"key": "a", "name": "b", "text": "c"}],
    "faults": [{"operation": "DeviceIoControl", "call": 1, "returnCode": 1, "garble": 2, "truncate": 3,
                "patch": [{"offset": 1, "bytes": "0AFF"}]}]})");
  ASSERT_TRUE(std::holds_alternative<std::shared_ptr<Machine>>(loaded)) << std::get<std::string>(loaded);
  Machine& machine = *std::get<std::shared_ptr<Machine>>(loaded);
  const AdapterDescription& adapter = machine.Adapters().at(0)->Description();
  const Guid guid{0x00112233, 0x4455, 0x6677, {0x88, 0x99, 0xAA, 0xBB, 0xCC, 0xDD, 0xEE, 0xFF}};
  EXPECT_EQ(adapter.setupClass, guid);
  EXPECT_EQ(adapter.interfaces.at(0).interfaceClass, guid);
  EXPECT_FALSE(adapter.present);
  EXPECT_EQ(adapter.driver.version, "v");
  const CsmiControllerDescription& csmi = *adapter.csmi;
  EXPECT_EQ(csmi.flags, 10U);
  EXPECT_EQ(csmi.status, CsmiStatus::PoweredOff);
  EXPECT_EQ(csmi.revision, (std::array<std::uint16_t, 4>{1, 2, 3, 4}));
  EXPECT_EQ(csmi.maxDrivesPerSet, 0U);
  const auto& sas = std::get<SasDriveDescription>(csmi.drives.at(0));
  EXPECT_EQ(sas.sasAddress, 0x42U);
  EXPECT_EQ(sas.physicalSectorSize, 8192U);
  EXPECT_TRUE(sas.silent);
  EXPECT_EQ(std::get<NvmeDriveDescription>(csmi.drives.at(1)).temperatureCelsius, 78);
  EXPECT_EQ(csmi.phys.at(0).protocol, static_cast<SasProtocol>(3));
  EXPECT_EQ(csmi.phys.at(0).port, 6);
  EXPECT_EQ(csmi.raidSets.at(0).type, static_cast<CsmiRaidType>(12));
  EXPECT_EQ(csmi.raidSets.at(0).capacityMiB, 0xFFFFFFFFU);
  EXPECT_EQ(csmi.raidSets.at(0).members.at(0).status, CsmiDriveStatus::Degraded);
  EXPECT_EQ(machine.Registry().Find("A", "B"), "c");
  const FaultEffects effects = machine.Faults().OnCall({"DeviceIoControl"});
  EXPECT_EQ(effects.truncateTo, 3U);
  EXPECT_EQ(effects.patches.at(0).bytes, (std::vector<std::uint8_t>{0x0A, 0xFF}));
}

// The keys that the schema offers for a part of the document; "" is the document itself.
std::set<std::string> SchemaKeys(const QJsonObject& schema, const char* part) {
  const QJsonObject object = *part == '\0' ? schema : schema["$defs"].toObject()[part].toObject();
  std::set<std::string> keys;
  for (const QString& key : object["properties"].toObject().keys()) keys.insert(key.toStdString());
  return keys;
}

// The keys between quotation marks, but for the last: that is the one that was found.
std::set<std::string> KeysOf(const std::string& error) {
  std::set<std::string> keys;
  std::size_t end = 0;
  for (std::size_t start = error.find('"'); start != std::string::npos; start = error.find('"', end + 1)) {
    end = error.find('"', start + 1);
    keys.insert(error.substr(start + 1, end - start - 1));
  }
  EXPECT_EQ(keys.erase("?"), 1U) << error;
  return keys;
}

// Editors check a document by the schema, the machine by its reader: both must know the same keys.
TEST_F(MachineDescriptions, HaveTheKeysOfTheirSchema) {
  QFile file(ORVIK_MACHINES_DIR "/machine.schema.json");
  ASSERT_TRUE(file.open(QIODevice::ReadOnly));
  const QJsonObject schema = QJsonDocument::fromJson(file.readAll()).object();
  const std::string sata = R"({"kind": "SATA", "model": "m", "serial": "s", "sectors": 1, "?": 0})";
  const std::string sas = R"({"kind": "SAS", "vendor": "v", "product": "p", "serial": "s", "sectors": 1, "?": 0})";
  const std::string nvme = R"({"kind": "NVMe", "model": "m", "serial": "s", "sectors": 1, "?": 0})";
  const std::pair<const char*, std::string> rows[] = {
      {"", Document(R"("?": 0)")},
      {"adapter", Adapter(R"("?": 0)")},
      {"csmiController", Csmi(R"("?": 0)")},
      {"sataDrive", Csmi(R"("drives": [)" + sata + "]")},
      {"sasDrive", Csmi(R"("drives": [)" + sas + "]")},
      {"nvmeDrive", Csmi(R"("drives": [)" + nvme + "]")},
      {"phy", Csmi(R"("phys": [{"?": 0}])")},
      {"raidSet", Csmi(R"("raidSets": [{"type": 0, "capacityMiB": 0, "members": [], "?": 0}])")},
      {"registryValue", Document(R"("registry": [{"key": "", "name": "", "text": "", "?": 0}])")},
      {"fault", Document(R"("faults": [{"operation": "DeviceIoControl", "?": 0}])")},
  };
  for (const auto& [part, text] : rows) EXPECT_EQ(SchemaKeys(schema, part), KeysOf(Error(text))) << part;
}

}  // namespace
}  // namespace orvik::simulation
