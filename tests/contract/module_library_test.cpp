// The built library, loaded as a host loads it, on simulated machines.

#include <QLibrary>

#include <gtest/gtest.h>

#include <functional>
#include <future>

#include "simulation/machine/current_machine.h"
#include "tests/contract/module_slots.h"

namespace {

using namespace orvik::simulation;

class Listener final : public contract::Listener {
 public:
  void Found(const contract::Description& description) override { found.push_back(description); }
  void OwnBusiness() override { ADD_FAILURE() << "the module must not call this slot"; }
  void Finished() override { ++finished; }
  void Presence(bool answer) override { present.push_back(answer); }

  std::vector<contract::Description> found;
  int finished = 0;
  std::vector<bool> present;
};

class Reporter final : public contract::Reporter {
 public:
  void Progress(std::uint8_t percent) override { progress.push_back(percent); }
  void Add(const contract::Message& message) override { messages.push_back(message); }
  void Ask(std::unique_ptr<contract::Question>&) override { ADD_FAILURE() << "nothing to ask"; }

  std::vector<int> progress;
  std::vector<contract::Message> messages;
};

class FunctionTask final : public contract::Task {
 public:
  explicit FunctionTask(std::function<void()> function) : function_(std::move(function)) {}
  void Execute() override { function_(); }

 private:
  std::function<void()> function_;
};

AdapterDescription MirrorAdapter() {
  auto adapter = PciRaidAdapter("2822", 23);
  adapter.csmi.emplace();
  for (const char* const serial : {"A", "B"}) {
    adapter.csmi->drives.emplace_back(
        SataDriveDescription{.model = "WDC WD10ORVK", .serial = serial, .firmware = "1", .sectors = 1953525168});
  }
  adapter.csmi->drives.emplace_back(
      SasDriveDescription{.vendor = "ORVIK", .product = "OVS300", .revision = "1", .sectors = 1000});
  adapter.csmi->raidSets.push_back(
      {.type = CsmiRaidType::Raid1, .capacityMiB = 953867, .members = {{.drive = 0}, {.drive = 1}}});
  return adapter;
}

std::shared_ptr<Machine> InstallMirror() {
  auto microsoft = PciRaidAdapter("A000", 24);
  microsoft.driver.provider = "Microsoft";
  auto machine = std::make_shared<Machine>(MachineDescription{.adapters = {microsoft, MirrorAdapter()}});
  InstallMachine(machine);
  return machine;
}

class ModuleLibraryTest : public testing::Test {
 protected:
  void SetUp() override {
    library_.setFileName(QStringLiteral(ORVIK_MODULE));
    ASSERT_TRUE(library_.load()) << library_.errorString().toStdString();
    create_ = reinterpret_cast<contract::Module* (*)()>(library_.resolve("CreateModuleInstance"));
    destroy_ = reinterpret_cast<void (*)(contract::Module*)>(library_.resolve("DestroyModuleInstance"));
    ASSERT_NE(create_, nullptr);
    ASSERT_NE(destroy_, nullptr);
  }

