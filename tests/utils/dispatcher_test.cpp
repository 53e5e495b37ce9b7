#include <gtest/gtest.h>

#include <atomic>
#include <chrono>
#include <condition_variable>
#include <functional>
#include <future>
#include <mutex>
#include <stdexcept>
#include <thread>

#include "utils/dispatcher/general_diagnostic_dispatcher.h"

namespace orvik::utils {
namespace {

using core::DispatchRequest;

class NamedDevice final : public core::Device {
 public:
  explicit NamedDevice(std::string id) : id_(std::move(id)) {}
  std::string GetId() const override { return id_; }
  std::string GetName() const override { return {}; }
  bool HasUdi() const override { return false; }
  std::string GetUdi() const override { return {}; }
  core::KeyValueList GetExtraProperties() const override { return {}; }
  std::vector<std::string> GetTags() const override { return {}; }
  bool IsTestable() const override { return true; }
  void Refresh() override {}

 private:
  std::string id_;
};

class IdleTest final : public core::Test {
 public:
  explicit IdleTest(bool exclusive) : Test({}), exclusive_(exclusive) {}
  core::TestResult Run(core::RunArguments&) override { return core::TestResult::Passed; }
  bool IsExclusive() const override { return exclusive_; }
  std::uint32_t GetEstimatedDuration() const override { return 1; }
  bool IsSupported(const core::Device&, std::shared_ptr<void>) const override { return true; }

 private:
  bool exclusive_;
};

using FunctionTask = core::Task<std::function<void()>>;

class Meeting {
 public:
  explicit Meeting(int expected) : missing_(expected) {}

  void Join() {
    std::unique_lock lock(mutex_);
    if (--missing_ == 0) complete_.notify_all();
    complete_.wait(lock, [this] { return missing_ == 0; });
  }

 private:
  std::mutex mutex_;
  std::condition_variable complete_;
  int missing_;
};

class ReservationTest : public testing::Test {
 protected:
  std::unique_ptr<DispatchRequest> Request(const std::shared_ptr<NamedDevice>& device, std::int32_t mode,
                                           core::Test& test) {
    return std::make_unique<DispatchRequest>(device, mode, &test);
  }

