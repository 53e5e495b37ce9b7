#!/usr/bin/env bash
# Installs missing packages, builds, and runs the product on sample machines: scripts/demo.sh [MACHINE]
set -euo pipefail
cd "$(dirname "$0")/.."

scripts/packages.sh build
scripts/build.sh dev orvik-diag ovk_module_raid

# Exit codes 1 and 2 are expected: the sample machines have faults for the tests to find.
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
# Consistency checks are running on two of the four drives, so the test asks a question. The simulated clock runs fast.
diag machines/consistency.json test --only CHECK_CONSISTENCY_TEST --answer ok
diag machines/both-families.json scan
diag machines/both-families.json test
