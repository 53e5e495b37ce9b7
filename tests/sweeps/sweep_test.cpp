// Fails every external call in every way it can, and every allocation. Expects a defined answer, no leak, and a
// healthy answer afterwards.

#include <gtest/gtest.h>

#include "tests/sweeps/subjects.h"

namespace orvik::sweeps {
namespace {

void Sweep(const std::vector<Subject>& subjects, std::size_t fewestRuns) {
  std::size_t runs = 0;
  for (const Subject& subject : subjects) {
    SCOPED_TRACE(subject.name);
    runs += SweepFaults(subject.make);
    if (testing::Test::HasFailure()) return;
  }
  // Guards against a sweep that injects nothing.
  EXPECT_GE(runs, fewestRuns);
  testing::Test::RecordProperty("runs", static_cast<int>(runs));
}

class ModuleSweepTest : public testing::TestWithParam<std::size_t> {};

TEST_P(ModuleSweepTest, SurvivesWhateverFails) {
  Sweep({ModuleSubjects().at(GetParam())}, 10);
}

INSTANTIATE_TEST_SUITE_P(EveryEntry, ModuleSweepTest, testing::Range<std::size_t>(0, ModuleSubjects().size()));

class DriveSweepTest : public testing::TestWithParam<std::size_t> {};

TEST_P(DriveSweepTest, OperationsSurviveWhateverFails) {
  SCOPED_TRACE(DriveRoads().at(GetParam()));
  Sweep(DriveSubjects(GetParam()), 100);
}

INSTANTIATE_TEST_SUITE_P(EveryRoad, DriveSweepTest, testing::Range<std::size_t>(0, DriveRoads().size()));

}  // namespace
}  // namespace orvik::sweeps
