#include "host/inventory/inventory.h"

#include <gtest/gtest.h>

#include "host/run/run.h"
#include "tests/host/fake_module.h"

namespace orvik::host {
namespace {

using core::TestResult;

class SelectionTest : public testing::Test {
 protected:
  SelectionTest() {
    // The third device's id equals the second one's index; two devices share an id.
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
};

TEST_F(SelectionTest, DeviceIdTakesPrecedenceOverIndex) {
  const struct {
    std::vector<std::string> wanted;
    std::vector<int> chosen;
  } cases[] = {
      {{}, {0, 1, 2, 3}}, {{"A77F"}, {0, 3}}, {{"1"}, {2}},
      {{"0"}, {0}},       {{"3"}, {3}},       {{"3", "2822", "A77F"}, {0, 1, 3}},
      {{"2"}, {2}},
  };
  for (const auto& each : cases) {
    const auto devices = SelectDevices(devices_, each.wanted);
    ASSERT_TRUE(devices.Ok()) << devices.Error().text.toStdString();
    std::vector<int> indexes;
    for (const ListedDevice* const device : devices.Value()) indexes.push_back(device->index);
    EXPECT_EQ(indexes, each.chosen);
  }
  for (const char* const unknown : {"a77f", "4", "-1", "01", "", " 0"}) {
    const auto devices = SelectDevices(devices_, {"0", unknown});
    EXPECT_TRUE(devices.Error().text.contains("2822")) << unknown << ": must list the devices";
  }
}

TEST_F(SelectionTest, TestIsSelectedByIdKeyOrNameInAnyCase) {
  const struct {
    std::vector<std::string> wanted;
    std::vector<int> chosen;
  } cases[] = {
      {{}, {5, 2}},          {{"2", "5"}, {5, 2}},        {{"fake_test_2"}, {5}}, {{"GEHÄUSE"}, {2}},
      {{"enclosures"}, {2}}, {{"zustand", "State"}, {5}}, {{" State "}, {5}},
  };
  for (const auto& each : cases) {
    const auto tests = SelectTests(tests_, each.wanted);
    ASSERT_TRUE(tests.Ok()) << tests.Error().text.toStdString();
    std::vector<int> ids;
    for (const ListedTest* const test : tests.Value()) ids.push_back(test->id);
    EXPECT_EQ(ids, each.chosen);
  }
  for (const char* const unknown : {"3", "Enclosure", ""}) {
    EXPECT_TRUE(SelectTests(tests_, {unknown}).Error().text.contains("Zustand"))
        << unknown << ": must list the tests";
  }
}

TEST(ExitCode, FailureOutranksNoVerdictAndNoVerdictOutranksWarning) {
  const struct {
    std::vector<RunOutcome> outcomes;
    ExitCode code;
  } cases[] = {
      {{}, ExitCode::AllRight},
      {{TestResult::Passed, TestResult::NotApplicable}, ExitCode::AllRight},
      {{TestResult::Warning, TestResult::Passed}, ExitCode::Warning},
      {{TestResult::Failed, TestResult::Aborted, TestResult::Warning}, ExitCode::Failed},
      {{TestResult::Warning, TestResult::Aborted}, ExitCode::NoVerdict},
      {{TestResult::Invalid}, ExitCode::NoVerdict},
      {{static_cast<TestResult>(77)}, ExitCode::NoVerdict},
      {{Error{"interrupted"}, TestResult::Passed}, ExitCode::NoVerdict},
  };
  for (const auto& each : cases) {
    ExitCode code = ExitCode::AllRight;
    for (const RunOutcome& outcome : each.outcomes) code = Worse(code, ExitCodeOf(outcome));
    EXPECT_EQ(code, each.code) << "case " << &each - cases;
  }
}

}  // namespace
}  // namespace orvik::host
