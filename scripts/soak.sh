#!/usr/bin/env bash
# Runs scans, all tests and drive operations on an ever changing machine and ends with 1 when memory, handles or threads
# grow: scripts/soak.sh MINUTES [PLOT]. PLOT is docs/images/soak.svg unless given.
set -euo pipefail
cd "$(dirname "$0")/.."

minutes=${1:?scripts/soak.sh MINUTES [PLOT]}
plot=${2:-docs/images/soak.svg}
scripts/packages.sh build bench
mkdir -p build
cmake --preset release -DORVIK_BENCHMARKS=ON > build/soak.log || { tail build/soak.log >&2; exit 1; }
scripts/build.sh release soak
build/release/bin/soak "$minutes" build/release/bin/ovk_module_raid.so > build/soak.txt
python3 benchmarks/soak/report.py build/soak.txt "$plot"
