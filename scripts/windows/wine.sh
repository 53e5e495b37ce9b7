# Sourced: a Wine of our own, with a display and a prefix in a scratch folder, gone when the shell ends.
#   wine_start        makes the prefix; wine_run PROGRAM [ARGUMENT]... runs a Windows program in it
# Qt wants a display even for its message window, and a wineserver that was started without one goes on failing.

wine_start() {
  wine_scratch=$(mktemp -d)
  trap wine_stop EXIT
  export WINEPREFIX=$wine_scratch/prefix WINEARCH=win64 WINEDEBUG=-all WINEDLLOVERRIDES="mscoree=;mshtml="
  # The display number is Xvfb's own choice, so that two of these do not meet.
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

# Where the libraries lie that a program of this project needs beside its own folder.
wine_library_path() {
  local folder path=
  for folder in "$ORVIK_QT_WINDOWS/bin" "$(dirname "$(x86_64-w64-mingw32-g++-posix -print-file-name=libstdc++-6.dll)")" \
                /usr/x86_64-w64-mingw32/lib; do
    path="$path${path:+;}Z:${folder//\//\\}"
  done
  printf '%s' "$path"
}

wine_run() { WINEPATH=$(wine_library_path) timeout 240 wine "$@" < /dev/null; }
