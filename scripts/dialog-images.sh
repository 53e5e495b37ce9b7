#!/usr/bin/env bash
# Makes the pictures of the question dialog in docs/images: at three DPI steps, each in normal and in high contrast,
# and one in German.
set -euo pipefail
cd "$(dirname "$0")/.."

scripts/packages.sh build pictures
scripts/build.sh dev dialog_images
mkdir -p docs/images
screen=$(mktemp)
trap 'rm -f "$screen"' EXIT

picture() {  # picture SUFFIX DPI LANGUAGE CONTRAST
  printf '{"screens": [{"name": "monitor", "width": 1920, "height": 1080, "logicalDpi": %d, "logicalBaseDpi": 96}]}' \
    "$2" > "$screen"
  # Qt's own scaling is off, as in a host that leaves the monitor's DPI to the dialog.
  QT_ENABLE_HIGHDPI_SCALING=0 QT_QPA_PLATFORM="offscreen:configfile=$screen" \
    build/dev/bin/dialog_images "docs/images/question-$2-dpi$1.png" "$2" "build/dev/host/orvik_$3.qm" "$4"
}

for dpi in 96 144 192; do
  picture "" "$dpi" en normal
  picture -high-contrast "$dpi" en high
done
picture -de 96 de normal
