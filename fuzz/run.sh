#!/usr/bin/env bash
# Runs the fuzzers, one per processor at a time, and reports the coverage of each:
#   fuzz/run.sh MINUTES     for MINUTES in total
#   fuzz/run.sh --quick     for one minute in total, from the seeds only
#   fuzz/run.sh ... TARGET  only the named ones
# Later runs start from the corpus in build/fuzz/corpus. Inputs that fail are kept in build/fuzz/findings; pass such a
# file to the target's program to reproduce the failure.
set -euo pipefail
cd "$(dirname "$0")/.."

corpus=corpus
case "${1:-}" in
  --quick) seconds=60 corpus=quick-corpus ;;
  [0-9]*) seconds=$(($1 * 60)) ;;
  *) echo "fuzz/run.sh MINUTES|--quick [TARGET]..." >&2; exit 2 ;;
esac
shift
targets=("$@")
[ ${#targets[@]} -gt 0 ] || targets=(machine storelib ata scsi nvme description style)

scripts/packages.sh build fuzz
scripts/build.sh fuzz

build=$PWD/build/fuzz
corpus=$build/$corpus findings=$build/findings logs=$build/logs
rm -rf "$build/quick-corpus"
mkdir -p "$corpus" "$findings" "$logs"
"$build/bin/fuzz_seeds" "$corpus"
mkdir -p "$corpus/description" "$corpus/style"
cp machines/*.json "$corpus/description"
cp platform/skinkit/*.qss platform/skinkit/icons/*.svg "$corpus/style"

# The words of each language, for inputs made of text.
grep -oE '"[A-Za-z0-9 ]+"' machines/machine.schema.json | sort -u > "$build/description.dict"
grep -ohE '[A-Za-z#:*=-]{4,}' platform/skinkit/*.qss utils/dialogs/high_contrast_style.cpp | sort -u |
  sed 's/.*/"&"/' > "$build/style.dict"

jobs=$(nproc)
[ "$jobs" -le ${#targets[@]} ] || jobs=${#targets[@]}
export each=$((seconds * jobs / ${#targets[@]})) build corpus findings logs

run() {
  local dictionary=()
  [ ! -e "$build/$1.dict" ] || dictionary=(-dict="$build/$1.dict")
  "$build/bin/fuzz_$1" -max_total_time="$each" -timeout=20 -rss_limit_mb=4096 -max_len=65536 -print_final_stats=1 \
    -artifact_prefix="$findings/$1-" "${dictionary[@]}" "$corpus/$1" > "$logs/$1.log" 2>&1
}
export -f run
export ASAN_OPTIONS=quarantine_size_mb=32:malloc_context_size=10
failed=0
printf '%s\n' "${targets[@]}" | xargs -P "$jobs" -I {} bash -c 'run {}' || failed=1

# Coverage is counted in edges, features in edges by how often they were taken.
printf '%-12s %12s %8s %9s\n' target executions edges features
for target in "${targets[@]}"; do
  awk -v target="$target" '
    / cov: / { for (i = 1; i < NF; ++i) { if ($i == "cov:") cov = $(i + 1); if ($i == "ft:") ft = $(i + 1) } }
    /stat::number_of_executed_units/ { runs = $2 }
    END { printf "%-12s %12d %8d %9d\n", target, runs, cov, ft }' "$logs/$target.log"
done
[ "$failed" = 0 ] || grep -lE 'ERROR|SUMMARY' "$logs"/*.log | while read -r log; do
  echo "-- $log"
  grep -E -m 1 -A 12 'ERROR|runtime error' "$log" || tail -n 20 "$log"
  tail -n 3 "$log"
done
exit "$failed"