  GeneralDiagnosticDispatcher dispatcher_;
  std::shared_ptr<NamedDevice> first_ = std::make_shared<NamedDevice>("2822");
  std::shared_ptr<NamedDevice> second_ = std::make_shared<NamedDevice>("282A");
  IdleTest shared_{false};
  IdleTest exclusive_{true};
};

TEST_F(ReservationTest, SharedRunsExcludeEachOtherOnOneDeviceOnly) {
  const auto onFirst = Request(first_, 1, shared_);
  ASSERT_TRUE(dispatcher_.CanStart(onFirst));
  dispatcher_.NotifyStarted(onFirst);
  EXPECT_FALSE(dispatcher_.CanStart(onFirst));
  EXPECT_FALSE(dispatcher_.CanStart(Request(first_, 0, shared_)));
  EXPECT_TRUE(dispatcher_.CanStart(Request(second_, 1, shared_)));
  dispatcher_.NotifyFinished(onFirst);
  EXPECT_TRUE(dispatcher_.CanStart(onFirst));
}

TEST_F(ReservationTest, OneExclusivePlaceWhateverTheDevice) {
  for (const std::int32_t mode : {0, 2}) {
    const auto onFirst = Request(first_, mode, shared_);
    dispatcher_.NotifyStarted(onFirst);
    EXPECT_FALSE(dispatcher_.CanStart(Request(second_, 0, shared_)));
    EXPECT_TRUE(dispatcher_.CanStart(Request(second_, 1, shared_)));
    EXPECT_FALSE(dispatcher_.CanStart(Request(first_, 1, shared_)));
    dispatcher_.NotifyFinished(onFirst);
    EXPECT_TRUE(dispatcher_.CanStart(Request(second_, 0, shared_)));
  }
}

TEST_F(ReservationTest, OneExclusiveTestWhateverTheDevice) {
  const auto onFirst = Request(first_, 1, exclusive_);
  dispatcher_.NotifyStarted(onFirst);
  EXPECT_FALSE(dispatcher_.CanStart(Request(second_, 1, exclusive_)));
  EXPECT_TRUE(dispatcher_.CanStart(Request(second_, 1, shared_)));
  dispatcher_.NotifyFinished(onFirst);
  EXPECT_TRUE(dispatcher_.CanStart(Request(second_, 1, exclusive_)));
}

TEST_F(ReservationTest, ReleasesADeviceThatHasGone) {
  for (const std::int32_t mode : {0, 1}) {
    const auto request = Request(first_, mode, exclusive_);
    dispatcher_.NotifyStarted(request);
    first_.reset();
    dispatcher_.NotifyFinished(request);
    first_ = std::make_shared<NamedDevice>("2822");
    EXPECT_TRUE(dispatcher_.CanStart(Request(first_, mode, exclusive_))) << mode;
  }
}

TEST_F(ReservationTest, ReleasesEachOfTwoRunsAfterTheirDeviceHasGone) {
  const auto sharedRun = Request(first_, 1, shared_);
  const auto exclusiveRun = Request(first_, 0, exclusive_);
  dispatcher_.NotifyStarted(sharedRun);
  dispatcher_.NotifyStarted(exclusiveRun);
  first_.reset();
  dispatcher_.NotifyFinished(sharedRun);
  EXPECT_FALSE(dispatcher_.CanStart(Request(second_, 1, exclusive_)));
  dispatcher_.NotifyFinished(exclusiveRun);
  EXPECT_TRUE(dispatcher_.CanStart(Request(second_, 0, exclusive_)));
  EXPECT_TRUE(dispatcher_.CanStart(Request(std::make_shared<NamedDevice>("2822"), 1, shared_)));
  // A finished run has nothing left to release: another run's place is not its own.
  dispatcher_.NotifyStarted(Request(second_, 0, exclusive_));
  dispatcher_.NotifyFinished(exclusiveRun);
  EXPECT_FALSE(dispatcher_.CanStart(Request(std::make_shared<NamedDevice>("43D6"), 0, shared_)));
}

TEST_F(ReservationTest, EmptyRequestsAreNoObstacle) {
  const std::unique_ptr<DispatchRequest> none;
  EXPECT_TRUE(dispatcher_.CanStart(none));
  dispatcher_.NotifyStarted(none);
  dispatcher_.NotifyFinished(none);
  EXPECT_TRUE(dispatcher_.CanStart(Request(nullptr, 0, exclusive_)));
}

TEST(DispatcherTest, TakesOneWorkerFewerThanHardwareThreads) {
  EXPECT_EQ(GeneralDiagnosticDispatcher::WorkerCount(0), 2U);
  EXPECT_EQ(GeneralDiagnosticDispatcher::WorkerCount(1), 1U);
  EXPECT_EQ(GeneralDiagnosticDispatcher::WorkerCount(8), 7U);
}

TEST(DispatcherTest, GoesOnAfterAnEmptyAndAThrowingTask) {
  std::promise<void> done;
  GeneralDiagnosticDispatcher dispatcher;
  dispatcher.Dispatch(nullptr);
  dispatcher.Dispatch(std::make_unique<FunctionTask>([] { throw std::runtime_error("a task's own failure"); }));
  dispatcher.Dispatch(std::make_unique<FunctionTask>([&done] { done.set_value(); }));
  done.get_future().wait();
}

TEST(ThreadPoolTest, RunsTasksInOrderAndHandsOutResults) {
  ThreadPool pool;
  pool.Start(1);
  std::vector<int> order;
  pool.Submit([&order] { order.push_back(1); });
  auto failure = pool.Submit([] { throw std::runtime_error("lost unless asked for"); });
  pool.Submit([&order] { order.push_back(2); }).get();
  EXPECT_EQ(order, (std::vector<int>{1, 2}));
  EXPECT_THROW(failure.get(), std::runtime_error);
}

TEST(ThreadPoolTest, FinishesTheRunningTaskAndDropsTheQueuedOnes) {
  std::atomic<bool> finished = false;
  std::atomic<bool> queuedRan = false;
  std::promise<void> running;
  {
    ThreadPool pool;
    pool.Start(1);
    pool.Submit([&] {
      running.set_value();
      std::this_thread::sleep_for(std::chrono::milliseconds(50));
      finished = true;
    });
    pool.Submit([&queuedRan] { queuedRan = true; });
    running.get_future().wait();
    pool.Stop();
    pool.Submit([&queuedRan] { queuedRan = true; });
  }
  EXPECT_TRUE(finished);
  EXPECT_FALSE(queuedRan);
}

// As many workers must wake up as there are tasks, however deep they sleep.
TEST(ThreadPoolTest, EveryTaskFindsAWorkerOfItsOwn) {
  constexpr int kWorkers = 4;
  ThreadPool pool;
  pool.Start(kWorkers);
  for (int round = 0; round < 300; ++round) {
    const auto together = std::make_shared<Meeting>(kWorkers + 1);
    for (int i = 0; i < kWorkers; ++i) pool.Submit([together] { together->Join(); });
    together->Join();
    if (round % 10 == 0) std::this_thread::sleep_for(std::chrono::milliseconds(2));
  }
}

TEST(ThreadPoolTest, BreaksThePromiseOfAFunctionThatNeverRuns) {
  std::future<void> never;
  {
    ThreadPool pool;
    pool.Stop();
    never = pool.Submit([] {});
  }
  EXPECT_THROW(never.get(), std::future_error);
}

TEST(DispatcherTest, DestroysEachTaskOnceAfterItsExecution) {
  struct Counting final : core::TaskInterface {
    Counting(std::atomic<int>& executions, std::promise<int>& destruction)
        : executed(executions), destroyed(destruction) {}
    ~Counting() override { destroyed.set_value(executed); }
    void Execute() override { ++executed; }

    std::atomic<int>& executed;
    std::promise<int>& destroyed;
  };
  std::atomic<int> executed = 0;
  std::promise<int> destroyed;
  GeneralDiagnosticDispatcher dispatcher;
  dispatcher.Dispatch(std::make_unique<Counting>(executed, destroyed));
  EXPECT_EQ(destroyed.get_future().get(), 1);
}

TEST(TaskQueueTest, EndsWaitingWhenInvalidated) {
  TaskQueue queue;
  std::jthread consumer([&queue] {
    try {
      queue.Pop();
      ADD_FAILURE() << "nothing was pushed";
    } catch (const std::logic_error& error) {
      EXPECT_STREQ(error.what(), "Invalidated queue!");
    }
  });
  EXPECT_TRUE(queue.IsValid());
  queue.Invalidate();
  EXPECT_FALSE(queue.IsValid());
}

}  // namespace
}  // namespace orvik::utils
