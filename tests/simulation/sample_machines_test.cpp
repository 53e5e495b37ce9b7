#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <map>
#include <string>

#include "simulation/json/load_machine.h"
#include "simulation/text/fold_case.h"

namespace orvik::simulation {
namespace {

std::vector<std::string> SampleMachines() {
  std::vector<std::string> names;
  for (const auto& entry : std::filesystem::directory_iterator(ORVIK_MACHINES_DIR)) {
    const std::string name = entry.path().filename().string();
    if (name.ends_with(".json") && !name.ends_with(".schema.json")) names.push_back(name);
  }
  return names;
}

class SampleMachine : public testing::TestWithParam<std::string> {};

std::uint64_t Bytes(const DriveDescription& drive) {
  return std::visit([](const auto& kind) { return kind.sectors * kind.sectorSize; }, drive);
}

// How many of n drives hold data, by RAID type.
std::uint64_t DataDrives(CsmiRaidType type, std::uint64_t drives) {
  const std::map<CsmiRaidType, std::uint64_t> counts = {
      {CsmiRaidType::None, drives},      {CsmiRaidType::Raid0, drives},      {CsmiRaidType::Raid1, 1},
      {CsmiRaidType::Raid5, drives - 1}, {CsmiRaidType::Raid10, drives / 2}, {CsmiRaidType::Raid6, drives - 2}};
  return counts.at(type);
}

// The capacity of a set must be what its members can hold, less a little for the controller's own records.
void ExpectFittingCapacity(const CsmiControllerDescription& controller, const CsmiRaidSetDescription& set) {
  std::uint64_t smallest = UINT64_MAX;
  for (const auto& member : set.members) smallest = std::min(smallest, Bytes(controller.drives.at(*member.drive)));
  const std::uint64_t room = smallest * DataDrives(set.type, set.members.size());
  const std::uint64_t capacity = std::uint64_t{set.capacityMiB} << 20;
  EXPECT_LE(capacity, room);
  EXPECT_GE(capacity, room / 1000 * 999);
}

TEST_P(SampleMachine, IsWhatItLooksLike) {
  const auto loaded = LoadMachine(ORVIK_MACHINES_DIR "/" + GetParam());
  ASSERT_TRUE(std::holds_alternative<std::shared_ptr<Machine>>(loaded)) << std::get<std::string>(loaded);
  std::map<std::string, int> paths;
  for (const auto& adapter : std::get<std::shared_ptr<Machine>>(loaded)->Adapters()) {
    const AdapterDescription& description = adapter->Description();
    ASSERT_EQ(description.interfaces.size(), 1U);
    const std::string& path = description.interfaces[0].path;
    EXPECT_EQ(++paths[path], 1) << path;
    EXPECT_EQ(path.substr(0, 12), R"(\\?\pci#ven_)");
    EXPECT_EQ(FoldCase(description.instanceId.substr(8, 13)), path.substr(12, 13));
    if (description.csmi) {
      for (const auto& set : description.csmi->raidSets) ExpectFittingCapacity(*description.csmi, set);
    }
  }
}

std::string CaseName(const testing::TestParamInfo<std::string>& sample) {
  std::string name = sample.param.substr(0, sample.param.find('.'));
  std::ranges::replace(name, '-', '_');
  return name;
}

INSTANTIATE_TEST_SUITE_P(All, SampleMachine, testing::ValuesIn(SampleMachines()), CaseName);

}  // namespace
}  // namespace orvik::simulation
