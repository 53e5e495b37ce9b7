#!/usr/bin/env bash
# Configures and builds one preset: scripts/build.sh PRESET [TARGET]...
set -euo pipefail
cd "$(dirname "$0")/.."

preset=$1
shift
# On a terminal, show progress; otherwise only the end of the log if the build fails.
log=build/$preset.log
mkdir -p build
quietly() {
  if [ -t 1 ]; then "$@"; else "$@" > "$log" 2>&1 || { tail -n 60 "$log" >&2; exit 1; }; fi
}
[ -e "build/$preset/build.ninja" ] || quietly cmake --preset "$preset"
quietly cmake --build --preset "$preset" ${@:+--target "$@"}
