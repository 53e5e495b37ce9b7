#!/usr/bin/env bash
# Builds for 64-bit Windows and tests under Wine: all tests on the simulated machine, and the real module on Wine's setup
# API, registry and threads. scripts/windows/test.sh
set -euo pipefail
cd "$(dirname "$0")/../.."

scripts/packages.sh build windows
ORVIK_QT_WINDOWS=$(scripts/windows/qt.sh)
export ORVIK_QT_WINDOWS
scripts/build.sh dev
scripts/build.sh windows
scripts/build.sh windows-simulated
. scripts/windows/wine.sh
wine_start

passed=0
failed=0
result() {  # result WHAT COMMAND...: one check of this script's own
  local what=$1
  shift
  if "$@"; then passed=$((passed + 1)); else failed=$((failed + 1)); printf 'FAILED: %s\n' "$what"; fi
}

# run_suite PROGRAM REPORT: runs a GoogleTest program; judge_suite counts its results and leaves "name status" lines in
# REPORT.
run_suite() { wine_run "$1" --gtest_output="json:$2.json" > "$2.log" 2>&1 || true; }
judge_suite() {
  if [ ! -s "$2.json" ]; then
    printf 'FAILED: %s is missing or did not finish\n' "$1"
    tail -n 20 "$2.log"
    failed=$((failed + 1))
    : > "$2"
    return
  fi
  python3 - "$2.json" > "$2" <<'PYTHON'
import json, sys
for group in json.load(open(sys.argv[1]))["testsuites"]:
    for test in group["testsuite"]:
        status = "skipped" if test["result"] == "SKIPPED" else "failed" if test.get("failures") else "passed"
        print(f'{group["name"]}.{test["name"]} {status}')
PYTHON
  passed=$((passed + $(grep -c ' passed$' "$2" || true)))
  if grep -q ' failed$' "$2"; then
    failed=$((failed + $(grep -c ' failed$' "$2")))
    grep ' failed$' "$2"
    grep -B 1 -A 12 ': Failure' "$2.log" | head -n 60 || true
  fi
}

reports=build/windows-reports
rm -rf "$reports"
mkdir -p "$reports"

echo "-- the real module: exports and command line"
exports() {
  x86_64-w64-mingw32-objdump -p "$1" | sed -n '/\[Ordinal\/Name Pointer\]/,/^$/p' | awk 'NF == 3 && $1 == "[" {print $3}' |
    sort | xargs
}
result "exports" [ "$(exports build/windows/bin/ovk_module_raid.dll)" = "CreateModuleInstance DestroyModuleInstance" ]
diag=build/windows/bin/orvik-diag.exe
ends_with() {  # ends_with CODE ARGUMENT...
  local wanted=$1 code=0
  shift
  wine_run "$diag" "$@" > "$reports/diag.log" 2>&1 || code=$?
  [ "$code" = "$wanted" ] || { echo "orvik-diag $*: $code instead of $wanted"; cat "$reports/diag.log"; return 1; }
}
result "version resources" python3 scripts/windows/file_version.py \
  "$(sed -n 's/^project(.* VERSION \([0-9.]*\).*/\1/p' CMakeLists.txt)" \
  build/windows/bin/{orvik-diag.exe,ovk_module_raid.dll,hostkit.dll,skinkit.dll}
result "help" ends_with 0 --help
result "version" ends_with 0 --version
result "presence" ends_with 0 presence
result "scan of a machine without controllers" ends_with 0 scan --json
result "nothing to test" ends_with 0 test
result "usage error" ends_with 3 no-such-command
result "missing module" ends_with 3 scan --module missing.dll
result "no module" ends_with 3 scan --module build/windows/bin/hostkit.dll
result "no simulated machine here" ends_with 3 scan --machine machines/missing.json

echo "-- the real module: setup API, registry, threads, text, time"
iconv -f UTF-8 -t UTF-16 tests/windows/adapters.reg > "$reports/adapters.reg"
wine regedit /S "$reports/adapters.reg"
run_suite build/windows/bin/windows_tests.exe "$reports/windows_tests"
judge_suite build/windows/bin/windows_tests.exe "$reports/windows_tests"

echo "-- all tests on the simulated machine"
printf '\n%-20s %8s %8s\n' suite native Wine > "$reports/table"
: > "$reports/differences"
# With real windows; the dialogs' tests run alone, because windows of other programs would take their focus.
export QT_QPA_PLATFORM=windows
run_suite build/windows-simulated/bin/dialog_tests.exe "$reports/dialog_tests"
export reports
export -f run_suite wine_run wine_library_path
find build/dev/bin -name '*_tests' ! -name dialog_tests -printf '%f\n' |
  xargs -P "$(nproc)" -I {} bash -c 'run_suite build/windows-simulated/bin/{}.exe "$reports/{}"'
unset QT_QPA_PLATFORM
for program in build/dev/bin/*_tests; do
  name=$(basename "$program")
  judge_suite "build/windows-simulated/bin/$name.exe" "$reports/$name"
  "$program" --gtest_list_tests | awk '/^[^ ]/ {group = $1} /^ / {print group $1}' | sort > "$reports/$name.native"
  grep -v ' skipped$' "$reports/$name" | cut -d ' ' -f 1 | sort > "$reports/$name.wine" || true
  printf '%-20s %8s %8s\n' "$name" "$(wc -l < "$reports/$name.native")" "$(wc -l < "$reports/$name.wine")" >> "$reports/table"
  diff "$reports/$name.native" "$reports/$name.wine" | sed -n 's/^[<>] //p' >> "$reports/differences" || true
done

# Every test that runs on one side only must be explained.
cat "$reports/table"
while read -r test; do
  reason=$(sed -n "s/^${test//./\\.}: //p" tests/windows/differences.txt)
  if [ -n "$reason" ]; then
    printf 'one side only: %s: %s\n' "$test" "$reason"
  else
    printf 'FAILED: %s runs on one side only, without a reason in tests/windows/differences.txt\n' "$test"
    failed=$((failed + 1))
  fi
done < "$reports/differences"

printf '\n%d passed, %d failed\n' "$passed" "$failed"
[ "$failed" = 0 ]
