#!/usr/bin/env bash
# Installs the Debian packages of the named groups that are missing: bench, build, fuzz, lint, pictures, windows.
# Quick when none is.
set -euo pipefail

declare -A groups=(
  [build]="g++ cmake ninja-build ccache pkg-config qt6-base-dev qt6-tools-dev qt6-tools-dev-tools qt6-l10n-tools
           libcli11-dev libgtest-dev googletest libvalijson-dev"
  [bench]="libbenchmark-dev python3"
  [fuzz]="clang libclang-rt-14-dev"
  [pictures]="fonts-dejavu-core imagemagick"
  [lint]="clang-format clang-tidy binutils"
  [windows]="g++-mingw-w64-x86-64-posix qt6-base-dev-tools dpkg-dev wine wine64 xvfb zip unzip"
)

missing=()
for group in "$@"; do
  for package in ${groups[$group]}; do
    dpkg-query -W -f='${Status}' "$package" 2>/dev/null | grep -q 'ok installed' || missing+=("$package")
  done
done
[ ${#missing[@]} -gt 0 ] || exit 0

sudo=; [ "$(id -u)" = 0 ] || sudo=sudo
echo "installing ${missing[*]}" >&2
{
  $sudo apt-get update -qq
  $sudo env DEBIAN_FRONTEND=noninteractive apt-get install -y -qq --no-install-recommends "${missing[@]}"
} > /tmp/orvik-packages.log 2>&1 || { tail -n 20 /tmp/orvik-packages.log >&2; exit 1; }
