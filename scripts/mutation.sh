#!/usr/bin/env bash
# Counts how many one-token changes of module/ and utils/ the tests notice: scripts/mutation.sh [N] [SEED]. N (default
# 300) random mutants are built and tested, the same for the same SEED (default 1); MUTATION_JOBS (default: all cores)
# is the number of workers.
set -euo pipefail
cd "$(dirname "$0")/.."

scripts/packages.sh build mutation
exec python3 scripts/mutants.py "${1:-300}" "${2:-1}"
