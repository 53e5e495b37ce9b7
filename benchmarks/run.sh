#!/usr/bin/env bash
# Builds and runs the benchmarks and compares the results with their limits: benchmarks/run.sh [--quick]
# In full (about five minutes) it exits with 1 if a limit is exceeded, and draws docs/images/benchmarks.svg. The quick
# form only checks that everything runs.
set -euo pipefail
cd "$(dirname "$0")/.."

quick=${1:-}
case "$quick" in ''|--quick) ;; *) echo "benchmarks/run.sh [--quick]" >&2; exit 2 ;; esac
scripts/packages.sh build bench
results=build/benchmarks
mkdir -p "$results"
cmake --preset release -DORVIK_BENCHMARKS=ON > "$results/configure.log" || { tail "$results/configure.log" >&2; exit 1; }
scripts/build.sh release dispatch_benchmark module_benchmark load_benchmark

# measure RESULT PROGRAM SECONDS REPETITIONS [OPTION]...
# Repetitions are mixed at random, so that other load on the machine affects all sides of a comparison alike.
measure() {
  local result=$1 program=$2 seconds=$3 repetitions=$4
  shift 4
  [ -z "$quick" ] || { seconds=0.01; repetitions=1; }
  echo "measuring: $result" >&2
  "build/release/bin/$program" --benchmark_min_time="$seconds" --benchmark_repetitions="$repetitions" \
    --benchmark_enable_random_interleaving=true --benchmark_format=json "$@" \
    > "$results/$result.json" 2> "$results/$result.log" || { tail "$results/$result.log" >&2; exit 1; }
}
rm -f "$results"/*.json
measure dispatch dispatch_benchmark 0.1 15
measure module module_benchmark 0.1 9 --benchmark_filter=-AbortToCancel
measure abort module_benchmark 1 51 --benchmark_filter=AbortToCancel
measure load load_benchmark 0.05 41

python3 benchmarks/report.py "$results" ${quick:+--no-limits} $([ -n "$quick" ] || echo --draw docs/images/benchmarks.svg)
