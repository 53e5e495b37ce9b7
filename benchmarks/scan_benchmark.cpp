// Scans of large machines, beside a loop that makes nothing but their calls to the outside; and how they grow.

#include <benchmark/benchmark.h>

#include <memory>
#include <vector>

#include "benchmarks/heap_meter.h"
#include "benchmarks/machines.h"
#include "benchmarks/outside_calls.h"
#include "module/raid/entry/device_scanner.h"

namespace orvik::benchmarks {
namespace {

class Host final : public core::ScanListener {
 public:
  void OnDeviceFound(const core::DeviceDescription& description) override {
    ++count;
    if (keep) found.push_back(description);
  }
  void OnScanFinished() override {}
  void OnPresenceChecked(bool /*present*/) override {}

  bool keep = false;
  unsigned count = 0;
  std::vector<core::DeviceDescription> found;
};

/// A scanner's whole life. The number of controllers that it found.
unsigned Scan() {
  const auto host = std::make_shared<Host>();
  module::raid::DeviceScanner().Scan(host);
  return host->count;
}

/// With requests that take at least as many microseconds as the benchmark's first argument says.
void InstallLargest(const benchmark::State& state) {
  Install(LargeMachine(8, 8));
  SetRequestTime(std::chrono::microseconds(state.range(0)));
}

void ScanByModule(benchmark::State& state) {
  InstallLargest(state);
  if (Scan() != 16) state.SkipWithError("the scan does not find what there is");
  for ([[maybe_unused]] const auto& iteration : state) Scan();
}

void ScanByCallsAlone(benchmark::State& state) {
  InstallLargest(state);
  const auto machine = simulation::CurrentMachine();
  OutsideCalls calls;
  const auto before = machine->Faults().CallsMade(simulation::kEveryOutsideCall);
  calls.Record([] { Scan(); });
  const auto between = machine->Faults().CallsMade(simulation::kEveryOutsideCall);
  calls.Replay();
  const auto after = machine->Faults().CallsMade(simulation::kEveryOutsideCall);
  const bool same = between - before == after - between && machine->Ledger().OutstandingTotal() == 0;
  if (!same) state.SkipWithError("the calls alone are not those of the scan");
  for ([[maybe_unused]] const auto& iteration : state) calls.Replay();
  state.counters["calls"] = static_cast<double>(calls.Size());
}

/// The least that the host is owed after a scan: one copy of what it is told.
void DescriptionsAlone(benchmark::State& state) {
  InstallLargest(state);
  const auto host = std::make_shared<Host>();
  host->keep = true;
  module::raid::DeviceScanner().Scan(host);
  for ([[maybe_unused]] const auto& iteration : state) {
    auto copy = host->found;
    benchmark::DoNotOptimize(copy);
  }
}

/// A machine with controllers of one family: 1 CSMI, 2 storelib.
void ScanOfControllers(benchmark::State& state) {
  const auto controllers = static_cast<unsigned>(state.range(1));
  const bool csmi = state.range(0) == 1;
  SetRequestTime({});
  Install(LargeMachine(csmi ? controllers : 0, csmi ? 0 : controllers));
  if (Scan() != controllers) state.SkipWithError("the scan does not find what there is");
  const std::size_t peak = PeakOf([] { Scan(); });
  for ([[maybe_unused]] const auto& iteration : state) Scan();
  state.counters["peak_bytes"] = static_cast<double>(peak);
}

BENCHMARK(ScanByModule)->ArgName("request_us")->Arg(0)->Arg(5)->Unit(benchmark::kMillisecond);
BENCHMARK(ScanByCallsAlone)->ArgName("request_us")->Arg(0)->Arg(5)->Unit(benchmark::kMillisecond);
BENCHMARK(DescriptionsAlone)->ArgName("request_us")->Arg(0)->Unit(benchmark::kMillisecond);
BENCHMARK(ScanOfControllers)
    ->ArgNames({"family", "controllers"})
    ->ArgsProduct({{1, 2}, {1, 2, 4, 8, 16}})
    ->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace orvik::benchmarks
