#include "host/run/run_plan.h"

#include <gtest/gtest.h>

#include "host/run/exit_code.h"
#include "tests/host/fake_module.h"

namespace orvik::host {
namespace {

using core::TestResult;

class RunPlanTest : public testing::Test {
 protected:
  RunPlanTest() {
    // The third device bears the index of the second as its id; two share an id.
    const char* const ids[] = {"A77F", "2822", "1", "A77F"};
    for (const char* const id : ids) {
      ListedDevice device;
      device.index = static_cast<int>(devices_.size());
      device.description.id = id;
      devices_.push_back(std::move(device));
    }
    tests_.push_back({5, tests::MakeFakeTest(tests::kWarn), "Zustand", "State"});
    tests_.push_back({2, tests::MakeFakeTest(tests::kFail), "Gehäuse", "Enclosures"});
  }

  std::vector<ListedDevice> devices_;
  std::vector<ListedTest> tests_;
  QString error_;
};

TEST_F(RunPlanTest, DeviceIsChosenByIdBeforeIndex) {
  const struct {
    std::vector<std::string> wanted;
    std::vector<int> chosen;
  } cases[] = {
      {{}, {0, 1, 2, 3}}, {{"A77F"}, {0, 3}}, {{"1"}, {2}},
      {{"0"}, {0}},       {{"3"}, {3}},       {{"3", "2822", "A77F"}, {0, 1, 3}},
      {{"2"}, {2}},
  };
  for (const auto& each : cases) {
    const auto devices = SelectDevices(devices_, each.wanted, error_);
    ASSERT_TRUE(devices) << error_.toStdString();
    std::vector<int> indexes;
    for (const ListedDevice* const device : *devices) indexes.push_back(device->index);
    EXPECT_EQ(indexes, each.chosen);
  }
  for (const char* const unknown : {"a77f", "4", "-1", "01", "", " 0"}) {
    EXPECT_FALSE(SelectDevices(devices_, {"0", unknown}, error_)) << unknown;
    EXPECT_TRUE(error_.contains("2822")) << "what there is must be listed";
  }
}

TEST_F(RunPlanTest, TestIsChosenByIdKeyOrNameInAnyCase) {
  const struct {
    std::vector<std::string> wanted;
    std::vector<int> chosen;
  } cases[] = {
      {{}, {5, 2}},          {{"2", "5"}, {5, 2}},        {{"fake_test_2"}, {5}}, {{"GEHÄUSE"}, {2}},
      {{"enclosures"}, {2}}, {{"zustand", "State"}, {5}}, {{" State "}, {5}},
  };
  for (const auto& each : cases) {
    const auto tests = SelectTests(tests_, each.wanted, error_);
    ASSERT_TRUE(tests) << error_.toStdString();
    std::vector<int> ids;
    for (const ListedTest* const test : *tests) ids.push_back(test->id);
    EXPECT_EQ(ids, each.chosen);
  }
  for (const char* const unknown : {"3", "Enclosure", ""}) {
    EXPECT_FALSE(SelectTests(tests_, {unknown}, error_)) << unknown;
    EXPECT_TRUE(error_.contains("Zustand")) << "what there is must be listed";
  }
}

TEST(ExitCode, FailureOutranksDoubtAndDoubtOutranksWarning) {
  const struct {
    std::vector<RunOutcome> outcomes;
    ExitCode code;
  } cases[] = {
      {{}, ExitCode::AllRight},
      {{{TestResult::Passed, {}}, {TestResult::NotApplicable, {}}}, ExitCode::AllRight},
      {{{TestResult::Warning, {}}, {TestResult::Passed, {}}}, ExitCode::Warning},
      {{{TestResult::Failed, {}}, {TestResult::Aborted, {}}, {TestResult::Warning, {}}}, ExitCode::Failed},
      {{{TestResult::Warning, {}}, {TestResult::Aborted, {}}}, ExitCode::CouldNotTell},
      {{{TestResult::Invalid, {}}}, ExitCode::CouldNotTell},
      {{{static_cast<TestResult>(77), {}}}, ExitCode::CouldNotTell},
      {{{std::nullopt, "broke off"}}, ExitCode::CouldNotTell},
      {{{TestResult::Passed, "reservation kept"}}, ExitCode::CouldNotTell},
  };
  for (const auto& each : cases) {
    ExitCode code = ExitCode::AllRight;
    for (const RunOutcome& outcome : each.outcomes) code = Worse(code, ExitCodeOf(outcome));
    EXPECT_EQ(code, each.code) << "case " << &each - cases;
  }
}

}  // namespace
}  // namespace orvik::host
