#include <chrono>
#include <condition_variable>
#include <iostream>
#include <mutex>
#include <set>
#include <stdexcept>
#include <thread>

#include "tests/host/fake_module.h"

namespace orvik::tests {
namespace {

using core::MessageType;
using core::TestResult;

// Whether two runs arrive here before the timeout.
bool Meet() {
  static std::mutex mutex;
  static std::condition_variable arrived;
  static int present = 0;
  std::unique_lock lock(mutex);
  ++present;
  arrived.notify_all();
  return arrived.wait_for(lock, std::chrono::seconds(20), [] { return present >= 2; });
}

TestResult WaitForAbort(const core::RunArguments& arguments) {
  std::cerr << "waiting\n" << std::flush;
  while (arguments.abortFlag->load() == 0) std::this_thread::sleep_for(std::chrono::milliseconds(2));
  std::cerr << "noticed\n" << std::flush;
  while (IsInMood("stubborn")) std::this_thread::sleep_for(std::chrono::milliseconds(2));
  return TestResult::Aborted;
}

core::TestDescriptor DescriptorOf(core::TestId id) {
  core::TestDescriptor descriptor;
  descriptor.id = static_cast<std::uint32_t>(id);
  descriptor.nameKey = id == kPass ? "RAID_STATUS_TEST" : "FAKE_TEST_" + std::to_string(id);
  descriptor.tooltipKey = "FAKE_TOOLTIP";
  descriptor.groupKey = "QUICK_RAID";
  descriptor.groupKind = id == kExclusive ? 2 : 1;
  return descriptor;
}

class FakeTestObject final : public core::Test {
 public:
  explicit FakeTestObject(core::TestId id) : Test(DescriptorOf(id)), id_(id) {}

  TestResult Run(core::RunArguments& arguments) override {
    const std::shared_ptr<core::Device> device = arguments.device.lock();
    Log("run " + std::to_string(id_) + " on " + device->GetId());
    arguments.reporter->SetProgress(40);
    const TestResult result = ResultFor(arguments);
    arguments.reporter->SetProgress(100);
    return result;
  }

  bool IsExclusive() const override { return id_ == kExclusive; }
  std::uint32_t GetEstimatedDuration() const override { return 5; }

  bool IsSupported(const core::Device& device, std::shared_ptr<void> /*reserved*/) const override {
    return id_ != kFirstDeviceOnly || device.GetId() == "A77F";
  }

 private:
  TestResult ResultFor(core::RunArguments& arguments) const {
    switch (id_) {
      case kWarn:
        arguments.reporter->AddMessage({MessageType::Warning, "LOGICAL_DRIVE_DEGRADED: 7"});
        arguments.reporter->AddMessage({MessageType::Info, "DRIVE_DOWN: DISK B - S2\xFF"});
        return TestResult::Warning;
      case kFail:
        arguments.reporter->AddMessage({MessageType::Error, "FAULTY_ENCLOSURE 3"});
        arguments.reporter->AddMessage({MessageType::Notice, "NOBODY_KNOWS_THIS"});
        return TestResult::Failed;
      case kUntilAborted: return WaitForAbort(arguments);
      case kThrow: throw std::runtime_error("out of luck");
      case kMeet: return Meet() ? TestResult::Passed : TestResult::Failed;
      case kAsk: return AskFakeQuestion(*arguments.reporter);
      case kInvalid: return TestResult::Invalid;
      case kUnknownResult: return static_cast<TestResult>(77);
      default: return TestResult::Passed;
    }
  }

  core::TestId id_;
};

// Keeps reservations like the real one and gives every task its own thread.
class FakeDispatcher final : public core::DiagnosticDispatcher {
 public:
  ~FakeDispatcher() override {
    for (std::thread& worker : workers_) worker.join();
  }

  bool CanStart(const std::unique_ptr<core::DispatchRequest>& request) const override {
    if (IsInMood("refuse")) return false;
    const bool exclusiveTaken = request->GetMode() == core::DispatchRequest::kExclusiveMode && isExclusiveTaken_;
    return !exclusiveTaken && !busy_.contains(IdOf(*request));
  }

  void Dispatch(std::unique_ptr<core::TaskInterface> task) override {
    if (IsInMood("swallow")) return;
    workers_.emplace_back([work = std::move(task)]() mutable {
      work->Execute();
      work.reset();
    });
  }

  void NotifyFinished(const std::unique_ptr<core::DispatchRequest>& request) override {
    busy_.erase(IdOf(*request));
    if (request->GetMode() == core::DispatchRequest::kExclusiveMode) isExclusiveTaken_ = false;
    LogStep("finished", *request);
  }

  void NotifyStarted(const std::unique_ptr<core::DispatchRequest>& request) override {
    busy_.insert(IdOf(*request));
    if (request->GetMode() == core::DispatchRequest::kExclusiveMode) isExclusiveTaken_ = true;
    LogStep("started", *request);
  }

 private:
  static std::string IdOf(const core::DispatchRequest& request) { return request.GetDevice().lock()->GetId(); }

  void LogStep(const char* step, const core::DispatchRequest& request) const {
    const char* const thread = std::this_thread::get_id() == owner_ ? "" : " on the wrong thread";
    const core::Test* const test = request.GetTest();
    Log(std::string(step) + ' ' + (test == nullptr ? "drives" : std::to_string(test->Descriptor().id)) + " on " +
        IdOf(request) + " mode " + std::to_string(request.GetMode()) + thread);
  }

  std::thread::id owner_ = std::this_thread::get_id();
  std::set<std::string> busy_;
  bool isExclusiveTaken_ = false;
  std::vector<std::thread> workers_;
};

}  // namespace

std::unique_ptr<core::Test> MakeFakeTest(core::TestId id) {
  return id == kUnmade ? nullptr : std::make_unique<FakeTestObject>(id);
}

std::shared_ptr<core::DiagnosticDispatcher> MakeFakeDispatcher() {
  return std::make_shared<FakeDispatcher>();
}

}  // namespace orvik::tests
