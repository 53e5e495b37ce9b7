# Sourced: Wine with a display and a prefix in a temporary folder, removed when the shell exits.
#   wine_start        makes the prefix; wine_run PROGRAM [ARGUMENT]... runs a Windows program in it
# Qt needs a display even for its message window, and a wineserver started without one never finds it.

wine_start() {
  wine_scratch=$(mktemp -d)
  trap wine_stop EXIT
  export WINEPREFIX=$wine_scratch/prefix WINEARCH=win64 WINEDEBUG=-all WINEDLLOVERRIDES="mscoree=;mshtml="
  # Xvfb picks a free display number, so that several runs do not collide.
  Xvfb -displayfd 3 -screen 0 1280x1024x24 3> "$wine_scratch/display" > /dev/null 2>&1 &
  wine_display=$!
  for _ in $(seq 100); do [ -s "$wine_scratch/display" ] && break; sleep 0.1; done
  DISPLAY=:$(cat "$wine_scratch/display")
  export DISPLAY
  wine wineboot --init > "$wine_scratch/boot.log" 2>&1 || { cat "$wine_scratch/boot.log" >&2; return 1; }
}

wine_stop() {
  wineserver --kill > /dev/null 2>&1 || true
  kill "$wine_display" 2> /dev/null || true
  wait "$wine_display" 2> /dev/null || true
  rm -rf "$wine_scratch"
}

# The folders of the DLLs that our programs need and that are not built here.
wine_library_path() {
  local folder path=
  for folder in "$ORVIK_QT_WINDOWS/bin" "$(dirname "$(x86_64-w64-mingw32-g++-posix -print-file-name=libstdc++-6.dll)")" \
                /usr/x86_64-w64-mingw32/lib; do
    path="$path${path:+;}Z:${folder//\//\\}"
  done
  printf '%s' "$path"
}

wine_run() { WINEPATH=$(wine_library_path) timeout 240 wine "$@" < /dev/null; }
