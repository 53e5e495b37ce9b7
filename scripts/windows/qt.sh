#!/usr/bin/env bash
# Builds Qt 6 (Core, Gui, Widgets) for 64-bit Windows, unless a cached build exists, and prints its prefix for
# ORVIK_QT_WINDOWS. Uses the source package of the installed Qt.
#
#   ORVIK_CACHE=DIR                  cache folder (default: ~/.cache/orvik)
set -euo pipefail

cache=${ORVIK_CACHE:-${XDG_CACHE_HOME:-$HOME/.cache}/orvik}
say() { printf '%s\n' "$*" >&2; }

"$(dirname "$0")/../packages.sh" build windows

version=$(dpkg-query -W -f='${source:Version}' qt6-base-dev)
prefix=$cache/qt-$version-windows
if [ -e "$prefix/complete" ]; then
  printf '%s\n' "$prefix"
  exit 0
fi

work=$cache/qt-$version-work
mkdir -p "$work/apt/parts" "$work/apt/lists/partial" "$work/source"

# Separate package lists with source entries: the machine's own lists are not changed.
for list in /etc/apt/sources.list.d/debian.sources /etc/apt/sources.list; do
  [ -e "$list" ] || continue
  case $list in
    *.sources) sed 's/^Types:.*/Types: deb-src/' "$list" > "$work/apt/parts/source.sources" ;;
    *) sed -n 's/^deb /deb-src /p' "$list" | grep -i debian > "$work/apt/parts/source.list" || true ;;
  esac
done
apt_options=(-o "Dir::Etc::sourcelist=/dev/null" -o "Dir::Etc::sourceparts=$work/apt/parts"
             -o "Dir::State::lists=$work/apt/lists" -o "APT::Sandbox::User=root")
if [ ! -e "$work/source/unpacked" ]; then
  say "downloading the sources of qt6-base $version"
  apt-get "${apt_options[@]}" update -qq >&2
  (cd "$work/source" && rm -rf qt6-base-* && apt-get "${apt_options[@]}" source -qq "qt6-base=$version" >&2)
  touch "$work/source/unpacked"
fi
source_dir=$(find "$work/source" -maxdepth 1 -type d -name 'qt6-base-*' | head -n 1)

cat > "$work/toolchain.cmake" <<'TOOLCHAIN'
set(CMAKE_SYSTEM_NAME Windows)
set(CMAKE_SYSTEM_PROCESSOR x86_64)
set(CMAKE_C_COMPILER x86_64-w64-mingw32-gcc-posix)
set(CMAKE_CXX_COMPILER x86_64-w64-mingw32-g++-posix)
set(CMAKE_RC_COMPILER x86_64-w64-mingw32-windres)
set(CMAKE_FIND_ROOT_PATH /usr/x86_64-w64-mingw32)
set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
set(CMAKE_FIND_ROOT_PATH_MODE_LIBRARY ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_INCLUDE ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_PACKAGE ONLY)
TOOLCHAIN

say "building Qt for Windows into $prefix (about 20 minutes on two cores)"
off=(network sql dbus xml printsupport concurrent icu testlib vulkan tabletevent
     system_zlib system_png system_jpeg system_freetype system_harfbuzz system_pcre2)
settings=()
for feature in "${off[@]}"; do settings+=("-DFEATURE_$feature=OFF"); done
cmake -S "$source_dir" -B "$work/build" -G Ninja -DCMAKE_BUILD_TYPE=Release \
  -DCMAKE_TOOLCHAIN_FILE="$work/toolchain.cmake" -DCMAKE_INSTALL_PREFIX="$prefix" \
  -DCMAKE_C_COMPILER_LAUNCHER=ccache -DCMAKE_CXX_COMPILER_LAUNCHER=ccache \
  -DQT_HOST_PATH=/usr -DQT_HOST_PATH_CMAKE_DIR=/usr/lib/x86_64-linux-gnu/cmake -DBUILD_SHARED_LIBS=ON \
  -DQT_BUILD_TESTS=OFF -DQT_BUILD_EXAMPLES=OFF -DINPUT_opengl=no "${settings[@]}" > "$work/configure.log" 2>&1 ||
  { tail -n 40 "$work/configure.log" >&2; exit 1; }
nice cmake --build "$work/build" > "$work/build.log" 2>&1 || { tail -n 40 "$work/build.log" >&2; exit 1; }
cmake --install "$work/build" > "$work/install.log" 2>&1 || { tail -n 40 "$work/install.log" >&2; exit 1; }
touch "$prefix/complete"
rm -rf "$work"
printf '%s\n' "$prefix"
