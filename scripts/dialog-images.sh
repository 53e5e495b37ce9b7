#!/usr/bin/env bash
# Makes the pictures of the question dialog in docs/images: at three DPI steps, each in normal and in high contrast.
set -euo pipefail
cd "$(dirname "$0")/.."

scripts/packages.sh build pictures
scripts/build.sh dev dialog_images
mkdir -p docs/images
screen=$(mktemp)
trap 'rm -f "$screen"' EXIT
# The dialog scales itself, as in a host that leaves the monitor's DPI to it.
export QT_ENABLE_HIGHDPI_SCALING=0
for dpi in 96 144 192; do
  printf '{"screens": [{"name": "monitor", "width": 1920, "height": 1080, "logicalDpi": %d, "logicalBaseDpi": 96}]}' \
    "$dpi" > "$screen"
  QT_QPA_PLATFORM="offscreen:configfile=$screen" \
    build/dev/bin/dialog_images docs/images "$dpi" build/dev/host/orvik_en.qm
done
