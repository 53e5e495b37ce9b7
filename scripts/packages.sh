#!/usr/bin/env bash
# Installs the missing Debian packages of the named groups: bench, build, clang, fuzz, lint, mutation, pictures,
# windows.
# Root and CI (CI=true) install directly; other users are asked first, because it takes sudo.
set -euo pipefail

declare -A groups=(
  [build]="g++ cmake ninja-build ccache pkg-config qt6-base-dev qt6-tools-dev qt6-tools-dev-tools qt6-l10n-tools
           libcli11-dev libgtest-dev googletest libvalijson-dev"
  [bench]="libbenchmark-dev python3"
  [fuzz]="clang libclang-rt-14-dev"
  [clang]="clang"
  [pictures]="fonts-dejavu-core imagemagick"
  [lint]="clang-format clang-tidy binutils"
  [mutation]="python3"
  [windows]="g++-mingw-w64-x86-64-posix qt6-base-dev-tools dpkg-dev wine wine64 xvfb zip unzip"
)

missing=()
for group in "$@"; do
  for package in ${groups[$group]}; do
    dpkg-query -W -f='${Status}' "$package" 2>/dev/null | grep -q 'ok installed' || missing+=("$package")
  done
done
[ ${#missing[@]} -gt 0 ] || exit 0

install=(env DEBIAN_FRONTEND=noninteractive apt-get install -y -qq --no-install-recommends "${missing[@]}")
as_root=()
if [ "$(id -u)" != 0 ]; then
  as_root=(sudo)
  # Changing the machine needs the user's consent; CI machines have given it.
  if [ "${CI:-}" != true ]; then
    if ! { [ -t 0 ] && [ -t 2 ]; }; then
      printf 'missing packages; run: sudo apt-get install %s\n' "${missing[*]}" >&2
      exit 1
    fi
    printf 'Install these packages with sudo apt-get: %s\nContinue? [y/N] ' "${missing[*]}" >&2
    read -r answer
    case $answer in [yY]*) ;; *) echo "not installed" >&2; exit 1 ;; esac
  fi
fi

echo "installing ${missing[*]}" >&2
log=$(mktemp)
trap 'rm -f "$log"' EXIT
{ "${as_root[@]}" apt-get update -qq && "${as_root[@]}" "${install[@]}"; } > "$log" 2>&1 || { tail -n 20 "$log" >&2; exit 1; }