  QLibrary library_;
  contract::Module* (*create_)() = nullptr;
  void (*destroy_)(contract::Module*) = nullptr;
};

TEST_F(ModuleLibraryTest, IdentifiesItself) {
  InstallMachine(std::make_shared<Machine>());
  destroy_(nullptr);
  contract::Module* const module = create_();
  EXPECT_EQ(module->TestCount(), 6);
  EXPECT_EQ(module->ShortName(), "RD");
  EXPECT_EQ(module->Name(), "RAID");
  const contract::Version version = module->GetVersion();
  EXPECT_EQ(version.major, 5);
  EXPECT_EQ(version.minor, 2);
  EXPECT_EQ(version.patch, 0);
  EXPECT_EQ(version.suffix, "");
  module->ClearStringSet();
  EXPECT_EQ(module->TestIds(), (std::vector<std::int32_t>{5, 2, 6, 4, 3, 1}));
  EXPECT_TRUE(module->AuxiliaryList().empty());
  EXPECT_EQ(module->AuxiliaryText(), "");
  EXPECT_EQ(module->GetScanner(), module->GetScanner());
  EXPECT_EQ(module->GetDispatcher(), module->GetDispatcher());
  const auto scanner = module->GetScanner();
  destroy_(module);
  EXPECT_TRUE(scanner->Devices().empty());
}

TEST_F(ModuleLibraryTest, DescribesItsTests) {
  InstallMachine(std::make_shared<Machine>());
  contract::Module* const module = create_();
  struct Row {
    std::int32_t id;
    const char* name;
    const char* group;
    bool extended;
  };
  for (const Row& row :
       {Row{1, "BATTERY_STATUS_TEST", "QUICK_RAID", false}, Row{2, "ENCLOSURES_STATUS_TEST", "QUICK_RAID", false},
        Row{3, "LOGICAL_DRIVES_STATUS_TEST", "QUICK_RAID_TESTS_TOOLTIP", false},
        Row{4, "CHECK_CONSISTENCY_TEST", "EXTENDED_RAID_TESTS_TOOLTIP", true},
        Row{5, "RAID_STATUS_TEST", "QUICK_RAID", false},
        Row{6, "RAID_CONTROLLER_STATUS_TEST", "QUICK_RAID", false}}) {
    const auto test = module->CreateTest(row.id);
    ASSERT_NE(test, nullptr);
    EXPECT_NE(test, module->CreateTest(row.id));
    EXPECT_EQ(test->descriptor.id, static_cast<std::uint32_t>(row.id));
    EXPECT_EQ(test->descriptor.name, row.name);
    EXPECT_EQ(test->descriptor.tooltip, std::string(row.name) + "_TOOLTIP");
    EXPECT_EQ(test->descriptor.group, row.group);
    EXPECT_TRUE(test->descriptor.parameters.empty());
    EXPECT_EQ(test->descriptor.groupKind, row.extended ? 2U : 1U);
    EXPECT_EQ(test->descriptor.flag, row.extended);
    EXPECT_EQ(test->IsExclusive(), row.extended);
    EXPECT_EQ(test->Duration(), row.extended ? 6000U : 1U);
  }
  for (const std::int32_t id : {0, 7, -1, INT32_MAX}) EXPECT_EQ(module->CreateTest(id), nullptr);
  destroy_(module);
}

TEST_F(ModuleLibraryTest, ScansAndFindsThroughItsSlots) {
  const auto machine = InstallMirror();
  contract::Module* const module = create_();
  const auto scanner = module->GetScanner();
  const auto listener = std::make_shared<Listener>();
  scanner->CheckPresence(listener);
  EXPECT_EQ(listener->present, std::vector<bool>{true});
  scanner->Scan(listener);
  EXPECT_EQ(listener->finished, 1);
  EXPECT_EQ(listener.use_count(), 1);
  ASSERT_EQ(listener->found.size(), 1U);
  EXPECT_EQ(listener->found[0].id, "2822");
  EXPECT_TRUE(listener->found[0].testable);
  EXPECT_EQ(listener->found[0].resources.size(), 4U);

  const auto device = scanner->Find("2822").lock();
  ASSERT_NE(device, nullptr);
  EXPECT_EQ(scanner->Devices().at(0).lock(), device);
  EXPECT_EQ(device->Id(), "2822");
  EXPECT_EQ(device->Name(), listener->found[0].name);
  EXPECT_TRUE(device->HasUdi());
  EXPECT_EQ(device->Udi(), listener->found[0].udi);
  EXPECT_TRUE(device->ExtraProperties().empty());
  EXPECT_TRUE(device->Tags().empty());
  EXPECT_TRUE(device->IsTestable());
  device->Refresh();
  contract::ControllerInfo info;
  EXPECT_EQ(device->ControllerInfo(info), 0U);
  EXPECT_EQ(info.logicalDrives, 1);
  EXPECT_EQ(info.udi, device->Udi());
  std::vector<contract::LogicalDrive> logical;
  EXPECT_EQ(device->LogicalDrives(logical), 0U);
  ASSERT_EQ(logical.size(), 1U);
  EXPECT_EQ(logical[0].raidLevel, "RAID 1");
  EXPECT_EQ(logical[0].size, 953867ULL << 20);
  EXPECT_EQ(logical[0].state, 0U);
  std::vector<contract::PhysicalDrive> physical;
  EXPECT_EQ(device->PhysicalDrives(physical), 0U);
  ASSERT_EQ(physical.size(), 3U);
  EXPECT_EQ(physical[0].protocol, 0U);
  EXPECT_EQ(physical[0].size, 1953525168ULL * 512);
  EXPECT_EQ(physical[2].protocol, 1U);
  std::vector<contract::StorageDevice> members;
  EXPECT_EQ(device->StorageDevices(members), 0U);
  EXPECT_EQ(members.size(), 3U);

  const auto test = module->CreateTest(5);
  EXPECT_TRUE(test->IsSupported(*device, nullptr));
  EXPECT_FALSE(module->CreateTest(3)->IsSupported(*device, nullptr));
  destroy_(module);
}

TEST_F(ModuleLibraryTest, RunsATestOnAWorker) {
  const auto machine = InstallMirror();
  contract::Module* const module = create_();
  module->GetScanner()->Scan(std::make_shared<Listener>());
  const auto dispatcher = module->GetDispatcher();
  const auto test = module->CreateTest(5);
  const std::weak_ptr<contract::Device> device = module->GetScanner()->Find("2822");
  const auto request = std::make_unique<contract::Request>(contract::Request{device, 1, test.get()});
  ASSERT_TRUE(dispatcher->CanStart(request));
  dispatcher->Started(request);
  EXPECT_FALSE(dispatcher->CanStart(request));

  std::uint8_t abort = 0;
  Reporter reporter;
  contract::Events events{};
  events.flags = 4;
  contract::Arguments arguments{device, &abort, &reporter, &events};
  std::uint8_t result = 0;
  const auto done = std::make_shared<std::promise<void>>();
  dispatcher->Dispatch(std::make_unique<FunctionTask>([&, done] {
    result = test->Run(arguments);
    done->set_value();
  }));
  done->get_future().wait();
  dispatcher->Finished(request);
  EXPECT_TRUE(dispatcher->CanStart(request));
  EXPECT_EQ(result, 1);
  ASSERT_EQ(reporter.messages.size(), 1U);
  EXPECT_EQ(reporter.messages[0].type, 0);
  EXPECT_EQ(reporter.messages[0].text, "LOGICAL_DRIVE_OPTIMAL: 0");
  EXPECT_EQ(reporter.progress, (std::vector<int>{100, 100}));
  destroy_(module);
}

TEST_F(ModuleLibraryTest, KeepsADeviceThatTheHostHolds) {
  const auto machine = InstallMirror();
  contract::Module* const module = create_();
  module->GetScanner()->Scan(std::make_shared<Listener>());
  auto device = module->GetScanner()->Find("2822").lock();
  destroy_(module);
  EXPECT_EQ(machine->Ledger().Outstanding(Resource::FileHandle), 1U);
  std::vector<contract::LogicalDrive> drives;
  EXPECT_EQ(device->LogicalDrives(drives), 0U);
  device.reset();
  EXPECT_EQ(machine->Ledger().OutstandingTotal(), 0U);
}

}  // namespace
