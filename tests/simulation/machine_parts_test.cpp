#include <gtest/gtest.h>

#include "simulation/machine/current_machine.h"

namespace orvik::simulation {
namespace {

TEST(Machine, RegistersTheDriversOfItsAdapters) {
  AdapterDescription complete = PciRaidAdapter("2822", 0);
  AdapterDescription bare = PciRaidAdapter("2822", 1);
  bare.driver = {.key = "class\\0002"};
  AdapterDescription none = PciRaidAdapter("2822", 2);
  none.driver.key.reset();
  Machine machine({.adapters = {complete, bare, none}, .registry = {{"class\\0002", "ProviderName", "elsewhere"}}});
  const std::string root = R"(SYSTEM\CurrentControlSet\)";
  EXPECT_EQ(machine.Registry().Find(root + "Enum\\" + complete.instanceId, "Driver"), complete.driver.key);
  const std::string key = root + "Control\\Class\\" + *complete.driver.key;
  EXPECT_EQ(machine.Registry().Find(key, "ProviderName"), "Orvik Storage");
  EXPECT_EQ(machine.Registry().Find(key, "DriverVersion"), "17.9.1.1009");
  EXPECT_EQ(machine.Registry().Find(root + "Enum\\" + bare.instanceId, "Driver"), "class\\0002");
  EXPECT_EQ(machine.Registry().Find(root + "Control\\Class\\class\\0002", "ProviderName"), std::nullopt);
  EXPECT_EQ(machine.Registry().Find(root + "Enum\\" + none.instanceId, "Driver"), std::nullopt);
}

TEST(Ledger, CountsWhatIsOutAndWhatWasNeverOut) {
  Ledger ledger;
  ledger.Take(Resource::FileHandle);
  ledger.Take(Resource::Buffer);
  ledger.Take(Resource::Buffer);
  ledger.Return(Resource::Buffer);
  EXPECT_EQ(ledger.Outstanding(Resource::Buffer), 1U);
  EXPECT_EQ(ledger.OutstandingTotal(), 2U);
  ledger.Return(Resource::Library);
  ledger.InvalidRelease(Resource::FileHandle);
  EXPECT_EQ(ledger.InvalidReleases(), 2U);
  EXPECT_EQ(ledger.OutstandingTotal(), 2U);
}

TEST(Clock, RunsAtItsSpeedAndNeverBack) {
  Clock fast(1000000);
  const std::uint64_t start = fast.Milliseconds();
  std::uint64_t now = start;
  for (int i = 0; i < 1000000 && now == start; ++i) now = fast.Milliseconds();
  EXPECT_GT(now, start);
  Clock slow(0.001);
  slow.Advance(3600000);
  EXPECT_GE(slow.Milliseconds(), 3600000U);
  EXPECT_LT(slow.Milliseconds(), 3660000U);
}

TEST(CurrentMachine, IsReplacedAsAWhole) {
  const auto first = std::make_shared<Machine>(MachineDescription{.name = "first"});
  InstallMachine(first);
  EXPECT_EQ(CurrentMachine(), first);
  ASSERT_NE(OrvikSimulationOpen("/nowhere/machine.json"), nullptr);
  EXPECT_EQ(CurrentMachine(), first);
  ASSERT_EQ(OrvikSimulationOpen(ORVIK_MACHINES_DIR "/mirror.json"), nullptr);
  EXPECT_EQ(CurrentMachine()->Adapters().size(), 1U);
}

}  // namespace
}  // namespace orvik::simulation
