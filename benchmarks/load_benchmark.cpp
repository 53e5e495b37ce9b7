// Loading the module and making its object on an empty machine, beside loading the Qt libraries alone; each in a
// process of its own.

#include <benchmark/benchmark.h>

#include <cstdio>
#include <cstdlib>
#include <string>

namespace {

/// Seconds, as the probe tells them; negative when it fails.
double Probe(const std::string& libraries) {
  std::FILE* const probe = popen(("'" ORVIK_PROBE "' " + libraries).c_str(), "r");
  if (probe == nullptr) return -1;
  long long nanoseconds = -1;
  const bool read = std::fscanf(probe, "%lld", &nanoseconds) == 1;
  return pclose(probe) == 0 && read ? static_cast<double>(nanoseconds) * 1e-9 : -1;
}

void Load(benchmark::State& state, const std::string& libraries) {
  unsetenv("ORVIK_MACHINE");
  Probe(libraries);  // from disk, once
  for ([[maybe_unused]] const auto& iteration : state) {
    const double seconds = Probe(libraries);
    if (seconds < 0) state.SkipWithError("the libraries can't be loaded");
    state.SetIterationTime(seconds);
  }
}

BENCHMARK_CAPTURE(Load, Module, "'" ORVIK_MODULE "'")->UseManualTime()->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(Load, QtAlone, ORVIK_QT)->UseManualTime()->Unit(benchmark::kMillisecond);

}  // namespace
