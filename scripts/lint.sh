#!/usr/bin/env bash
# Checks what the build does not: formatting, include rules, restricted calls, exported names, clang's warnings and
# clang-tidy. scripts/lint.sh [--quick]
#   --quick   without clang's warnings and clang-tidy
set -uo pipefail
cd "$(dirname "$0")/.."

scripts/packages.sh build clang lint || exit 1
failed=0
rule() { printf -- '-- %s\n' "$1"; }
broken() { printf '%s\n' "$1"; failed=1; }

mapfile -t sources < <(git ls-files --cached --others --exclude-standard '*.h' '*.cpp')

rule "formatting"
clang-format --dry-run -Werror "${sources[@]}" || failed=1

rule "include rules"
cmake -DROOT="$PWD" -P cmake/IncludeRules.cmake || failed=1

# only_in PATTERN WHAT HOME...: product code outside HOME must not match PATTERN.
only_in() {
  local pattern=$1 what=$2
  shift 2
  local homes=()
  for home in "$@"; do homes+=(":(exclude)$home"); done
  local hits
  hits=$(git grep --untracked -nE "$pattern" -- core utils module platform simulation host "${homes[@]}")
  [ -z "$hits" ] || broken "$what"$'\n'"$hits"
}

rule "restricted calls"
only_in '\b(memcpy|memmove|memset|strcpy|sprintf)\b' \
  "raw copies belong in the bounded views" utils/bytes simulation/bytes.h
only_in 'reinterpret_cast|__attribute__\(\(packed|#pragma pack' \
  "casts of buffers belong in the headers for bytes" utils/bytes simulation/bytes.h \
  platform/hostkit/libraries.cpp platform/windows host/library
only_in '\b(CloseHandle|SetupDiDestroyDeviceInfoList)\(' \
  "handles must have owners that close them" utils/windows/unique_handle.h platform/windows
hits=$(git grep --untracked -nE '#include <(latch|barrier|semaphore)>' -- '*.h' '*.cpp')
[ -z "$hits" ] || broken "these lose wake-ups in GCC 12's library for Windows: use a promise or a condition variable"$'\n'"$hits"
only_in '^ *# *(ifdef|ifndef|if) ' \
  "the sources are the same on every platform" platform host

rule "exported names"
scripts/build.sh dev || exit 1
# exports LIBRARY NAME...
exports() {
  local library=$1 found
  shift
  found=$(nm -D --defined-only "build/dev/bin/$library" | awk '{print $3}' | sed 's/@.*//' | sort | xargs)
  [ "$found" = "$(printf '%s\n' "$@" | sort | xargs)" ] || broken "$library exports: $found"
}
exports ovk_module_raid.so CreateModuleInstance DestroyModuleInstance
exports skinkit.so _ZN12StyleManager8instanceEv _ZNK12StyleManager10StylesheetEv
exports hostkit.so get_filesystem get_module get_number_handler get_string_handler get_temporary_path get_timer
exports storelib.dll ProcessLibCommand

if [ "${1:-}" != --quick ]; then
  rule "clang builds the host"
  # The rest of the product is built with clang for the fuzzers (fuzz/run.sh).
  scripts/build.sh clang orvik-diag || failed=1

  rule "clang-tidy"
  # Not the tests: the test framework's macros would take longer than the whole product.
  run-clang-tidy -quiet -p build/dev -extra-arg=-Wno-unknown-warning-option "$PWD/(core|utils|module|platform|simulation|host)/.*" \
    > build/tidy.log 2>&1 || { grep -E 'warning:|error:|note:|terminated by' -A 3 build/tidy.log; failed=1; }
fi

[ "$failed" = 0 ] && echo "all rules hold"
exit "$failed"
