#!/usr/bin/env bash
# Runs scans, all tests and drive operations on a machine that keeps changing; exits with 1 if memory, handles or threads
# grow: scripts/soak.sh MINUTES [PLOT]. PLOT defaults to docs/images/soak.svg.
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
