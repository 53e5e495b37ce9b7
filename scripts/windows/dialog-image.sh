#!/usr/bin/env bash
# Makes the picture of the question dialog as Windows shows it (under Wine, on a real screen buffer), asked by the
# consistency check of orvik-diag.exe, in docs/images: scripts/windows/dialog-image.sh
set -euo pipefail
cd "$(dirname "$0")/../.."

scripts/packages.sh build windows pictures
ORVIK_QT_WINDOWS=$(scripts/windows/qt.sh)
export ORVIK_QT_WINDOWS
scripts/build.sh windows-simulated
. scripts/windows/wine.sh
wine_start

wine_run build/windows-simulated/bin/orvik-diag.exe --machine machines/consistency.json \
  test --only CHECK_CONSISTENCY_TEST > "$wine_scratch/diag.log" 2>&1 &
# The screen shows nothing else: more than a few colours mean that the dialog is up.
picture=$wine_scratch/screen.png
for _ in $(seq 60); do
  sleep 1
  import -window root "$picture"
  [ "$(identify -format %k "$picture")" -gt 16 ] && break
done
sleep 2
import -window root "$picture"
[ "$(identify -format %k "$picture")" -gt 16 ] || { echo "the dialog did not appear" >&2; cat "$wine_scratch/diag.log" >&2; exit 1; }
mkdir -p docs/images
convert-im6.q16 "$picture" -trim -bordercolor black -border 12 -strip docs/images/question-on-windows.png
echo docs/images/question-on-windows.png
