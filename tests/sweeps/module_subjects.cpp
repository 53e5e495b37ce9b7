// What a host can do with the module and its devices.

#include <sstream>
#include <utility>

#include "module/raid/entry/module.h"
#include "tests/module/raid/storelib/storelib_machines.h"
#include "tests/sweeps/subjects.h"
#include "utils/dialogs/gui_dialog_input_interaction.h"

namespace orvik::sweeps {

namespace {

using module::raid::DeviceScanner;
using testing::ScanRecorder;
using namespace simulation;

constexpr char kCsmiDevice[] = "2822";
constexpr char kLsiDevice[] = "3";

/// A controller of each family, where everything passes, and an adapter that is of neither.
MachineDescription BothFamilies() {
  auto other = PciRaidAdapter("A000", 24);
  auto csmi = testing::Mirror();
  csmi.csmi->drives.emplace_back(
      SasDriveDescription{.vendor = "ORVIK", .product = "OVS300", .revision = "1", .sectors = 1000});
  csmi.csmi->drives.emplace_back(NvmeDriveDescription{.model = "ORVIK SSD", .serial = "N1", .sectors = 1000});
  csmi.csmi->raidSets.front().members.push_back({.drive = 3});
  auto lsi = testing::LsiController({testing::Volume(0), testing::Volume(1, 0)});
  for (auto& drive : lsi.logicalDrives) drive.check.seconds = 1;
  lsi.enclosures = {{.enclosureId = 1}};
  // The half minute between two progress readings passes in microseconds.
  return {.speed = 1'000'000, .adapters = {other, csmi}, .storelib = {.controllers = {lsi}}};
}

class CreationScene final : public Scene {
 public:
  CreationScene() : Scene(testing::Install(BothFamilies())) {}
  Answer Run() override {
    const module::raid::Module created;
    const bool whole = created.GetDeviceScanner() != nullptr && created.GetDispatcher() != nullptr;
    return {whole, std::to_string(machine->Ledger().Outstanding(Resource::Library)) + " library"};
  }
};

class PresenceScene final : public Scene {
 public:
  explicit PresenceScene(const MachineDescription& description) : Scene(testing::Install(description)) {}
  Answer Run() override {
    const auto listener = std::make_shared<ScanRecorder>();
    scanner_.CheckPresence(listener);
    return {listener->present.size() == 1, listener->present == std::vector{true} ? "present" : "absent"};
  }

 private:
  DeviceScanner scanner_;
};

void Print(std::ostream& text, const core::KeyValueList& list) {
  for (const auto& [key, value] : list) text << key << '=' << value << '\n';
}

class ScanScene final : public Scene {
 public:
  ScanScene() : Scene(testing::Install(BothFamilies())) {}
  Answer Run() override {
    const auto listener = std::make_shared<ScanRecorder>();
    scanner_.Scan(listener);
    std::ostringstream text;
    for (const auto& device : listener->found) {
      text << device.id << ' ' << device.name << ' ' << device.udi << '\n';
      Print(text, device.properties);
      for (const auto& resource : device.resources) Print(text, resource);
    }
    return {listener->finished == 1 && listener->found.size() == scanner_.GetDevices().size(), text.str()};
  }

 private:
  DeviceScanner scanner_;
};

/// A scene on a device that a scan has found.
class DeviceScene : public Scene {
 public:
  explicit DeviceScene(const char* id, const MachineDescription& description = BothFamilies())
      : Scene(testing::Install(description)) {
    scanner_.Scan(std::make_shared<ScanRecorder>());
    device = scanner_.FindDevice(id).lock();
  }

 protected:
  std::shared_ptr<core::Device> device;

 private:
  DeviceScanner scanner_;
};

class MembersScene final : public DeviceScene {
 public:
  using DeviceScene::DeviceScene;
  Answer Run() override {
    std::vector<module::raid::StorageDeviceEntry> members;
    const auto status = dynamic_cast<module::raid::RaidDevice&>(*device).GetStorageDevices(members);
    std::ostringstream text;
    text << status;
    bool whole = true;
    for (const auto& member : members) {
      text << ' ' << member.id << ' ' << static_cast<std::uint32_t>(member.protocol)
           << (member.ataProtocolObject != nullptr ? " ATA" : "");
      whole = whole && member.protocolObject != nullptr;
    }
    return {whole, text.str()};
  }
};

/// Runs a test. The first search for running checks finds one, and the user agrees to cancel it.
class TestScene final : public DeviceScene, private core::RunReporter {
 public:
  TestScene(core::TestId id, const char* deviceId) : DeviceScene(deviceId), test_(module_.CreateTest(id)) {}

  Answer Run() override {
    machine->Faults().Add({.operation = "STORELIB_CHECK_PROGRESS",
                           .call = 1,
                           .effects = {.patches = {{.offset = 0, .bytes = {1, 0, 0, 0, 0, 0x40}}}}});
    report_.clear();
    core::RunArguments arguments{.device = device, .abortFlag = &abort_, .reporter = this, .systemEvents = nullptr};
    const auto result = static_cast<int>(test_->Run(arguments));
    return {result >= 1 && result <= 5 && progress_ <= 100, report_ + std::to_string(result)};
  }

 private:
  void SetProgress(std::uint8_t percent) override { progress_ = percent; }
  void AddMessage(const core::TestMessage& message) override { report_ += message.text + '\n'; }
  void Ask(std::unique_ptr<core::InputInteraction>& question) override {
    dynamic_cast<utils::GuiDialogInputInteraction&>(*question).request->answer = 1;
    report_ += "asked\n";
  }

  const module::raid::Module module_;
  const std::unique_ptr<core::Test> test_;
  const core::AbortFlag abort_ = 0;
  std::string report_;
  int progress_ = 0;
};

template <typename SceneType, typename... Arguments>
Subject Make(std::string name, Arguments... arguments) {
  return {std::move(name), [arguments...] { return std::make_unique<SceneType>(arguments...); }};
}

}  // namespace

std::vector<Subject> ModuleSubjects() {
  auto storelibOnly = BothFamilies();
  storelibOnly.adapters.pop_back();
  // Each member that is not an NVMe drive costs a search over all paths.
  auto nvmeSet = BothFamilies();
  std::erase_if(nvmeSet.adapters.back().csmi->raidSets.front().members,
                [](const auto& member) { return member.drive != 3; });
  std::vector<Subject> subjects = {
      Make<CreationScene>("creation"),
      Make<PresenceScene>("presence of the first family", BothFamilies()),
      Make<PresenceScene>("presence of the second family", storelibOnly),
      Make<ScanScene>("scan"),
      Make<MembersScene>("members of the first family", kCsmiDevice, nvmeSet),
      Make<MembersScene>("members of the second family", kLsiDevice),
  };
  for (const core::TestId id : {1, 2, 3, 4, 5, 6}) {
    subjects.push_back(Make<TestScene>("test " + std::to_string(id), id, id < 5 ? kLsiDevice : kCsmiDevice));
  }
  return subjects;
}

}  // namespace orvik::sweeps
