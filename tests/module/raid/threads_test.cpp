// One module, used by many hosts at once.

#include <gtest/gtest.h>

#include <atomic>
#include <functional>
#include <future>
#include <map>
#include <mutex>
#include <random>
#include <thread>

#include "module/raid/entry/module.h"
#include "tests/module/raid/diagnostics/run_recorder.h"
#include "tests/module/raid/storelib/storelib_machines.h"

namespace orvik::module::raid {
namespace {

using namespace orvik::testing;
using core::DispatchRequest;

using FunctionTask = core::Task<std::function<void()>>;

/// Four controllers, two of each family; checks on storelib drives run until they are aborted.
std::shared_ptr<simulation::Machine> InstallFourControllers() {
  simulation::MachineDescription description{.adapters = {Mirror(), Controller(3, {}, "282A", 24)}};
  for (const std::uint32_t id : {3U, 4U}) {
    auto controller = LsiController({Volume(0, 1), Volume(1)});
    controller.controllerId = id;
    for (auto& drive : controller.logicalDrives) drive.check.seconds = 4'000'000;
    description.storelib.controllers.push_back(controller);
  }
  return Install(description);
}

class ThreadsTest : public ::testing::Test {
 protected:
  static constexpr int kHosts = 6;
  static constexpr int kRunsOfAHost = 100;

  void SetUp() override {
    machine_ = InstallFourControllers();
    module_ = std::make_unique<Module>();
    module_->GetDeviceScanner()->Scan(std::make_shared<ScanRecorder>());
    devices_ = module_->GetDeviceScanner()->GetDevices();
    ASSERT_EQ(devices_.size(), 4U);
    for (const auto& device : devices_) running_[device.lock()->GetId()] = 0;
  }

  /// Runs a random test on a random device, may abort it, and waits for its end.
  void RunSomething(std::minstd_rand& random) {
    const std::weak_ptr<core::Device> device = devices_[random() % devices_.size()];
    const core::TestId id = static_cast<core::TestId>(random() % 6) + 1;
    const auto test = module_->CreateTest(id);
    const auto request =
        std::make_unique<DispatchRequest>(device, static_cast<std::int32_t>(random() % 2), test.get());
    if (!Reserve(request)) return;

    RunRecorder recorder;
    core::SystemEventState events;
    recorder.events = &events;
    auto result = core::TestResult::Invalid;
    const auto done = std::make_shared<std::promise<void>>();
    dispatcher_->Dispatch(std::make_unique<FunctionTask>([&, done] {
      auto& inUse = running_.at(device.lock()->GetId());
      EXPECT_EQ(++inUse, 1) << "two runs on one device";
      result = recorder.Run(*test, device.lock());
      std::vector<StorageDeviceEntry> drives;
      EXPECT_EQ(std::static_pointer_cast<Device>(device.lock())->GetStorageDevices(drives), 0U);
      --inUse;
      done->set_value();
    }));
    // A consistency check ends only when aborted.
    const bool aborts = id == 4 || random() % 2 == 0;
    if (aborts) {
      std::this_thread::sleep_for(std::chrono::microseconds(random() % 3000));
      recorder.abort = 1;
    }
    done->get_future().wait();
    const std::lock_guard lock(book_);
    dispatcher_->NotifyFinished(request);
    EXPECT_NE(result, core::TestResult::Invalid);
    EXPECT_TRUE(aborts || result != core::TestResult::Aborted) << id;
    ++finished_;
  }

  bool Reserve(const std::unique_ptr<DispatchRequest>& request) {
    const std::lock_guard lock(book_);
    if (!dispatcher_->CanStart(request)) return false;
    dispatcher_->NotifyStarted(request);
    return true;
  }

  std::shared_ptr<simulation::Machine> machine_;
  std::unique_ptr<Module> module_;
  /// The module's own dispatcher has only as many workers as this machine has cores.
  std::shared_ptr<core::DiagnosticDispatcher> dispatcher_ =
      std::make_shared<utils::GeneralDiagnosticDispatcher>(kHosts);
  std::vector<std::weak_ptr<core::Device>> devices_;
  std::map<std::string, std::atomic<int>> running_;
  std::mutex book_;  // guards the module's reservations, which it leaves to its host
  std::atomic<int> finished_ = 0;
};

TEST_F(ThreadsTest, ManyHostsRunTestsOnSeveralDevicesAtOnce) {
  {
    std::vector<std::jthread> hosts;
    for (unsigned host = 1; host <= kHosts; ++host) {
      hosts.emplace_back([this, host] {
        std::minstd_rand random(host);
        for (int run = 0; run < kRunsOfAHost; ++run) RunSomething(random);
      });
    }
  }
  EXPECT_GT(finished_, kHosts);
  for (const auto& [id, inUse] : running_) EXPECT_EQ(inUse, 0) << id;
  dispatcher_.reset();
  module_.reset();
  EXPECT_EQ(machine_->Ledger().OutstandingTotal(), 0U);
  EXPECT_EQ(machine_->Ledger().InvalidReleases(), 0U);
}

TEST_F(ThreadsTest, EndsWithAFullQueue) {
  std::atomic<int> executed = 0;
  std::atomic<int> alive = 0;
  const auto token = [&alive] { return std::shared_ptr<void>(nullptr, [&alive](void*) { --alive; }); };
  {
    std::vector<std::jthread> hosts;
    for (int host = 0; host < kHosts; ++host) {
      hosts.emplace_back([&] {
        for (int i = 0; i < 500; ++i) {
          ++alive;
          dispatcher_->Dispatch(std::make_unique<FunctionTask>([&executed, held = token()] {
            ++executed;
            std::this_thread::sleep_for(std::chrono::milliseconds(1));
          }));
        }
      });
    }
  }
  EXPECT_GT(alive, 0);
  dispatcher_.reset();
  EXPECT_EQ(alive, 0);
  EXPECT_LT(executed, kHosts * 500);
}

}  // namespace
}  // namespace orvik::module::raid
