#!/usr/bin/env bash
# Installs missing packages, builds and runs all tests: scripts/test.sh [dev|release|asan|tsan]
set -euo pipefail
cd "$(dirname "$0")/.."

preset=${1:-dev}
targets=()
# The thread sanitizer runs only the tests labelled "threads" (CMakePresets.json).
[ "$preset" != tsan ] || targets=(threads_tests dialog_tests host_tests dispatcher_tests)
scripts/packages.sh build
scripts/build.sh "$preset" "${targets[@]}"
exec ctest --preset "$preset" --parallel "$(nproc)"
