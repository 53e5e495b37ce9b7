#!/usr/bin/env bash
# Installs what is missing, builds, scans a sample machine and runs its tests: scripts/demo.sh [MACHINE]
set -euo pipefail
cd "$(dirname "$0")/.."

machine=${1:-machines/degraded.json}
scripts/packages.sh build
scripts/build.sh dev orvik-diag ovk_module_raid

show() {
  printf '\n$ %s\n\n' "$*"
  "$@"
}
show build/dev/bin/orvik-diag --machine "$machine" scan
# A machine that needs care ends its tests with exit code 1 or 2; that is what a demonstration should show.
status=0
show build/dev/bin/orvik-diag --machine "$machine" test || status=$?
printf '\nexit code %s\n' "$status"
[ "$status" -le 2 ]
