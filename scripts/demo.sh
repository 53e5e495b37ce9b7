#!/usr/bin/env bash
# Installs what is missing, builds, and shows the product at work on sample machines: scripts/demo.sh [MACHINE]
set -euo pipefail
cd "$(dirname "$0")/.."

scripts/packages.sh build
scripts/build.sh dev orvik-diag ovk_module_raid

# A machine that needs care ends its tests with exit code 1 or 2; that is what a demonstration should show.
show() {
  local status=0
  printf '\n$ %s\n\n' "$*"
  "$@" || status=$?
  printf '\nexit code %s\n' "$status"
  [ "$status" -le 2 ]
}
diag() { show build/dev/bin/orvik-diag --machine "$@"; }

if [ $# -gt 0 ]; then
  diag "$1" scan
  diag "$1" test
  exit
fi
# Checks are running on two of its four drives, so the test asks; the machine's clock makes minutes pass in a second.
diag machines/consistency.json test --only CHECK_CONSISTENCY_TEST --answer ok
diag machines/both-families.json scan
diag machines/both-families.json test
