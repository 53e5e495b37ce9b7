// From the abort flag to the cancel command at the controller, while a consistency check runs.

#include <benchmark/benchmark.h>

#include <chrono>
#include <random>
#include <thread>

#include "benchmarks/machines.h"
#include "benchmarks/outside_calls.h"
#include "module/raid/diagnostics/raid_tests.h"
#include "module/raid/storelib/storelib_device.h"

namespace orvik::benchmarks {
namespace {

using namespace module::raid;

class SilentHost final : public core::RunReporter {
 public:
  void SetProgress(std::uint8_t /*percent*/) override {}
  void AddMessage(const core::TestMessage& /*message*/) override {}
  void Ask(std::unique_ptr<core::InputInteraction>& /*question*/) override {}
};

void AbortToCancel(benchmark::State& state) {
  SetRequestTime({});
  simulation::MachineDescription description = LargeMachine(0, 1);
  description.storelib.controllers.front().logicalDrives.front().check.seconds = 4'000'000;
  const auto machine = Install(description);
  auto* const controller = machine->Storelib().FindController(0);
  const std::shared_ptr<core::Device> device = std::make_shared<LsiDevice>(0, std::make_shared<LsiSender>());
  std::minstd_rand random;
  for ([[maybe_unused]] const auto& iteration : state) {
    SilentHost host;
    core::AbortFlag abort = 0;
    core::RunArguments arguments{.device = device, .abortFlag = &abort, .reporter = &host};
    std::jthread worker([&arguments] { CheckConsistencyTest().Run(arguments); });
    while (!controller->IsChecking(0)) std::this_thread::yield();
    std::this_thread::sleep_for(std::chrono::microseconds(random() % 5000));
    const auto set = std::chrono::steady_clock::now();
    abort = 1;
    while (controller->IsChecking(0)) std::this_thread::yield();
    state.SetIterationTime(std::chrono::duration<double>(std::chrono::steady_clock::now() - set).count());
  }
}

BENCHMARK(AbortToCancel)->UseManualTime()->Iterations(1)->Unit(benchmark::kMicrosecond);

}  // namespace
}  // namespace orvik::benchmarks
