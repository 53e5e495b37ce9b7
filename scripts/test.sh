#!/usr/bin/env bash
# Installs what is missing, builds and runs all tests: scripts/test.sh [dev|release|asan|tsan]
set -euo pipefail
cd "$(dirname "$0")/.."

preset=${1:-dev}
scripts/packages.sh build
scripts/build.sh "$preset"
exec ctest --preset "$preset" --parallel "$(nproc)"
